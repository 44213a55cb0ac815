// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_
#define ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_

#include <string>
#include <string_view>

namespace ztk::platform {

// The text, in which U+FFFD replaces everything that XML 1.0 cannot contain:
// each byte that is not UTF-8 (surrogates are not), U+FFFE and U+FFFF, and the
// control characters below a space other than tab, line feed and carriage
// return. A strict reader refuses the whole file because of one of them.
std::string CleanText(std::string_view text);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_LINUX_CLEAN_TEXT_H_
