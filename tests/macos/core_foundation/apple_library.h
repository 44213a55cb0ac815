// SPDX-License-Identifier: MIT
//
// Apple's CoreFoundation, as Debian's package libswiftlang has it, and Apple's
// ICU beside it. Both are loaded when a test runs: the tests need no headers of
// theirs, and are skipped where the package is not installed.
#ifndef ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_
#define ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace ztk::test {

class AppleLibrary : public testing::Test {
 protected:
  // Skips the test when the library cannot be loaded, and says why.
  void SetUp() override;

  // The answer of CFStringGetIntValue().
  static std::int32_t IntegerOfText(const std::string &text);
  // The value under "a" of a property list, as -[NSNumber intValue] and
  // -[NSString intValue] give it. Nothing when the property list cannot be read
  // or is no dictionary.
  static std::optional<std::int32_t> ValueIn(const std::string &propertyList);
  // The first of the twelve folders that ualoc_localizationsToUse() chooses,
  // which CoreFoundation asks on macOS; empty when it chooses none.
  static std::string FolderFor(const char *language);
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_CORE_FOUNDATION_APPLE_LIBRARY_H_
