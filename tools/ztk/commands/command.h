// SPDX-License-Identifier: MIT
//
// The arguments of the commands.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_COMMAND_H_
#define ZTK_TOOLS_ZTK_COMMANDS_COMMAND_H_

#include "cli/program.h"

namespace ztk::program {

using cli::Arguments;

// The names under which Arguments has the values.
struct Parameter {
  static constexpr char Channel[] = "CHANNEL";
  static constexpr char Choice[] = "CHOICE";  // one word or several
  static constexpr char High[] = "HIGH";
  static constexpr char Source[] = "SOURCE";
  static constexpr char File[] = "FILE";
  static constexpr char Product[] = "--product";
  static constexpr char OfChannel[] = "--channel";
  static constexpr char Language[] = "--language";
  static constexpr char ReportFile[] = "--report";
  static constexpr char DryRun[] = "--dry-run";
  static constexpr char Json[] = "--json";
  static constexpr char Quiet[] = "--quiet";
};

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_COMMAND_H_
