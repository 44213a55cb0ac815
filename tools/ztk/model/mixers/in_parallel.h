// SPDX-License-Identifier: MIT
//
// Work on several mixers at the same time: a request to one that does not
// answer takes a second.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXERS_IN_PARALLEL_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXERS_IN_PARALLEL_H_

#include <cstddef>
#include <functional>

namespace ztk::model {

// Calls the function with each number below `count`, each call in a thread of
// its own, the last one in this thread. Returns when all have ended. When no
// more threads can be started, this thread makes the calls. The functions in
// src/usb/USB.h may be called from any thread.
void InParallel(std::size_t count,
                const std::function<void(std::size_t)> &function);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXERS_IN_PARALLEL_H_
