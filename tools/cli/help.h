// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_CLI_HELP_H_
#define ZTK_TOOLS_CLI_HELP_H_

#include <string>

#include "cli/program.h"

namespace ztk::cli {

// `ztk help input` is the same as `ztk input --help`.
inline constexpr char kHelpWord[] = "help";

// The help of the program (empty path), of a group or of a command, as lines
// for FillParagraphs().
std::string Help(const Program &program, const std::string &path);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_HELP_H_
