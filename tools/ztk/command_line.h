// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMAND_LINE_H_
#define ZTK_TOOLS_ZTK_COMMAND_LINE_H_

#include <functional>
#include <string>
#include <vector>

#include "cli/program.h"
#include "ztk/report.h"

namespace ztk::program {

// Runs the command that the words after the program's name ask for, and
// returns the exit status. Never throws.
int RunCommandLine(const std::vector<std::string> &words);

// Runs the function of a command and prints its report, also when it throws.
int RunCommand(const std::string &path,
               const std::function<Report(const cli::Arguments &)> &run,
               const cli::Arguments &arguments);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMAND_LINE_H_
