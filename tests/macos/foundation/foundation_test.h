// SPDX-License-Identifier: MIT
//
// The fixture of the tests with Foundation: GNUstep's on Linux, Apple's on a
// Mac. main() has made a home folder for the process and, on Linux, a root and
// a notification center.
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

// Each test has an autorelease pool. Without a pool, autoreleased objects would
// never be released.
class FoundationTest : public testing::Test {
 protected:
  FoundationTest();
  ~FoundationTest() override;

 private:
  NSAutoreleasePool *pool_;
};

// For tests that write to the root folder. They are skipped if that is not
// possible.
class TemporaryRootTest : public FoundationTest {
 protected:
  void SetUp() override;
};

// Whether the Foundation is GNUstep's, which differs in some results.
#ifdef GNUSTEP
inline constexpr bool kOnGNUstep = true;
#else
inline constexpr bool kOnGNUstep = false;
#endif

// This environment variable is set if main() could not make the root. Its value
// is the reason.
inline constexpr char kNoRoot[] = "ZTK_TEST_NO_ROOT";

// A client of client.h with these arguments.
struct Client : ChildProcess {
  explicit Client(const std::vector<std::string> &words);
};

std::string StringOf(ZTKTextRef text);
// Returns an autoreleased string.
NSString *ObjectOf(const std::string &text);
ZTKTextRef TextOf(const std::string &text);

// Makes an empty folder $HOME/Library/Preferences and returns its path.
std::string Preferences();
std::string SettingsFile(const std::string &model);
// Returns a property list whose root dictionary has these entries.
std::string PropertyList(const std::string &entries);

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_FOUNDATION_FOUNDATION_TEST_H_
