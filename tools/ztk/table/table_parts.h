// SPDX-License-Identifier: MIT
//
// The functions that the table of commands is made of.
#ifndef ZTK_TOOLS_ZTK_TABLE_TABLE_PARTS_H_
#define ZTK_TOOLS_ZTK_TABLE_TABLE_PARTS_H_

#include <functional>
#include <string>
#include <vector>

#include "cli/program.h"
#include "ztk/commands/command.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// A command of the table. Its function returns a report, or throws a Failure;
// both are printed in the form that the user asked for.
cli::Command MakeCommand(std::string path, std::string summary,
                         std::function<Report(const Arguments &)> run);

cli::Option ProductOption();
cli::Option DryRunOption();

// The words that completions offer for an argument.
std::vector<cli::Value> ChannelValues(const Setting &setting,
                                      std::uint32_t count);
std::vector<cli::Value> ChoiceValues(const Setting &setting,
                                     const Arguments &before,
                                     const std::string &begun);
// All models, and those that have settings.
std::vector<cli::Value> ProductValues();
std::vector<cli::Value> ModelValues();
std::vector<cli::Value> SettingValues();
std::vector<cli::Value> LanguageValues();

// Parts of the table, each in a source of its own.
std::vector<cli::Command> SettingCommands(const Setting &setting);
std::vector<cli::Section> ManualIntroduction();
std::vector<cli::Section> ManualSections();

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_TABLE_TABLE_PARTS_H_
