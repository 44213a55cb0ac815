// SPDX-License-Identifier: MIT
//
// Apple's CoreFoundation and Apple's ICU, from Debian's package libswiftlang.
// Both are loaded when a test runs, so the tests do not need their headers. The
// tests are skipped if the package is not installed.
#ifndef ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_
#define ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace ztk::test {

class AppleLibrary : public testing::Test {
 protected:
  // Skips the test if the library is not installed.
  void SetUp() override;

  // Returns the result of CFStringGetIntValue().
  static std::int32_t IntegerOfText(const std::string &text);
  // Returns the value of "a" in a property list, as -[NSNumber intValue] and
  // -[NSString intValue] return it. Returns no value if the property list
  // cannot be read or is not a dictionary.
  static std::optional<std::int32_t> ValueIn(const std::string &propertyList);
  // Returns the first of the twelve folders that ualoc_localizationsToUse()
  // chooses, or an empty text. CoreFoundation calls this function on macOS.
  static std::string FolderFor(const char *language);
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_
