// SPDX-License-Identifier: MIT
//
// Makes calls of the C library fail. port_tests replaces these functions for
// the whole process.
#ifndef ZTK_TESTS_LINUX_FAILING_CALLS_H_
#define ZTK_TESTS_LINUX_FAILING_CALLS_H_

#include <gtest/gtest.h>

#include <functional>

namespace ztk::test {

// How the next calls of one function end.
struct NextCalls {
  int passing = 0;  // the number of calls that still work
  int failing = 0;  // the number of calls after them that have to fail
  int error = 0;    // the errno value of these calls
  std::function<void()> action = {};  // runs at the beginning of these calls
  int count = 0;                      // the number of calls so far

  // Counts a call. Returns true if the call has to fail; then errno is set.
  bool Fail();
};

extern NextCalls readCalls;
extern NextCalls linkCalls;
extern NextCalls linkatCalls;
extern NextCalls renameCalls;
extern NextCalls fsyncCalls;

// After a test, the functions work as usual again.
class WithFailingCalls : public testing::Test {
 protected:
  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }

 private:
  static void Reset();
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_LINUX_FAILING_CALLS_H_
