// SPDX-License-Identifier: MIT
//
// The commands that are not for a single setting.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_

#include "ztk/commands/command.h"
#include "ztk/report.h"

namespace ztk::program {

// Each mixer with its answers, in the order of the bus, and the remembered
// settings of every model.
Report ShowStatus(const Arguments &arguments);

// Takes back the last changes that this program made, or lists them.
Report Undo(const Arguments &arguments);

// Removes remembered values, and sends nothing.
Report Reset(const Arguments &arguments);

// Writes all remembered settings as text.
Report Export(const Arguments &arguments);

// Sets all settings in such a text, or none if the text has an error.
Report Import(const Arguments &arguments);

// Shows what does not work, why, and the command that repairs it.
Report Diagnose(const Arguments &arguments);

Report ShowVersions(const Arguments &arguments);

Report ShowModels(const Arguments &arguments);

// Shows the attached mixers, the current choices, and useful commands.
Report ShowOverview(const Arguments &arguments);

// Shows the sentence with which the library explains the result 101
// (ZTK_WARNING).
Report ShowWarning(const Arguments &arguments);

// Turns on, turns off or shows whether the remembered settings are sent when a
// mixer is plugged in.
Report TurnAutoapplyOn(const Arguments &arguments);
Report TurnAutoapplyOff(const Arguments &arguments);
Report ShowAutoapply(const Arguments &arguments);

// Writes a line for each change as it arrives, until the user presses Ctrl-C.
Report Watch(const Arguments &arguments);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_OTHER_COMMANDS_H_
