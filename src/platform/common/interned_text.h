// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
#define ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_

#include <string_view>

namespace ztk::platform::common {

// The one lasting copy of a text: equal texts give the same pointer, which
// stays valid until the process ends. Polling a file that does not change
// therefore does not grow; every new content stays for good. Takes no lock: one
// thread at a time calls it, as the functions that hand such texts out demand.
// Stops at a zero byte, as the text that is handed out would.
const char *Intern(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_INTERNED_TEXT_H_
