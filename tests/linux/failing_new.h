// SPDX-License-Identifier: MIT
//
// A program that is linked with failing_new.cpp uses operators new and delete
// that can fail. Allocations by malloc(), such as those of libplist, do not
// fail.
#ifndef ZTK_TESTS_LINUX_FAILING_NEW_H_
#define ZTK_TESTS_LINUX_FAILING_NEW_H_

#include <functional>

namespace ztk::test {

// Calls the function while its allocation number `which`, from 1, fails.
// Returns false if the function makes fewer allocations.
bool RunFailing(long which, const std::function<void()> &function);

}  // namespace ztk::test

#endif  // ZTK_TESTS_LINUX_FAILING_NEW_H_
