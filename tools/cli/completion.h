// SPDX-License-Identifier: MIT
//
// Completion of command lines. Each shell has a short script that asks the
// program itself, so that exactly the accepted words are offered.
#ifndef ZTK_TOOLS_CLI_COMPLETION_H_
#define ZTK_TOOLS_CLI_COMPLETION_H_

#include <cstdint>
#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::cli {

// The first word of a call by such a script. The words of the command line
// follow; the last one is the word to complete.
inline constexpr char kCompletionCall[] = "__complete";

// The words that can stand in place of the last word, one line each: the word,
// a tab, its meaning. Instead, ":files" where a file name is expected, and
// ":command" where the command line of another program follows "--".
std::string Completions(const Program &program,
                        const std::vector<std::string> &words);

enum class Shell : std::uint8_t { Bash, Fish, Zsh };

// The completion script of a program.
std::string CompletionScript(const std::string &program, Shell shell);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_COMPLETION_H_
