// SPDX-License-Identifier: MIT
//
// What the table of commands is put together from.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_

#include <string>
#include <vector>

#include "cli/program.h"
#include "virtual-mixer/commands/command_table.h"

namespace ztk::virtual_mixer {

// Those that make a world, and those that change one from inside.
std::vector<Command> WorldCommands();
std::vector<Command> InsideCommands();

inline constexpr unsigned kMostMixers = 127;

// How a fault is written, for the help of each command that takes one.
extern const char kFaultHelp[];

// A number among the words. Throws UsageError; `what` names it there.
unsigned Number(const char *what, const std::string &text, unsigned least,
                unsigned most);

// What can be offered for a word, whatever stands before it.
cli::Option Offering(cli::Option option, const std::vector<cli::Value> &values);

std::vector<cli::Value> FaultKinds();

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_PARTS_H_
