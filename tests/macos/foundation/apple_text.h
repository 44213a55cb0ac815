// SPDX-License-Identifier: MIT
//
// Included first in each source. Makes the public header define the text type
// of macOS, while all other headers are still those of Linux.
#ifndef ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_
#define ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_

#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

#define __APPLE__ 1  // NOLINT(bugprone-reserved-identifier)
#include "ZTKFunc.h"
#undef __APPLE__

#endif  // ZTK_TESTS_MACOS_FOUNDATION_APPLE_TEXT_H_
