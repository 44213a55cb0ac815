// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMAND_LINE_H_
#define ZTK_TOOLS_ZTK_COMMAND_LINE_H_

#include <string>
#include <vector>

#include "ztk/report.h"

namespace ztk::program {

// A call that did not run throws out of Run(): what is known of it until then.
struct Call {
  std::string command;  // "input set", as far as the words go
  bool json = false;
};

// Parses the words that follow the program's name, and runs their command.
// *call is filled in as soon as something is known.
Report Run(std::vector<std::string> words, Call *call);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMAND_LINE_H_
