// SPDX-License-Identifier: MIT
//
// The commands that belong to no single setting.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_

#include "ztk/commands/command.h"
#include "ztk/report.h"

namespace ztk::program {

// Each mixer in bus order with what it says of itself, and what is remembered
// for every model.
Report ShowStatus(const Arguments &arguments);

// Puts back what this program has changed last.
Report Undo(const Arguments &arguments);

// Forgets what is remembered, and sends nothing.
Report Reset(const Arguments &arguments);

// All that is remembered, in words, and such words read again: all or nothing.
Report Export(const Arguments &arguments);
Report Import(const Arguments &arguments);

// What is wrong, why, and what to type about it.
Report Diagnose(const Arguments &arguments);

Report ShowVersions(const Arguments &arguments);

Report ShowModels(const Arguments &arguments);

// The attached mixers, the current choices, and what to type next.
Report ShowOverview(const Arguments &arguments);

// The library's sentence for a 101.
Report ShowWarning(const Arguments &arguments);

// Whether the remembered settings are sent when a mixer is plugged in.
Report TurnAutoapplyOn(const Arguments &arguments);
Report TurnAutoapplyOff(const Arguments &arguments);
Report ShowAutoapply(const Arguments &arguments);

// Writes a line for each change, as it comes, until it is interrupted.
Report Watch(const Arguments &arguments);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_
