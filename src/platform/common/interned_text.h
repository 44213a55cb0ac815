// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
#define ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_

#include <string_view>

namespace ztk::platform::common {

// The permanent copy of a text: equal texts give the same pointer, which stays
// valid until the process ends. Reading an unchanged file again therefore needs
// no more memory; every new content is kept. Takes no lock: only one thread at
// a time may call it, as the functions that return such texts require. Stops at
// a zero byte, as a C string does.
const char *Intern(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
