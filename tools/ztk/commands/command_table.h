// SPDX-License-Identifier: MIT
//
// The names of the arguments of the commands, and the functions that the table
// of commands is made of.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_
#define ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_

#include <functional>
#include <string>
#include <vector>

#include "cli/program.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

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

// A command of the table. Its function returns a report, or throws a Failure;
// both are printed in the form that the user asked for.
cli::Command MakeCommand(std::string path, std::string summary,
                         std::function<Report(const Arguments &)> run);

cli::Option ProductOption(const std::string &otherwise);
cli::Option DryRunOption();

// What completions offer for an argument.
std::vector<cli::Value> ChannelValues(const Setting &setting,
                                      std::uint32_t count);
std::vector<cli::Value> ChoiceValues(const Setting &setting,
                                     const Arguments &before,
                                     const std::string &begun);
std::vector<cli::Value> ProductValues();
std::vector<cli::Value> LanguageValues();

// Parts of the table that have a source of their own.
std::vector<cli::Command> SettingCommands(const Setting &setting);
cli::Group AutoapplyGroup();
std::vector<cli::Command> AutoapplyCommands();
std::vector<cli::Section> ManualIntroduction();
std::vector<cli::Section> ManualSections();

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_COMMAND_TABLE_H_
