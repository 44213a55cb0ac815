// SPDX-License-Identifier: MIT
//
// Sending what is remembered when a mixer is plugged in. Nothing of this
// program runs meanwhile: a rule has the system start `ztk apply`.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_AUTOAPPLY_H_
#define ZTK_TOOLS_ZTK_COMMANDS_AUTOAPPLY_H_

#include <vector>

#include "ztk/commands/command_table.h"

namespace ztk::program {

Group AutoapplyGroup();
std::vector<Command> AutoapplyCommands();

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_AUTOAPPLY_H_
