// SPDX-License-Identifier: MIT
//
// The floor: the system calls that the library makes on Linux, in the same
// order, with as little code as possible between them. It does not sort,
// allocates nothing, parses only what the next call needs, and does not check
// what cannot happen on a virtual mixer. The difference to the library is the
// cost of its sorting and its checks.
//
// A test traces both and compares them call by call.
#ifndef ZTK_BENCH_FLOOR_H_
#define ZTK_BENCH_FLOOR_H_

#include <cstdint>

namespace ztk::bench::floor {

// Stores what does not change from call to call: the paths of the settings file
// and of the message bus, from the environment. Returns the reason of a
// failure, else null. Only Set() and Apply() need it.
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
