// SPDX-License-Identifier: MIT
//
// The floor makes the same system calls as the library on Linux, in the same
// order, with as little code as possible between them. It does not sort or
// allocate, parses only the data that the next call needs, and does not check
// for errors that cannot happen with a virtual mixer. So the difference to the
// library is the time of the library's sorting and checks.
//
// A test traces the floor and the library, and compares their system calls.
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

// Does the same as ZTK_SetUSBInputAudio() for channels 0 to 4, but without
// looking up the device value: sends `value` to every mixer, stores and
// announces `index`, and reads the selectors of every mixer. Returns the number
// of mixers.
int Set(std::uint32_t channel, std::uint32_t index, std::uint16_t value);

// Does the same as ZTK_GetMixerInputSelectorStatus(): returns the position on
// the last mixer, or -1 if no mixer answers.
int Query(std::uint32_t channel);

// Does the same as ZTK_SetCurrentUSBInputAudio(): reads the settings file, then
// sends `value` to every mixer. Returns the number of mixers.
int Apply(std::uint16_t value);

}  // namespace ztk::bench::floor

#endif  // ZTK_BENCH_FLOOR_H_
