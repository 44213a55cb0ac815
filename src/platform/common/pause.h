// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_PAUSE_H_
#define ZTK_PLATFORM_COMMON_PAUSE_H_

#include <chrono>

namespace ztk::platform {

// Suspends the calling thread. In a source of its own, so that the fuzz targets
// can do without the pauses.
void Pause(std::chrono::microseconds time);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_PAUSE_H_
