// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
#define ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_

#include <string_view>

namespace ztk::platform::common {

// Returns the permanent copy of a text, or null when memory has run out. Equal
// texts have the same copy, which stays valid until the process ends. So
// reading an unchanged file again needs no more memory. The copy ends at the
// first zero byte. There is no lock: only one thread at a time may call this
// function, and the same is true for the functions that return such texts.
const char *Intern(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
