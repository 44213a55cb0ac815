// SPDX-License-Identifier: MIT
//
// The fixture of the tests on Foundation: GNUstep's, or Apple's on a Mac.
// main() has given the process a home of its own and, on Linux, a root and a
// notification center.
#ifndef ZTK_TESTS_MACOS_FOUNDATION_FOUNDATION_TEST_H_
#define ZTK_TESTS_MACOS_FOUNDATION_FOUNDATION_TEST_H_

#import <Foundation/Foundation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "iokit_double.h"
#include "support/child.h"

namespace ztk::test {

using iokit::CurrentWorld;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

// Without it, every object that a test was handed would stay for good.
class FoundationTest : public testing::Test {
 protected:
  FoundationTest();
  ~FoundationTest() override;

 private:
  NSAutoreleasePool *pool_;
};

// The one whose root may be written to; skipped where there is no such root.
class TemporaryRootTest : public FoundationTest {
 protected:
  void SetUp() override;
};

// Whether the Foundation in use is GNUstep's, which answers some questions
// differently.
#ifdef GNUSTEP
inline constexpr bool kOnGNUstep = true;
#else
inline constexpr bool kOnGNUstep = false;
#endif

// Whether main() could make the root.
inline constexpr char kNoRoot[] = "ZTK_TEST_NO_ROOT";

// A client of client.h, told these words.
struct Client : ChildProcess {
  explicit Client(const std::vector<std::string> &words);
};

std::string StringOf(ZTKTextRef text);
// Autoreleased.
NSString *ObjectOf(const std::string &text);
ZTKTextRef TextOf(const std::string &text);

// $HOME/Library/Preferences, made anew and empty.
std::string Preferences();
std::string SettingsFile(const std::string &model);
// A property list with this inside its root dictionary.
std::string PropertyList(const std::string &entries);

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_FOUNDATION_FOUNDATION_TEST_H_
