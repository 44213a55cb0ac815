// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_OPTIONS_H_
#define ZTK_TOOLS_WINDOW_OPTIONS_H_

#include <optional>

namespace ztk::window {

// Does what the command line asks for where that needs no window, and returns
// the exit status. None where the window is to be opened. Options that Qt knows
// are left to Qt.
std::optional<int> RunWithoutWindow(int argc, const char *const *argv);

// Ends the program where the command line holds something that neither Qt has
// taken nor this program knows: the exit status then.
std::optional<int> RefuseUnknown(int argc, const char *const *argv);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_OPTIONS_H_
