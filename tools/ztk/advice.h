// SPDX-License-Identifier: MIT
//
// What to do about a mixer, in the words of the system that this runs on.
#ifndef ZTK_TOOLS_ZTK_ADVICE_H_
#define ZTK_TOOLS_ZTK_ADVICE_H_

#include <string>

namespace ztk::cli {

// Why a mixer that is attached may not be opened, and how to mend it. A part
// of a sentence, on one line.
std::string AdviceWhenNotOpened();

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_ZTK_ADVICE_H_
