// SPDX-License-Identifier: MIT
//
// Every command of ztk-virtual-mixer, in one table: the parser, the help, the
// manual page and the completions are made from it.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_TABLE_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_TABLE_H_

#include <map>
#include <string>
#include <vector>

#include "cli/program.h"

namespace ztk::virtual_mixer {

// The words of one call.
struct Words {
  // By the long name of the option, or the name of the position.
  std::map<std::string, std::vector<std::string>> given;
  // What stands behind "--".
  std::vector<std::string> command;

  bool Has(const std::string &name) const { return given.count(name) > 0; }
  // The last one; empty when it was not given.
  std::string One(const std::string &name) const {
    return Has(name) ? given.at(name).back() : "";
  }
  std::vector<std::string> All(const std::string &name) const {
    return Has(name) ? given.at(name) : std::vector<std::string>();
  }
};

struct Command {
  cli::Command text;
  // The exit status. Throws UsageError for words that cannot be, and
  // std::runtime_error.
  int (*run)(const Words &words);
};

const std::vector<Command> &Commands();

// What the program is, in a sentence.
inline constexpr char kAbout[] =
    "Virtual VRM-D6 mixers for any program, no hardware needed.";

inline constexpr char kExample[] = "ztk-virtual-mixer run -n 2 -- ztk status";

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_COMMANDS_COMMAND_TABLE_H_
