// SPDX-License-Identifier: MIT
//
// Completing a command line: each shell has a short script that asks the
// program itself, so that what is offered is what the program takes.
#ifndef ZTK_TOOLS_CLI_COMPLETION_H_
#define ZTK_TOOLS_CLI_COMPLETION_H_

#include <cstdint>
#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::cli {

// The first word of a call by such a script; the others follow, the last of
// which is the one to complete.
inline constexpr char kCompletionCall[] = "__complete";

// What can stand in the place of the last word: a line each, the word, a tab,
// and what it means. Instead, ":files" where a file is named, and ":command"
// where another program's words follow the "--" that stands before.
std::string Completions(const Program &program,
                        const std::vector<std::string> &words);

enum class Shell : std::uint8_t { Bash, Fish, Zsh };

// The script that completes the program.
std::string CompletionScript(const std::string &program, Shell shell);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_COMPLETION_H_
