// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_
#define ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_

#include <string>
#include <string_view>

namespace ztk::platform {

// Returns the text with U+FFFD in place of everything that XML 1.0 cannot
// contain: each byte that is not part of valid UTF-8 (surrogates are not
// valid), U+FFFE, U+FFFF, and the control characters below U+0020 other than
// tab, line feed and carriage return. One such character would make a strict
// reader refuse the whole file.
std::string CleanText(std::string_view text);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_
