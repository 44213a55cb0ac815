// SPDX-License-Identifier: MIT
//
// The hand-written floor: the system calls that the library makes on Linux, in
// the same order, with as little as possible around them. No sorting, nothing
// allocated, nothing parsed that the next call does not need, no check of what
// cannot happen on a virtual mixer. What the library costs above it is the
// price of its order and its guards.
//
// It stays honest because a test traces both and compares them call by call.
#ifndef ZTK_BENCH_FLOOR_H_
#define ZTK_BENCH_FLOOR_H_

#include <cstdint>

namespace ztk::bench::floor {

// Notes what does not change from call to call: the places of the settings
// file and of the message bus, as the environment has them. A sentence saying
// why it cannot, else null. Needed by Set() and Apply() only.
const char *Prepare();

// Counts the mixers.
int Count();

// The path of ZTK_SetUSBInputAudio() for channels 0 to 4, except that no
// routing is looked up: sends `value` to every mixer, stores and announces
// `index`, reads the selectors of every mixer. The number of mixers.
int Set(std::uint32_t channel, std::uint32_t index, std::uint16_t value);

// The path of ZTK_GetMixerInputSelectorStatus(): the position on the last
// mixer, -1 when none answers.
int Query(std::uint32_t channel);

// The path of ZTK_SetCurrentUSBInputAudio(): reads the settings file, then
// sends `value` to every mixer. The number of mixers.
int Apply(std::uint16_t value);

}  // namespace ztk::bench::floor

#endif  // ZTK_BENCH_FLOOR_H_
