// SPDX-License-Identifier: MIT
//
// Read before everything else in each source: has the public header give the
// text type of macOS, and leaves all other headers believe that this is Linux.
#ifndef ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_
#define ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_

#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

#define __APPLE__ 1  // NOLINT(bugprone-reserved-identifier)
#include "ZTKFunc.h"
#undef __APPLE__

#endif  // ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_
