// SPDX-License-Identifier: MIT
//
// The parts of the table of commands.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_

#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::virtual_mixer {

using cli::Arguments;

// The commands that start virtual mixers, and those that change them. Their
// functions throw cli::UsageError for invalid arguments, and
// std::runtime_error.
std::vector<cli::Command> WorldCommands();
std::vector<cli::Command> InsideCommands();

inline constexpr unsigned kMostMixers = 127;

// The form of a fault, for the help of each command that takes one.
extern const char kFaultHelp[];

// Reads a number; `what` names it in the message of the UsageError.
unsigned Number(const char *what, const std::string &text, unsigned least,
                unsigned most);

std::vector<cli::Value> FaultKinds();

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_
