// SPDX-License-Identifier: MIT
//
// The fixture of every test with the IOKit double. Each test starts with a new
// world and fails if it contains misuse at the end.
#ifndef ZTK_TESTS_MACOS_IOKIT_TEST_H_
#define ZTK_TESTS_MACOS_IOKIT_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "iokit_double.h"

namespace ztk::iokit {

// Prints the references in a failed comparison.
inline void PrintTo(const Held &held, std::ostream *out) {
  *out << "{ports " << held.ports << ", dictionaries " << held.dictionaries
       << ", numbers " << held.numbers << ", strings " << held.strings
       << ", iterators " << held.iterators << ", services " << held.services
       << ", plug-ins " << held.plugIns << ", interfaces " << held.interfaces
       << "}";
}

}  // namespace ztk::iokit

namespace ztk::test {

using iokit::CurrentWorld;
using iokit::Held;
using iokit::Hub;
using iokit::Mixer;
using testing::ElementsAre;
using testing::IsEmpty;

class IOKitTest : public testing::Test {
 protected:
  IOKitTest() { iokit::StartAfresh(); }
  ~IOKitTest() override { EXPECT_THAT(CurrentWorld().misuse, IsEmpty()); }

  static std::vector<std::string> TakeCalls() {
    return std::exchange(CurrentWorld().calls, {});
  }
  static std::vector<std::string> TakeRequests() {
    return std::exchange(CurrentWorld().requests, {});
  }
};

// Returns another device of the maker, and a device that does not answer.
inline iokit::Device OtherProduct() {
  iokit::Device other;
  other.product = 28;
  return other;
}

inline iokit::Device WithoutPlugIn() {
  iokit::Device device = Mixer();
  device.plugInResult = kIOReturnNoResources;
  return device;
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_IOKIT_TEST_H_
