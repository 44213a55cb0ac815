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
  static constexpr char kChannel[] = "CHANNEL";
  static constexpr char kChoice[] = "CHOICE";  // one word or several
  static constexpr char kHigh[] = "HIGH";
  static constexpr char kSource[] = "SOURCE";
  static constexpr char kFile[] = "FILE";
  static constexpr char kProduct[] = "--product";
  static constexpr char kOfChannel[] = "--channel";
  static constexpr char kLanguage[] = "--language";
  static constexpr char kReportFile[] = "--report";
  static constexpr char kDryRun[] = "--dry-run";
  static constexpr char kOnly[] = "--only";
  static constexpr char kAll[] = "--all";
  static constexpr char kList[] = "--list";
  static constexpr char kVerbose[] = "--verbose";
  static constexpr char kSteps[] = "N";
  static constexpr char kSetting[] = "SETTING";
  static constexpr char kJson[] = "--json";
  static constexpr char kQuiet[] = "--quiet";
};

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_COMMAND_H_
