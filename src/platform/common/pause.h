// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_PAUSE_H_
#define ZTK_PLATFORM_COMMON_PAUSE_H_

#include <chrono>

namespace ztk::platform {

// Suspends the calling thread. This function has a source file of its own, so
// that a test or a fuzz target can define a Pause() that does not wait.
void Pause(std::chrono::microseconds time);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_PAUSE_H_
