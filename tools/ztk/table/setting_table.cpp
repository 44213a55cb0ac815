// SPDX-License-Identifier: MIT
//
// The commands of a setting: list, get, set and apply, and those of a single
// setting, default and raw.
#include "ztk/commands/setting/setting_commands.h"
#include "ztk/report/setting_report.h"
#include "ztk/table/table_parts.h"

namespace ztk::program {

namespace {

using SettingFunction = Report (*)(const Setting &setting,
                                   const Arguments &arguments);

// Adds the argument CHANNEL for a setting with channels.
void AddChannel(const Setting &setting, const std::string &otherwise,
                std::vector<cli::Option> *options) {
  if (setting.channels == 0) return;
  options->push_back(cli::Offering(
      {.names = Parameter::kChannel,
       .value = "",
       .description = std::string(setting.title) + " channel, 1 to " +
                      std::to_string(setting.channels) + otherwise,
       .required = otherwise.empty()},
      [&setting] { return ChannelValues(setting, setting.channels); }));
}

cli::Command MakeSettingCommand(const Setting &setting, const char *verb,
                                const std::string &summary,
                                const std::string &words,
                                SettingFunction function) {
  cli::Command command =
      MakeCommand(std::string(setting.name) + " " + verb, summary,
                  [&setting, function](const Arguments &arguments) {
                    return function(setting, arguments);
                  });
  command.note = Note(setting);
  command.examples = {"ztk " + command.path + (words.empty() ? "" : " ") +
                      words};
  return command;
}

// list, get, default and apply differ only in their functions.
cli::Command MakePlain(const Setting &setting, const char *verb,
                       const std::string &summary, SettingFunction function) {
  cli::Command command = MakeSettingCommand(
      setting, verb, summary, setting.channels == 0 ? "" : "1", function);
  AddChannel(setting, "; all when left out", &command.options);
  command.options.push_back(ProductOption());
  return command;
}

cli::Command MakeSending(const Setting &setting, const char *verb,
                         const std::string &summary, SettingFunction function) {
  cli::Command command = MakePlain(setting, verb, summary, function);
  command.options.push_back(DryRunOption());
  return command;
}

cli::Command MakeSet(const Setting &setting) {
  cli::Command command = MakeSettingCommand(
      setting, "set", "Choose a value: send it to every mixer and remember it",
      setting.example, SetChoice);
  AddChannel(setting, "; if it is left out in a terminal, ztk asks for it",
             &command.options);
  command.options.push_back(
      {.names = Parameter::kChoice,
       .value = "",
       .description = "Number as listed, text, or words of the text that no "
                      "other choice has together; if it is left out in a "
                      "terminal, ztk asks for it",
       .repeats = true,
       .fill = cli::Fill::Values,
       .values = [&setting](const Arguments &before, const std::string &begun) {
         return ChoiceValues(setting, before, begun);
       }});
  command.options.push_back(ProductOption());
  command.options.push_back(DryRunOption());
  return command;
}

cli::Command MakeRaw() {
  cli::Command command = MakeSettingCommand(
      kInput, "raw", "Send a raw routing value; it is not remembered", "2 0 3",
      SendRaw);
  AddChannel(kInput, "", &command.options);
  command.options.push_back(
      {.names = Parameter::kHigh,
       .value = "",
       .description = "Number whose successor (number + 1) is sent in the top "
                      "four bits of the value; decimal, or hexadecimal after "
                      "0x",
       .required = true});
  command.options.push_back({.names = Parameter::kSource,
                             .value = "",
                             .description = "Source code, 0 to 15",
                             .required = true});
  command.options.push_back(ProductOption());
  command.options.push_back(DryRunOption());
  return command;
}

}  // namespace

cli::Option ProductOption() {
  return cli::Offering({.names = Parameter::kProduct,
                        .value = "MODEL",
                        .description = "Model, by name or number; default: the "
                                       "model that has this setting"},
                       ProductValues);
}

cli::Option DryRunOption() {
  return {.names = Parameter::kDryRun,
          .value = "",
          .description =
              "Show what would be done, and do nothing; --json also "
              "shows the bytes of each request"};
}

std::vector<cli::Command> SettingCommands(const Setting &setting) {
  std::vector<cli::Command> commands{
      MakePlain(setting, "list", "List the choices with their numbers",
                ListChoices),
      MakePlain(setting, "get", "Show the current choice, as it is remembered",
                GetRemembered),
      MakeSet(setting)};
  if (&setting == &kOutput) {
    commands.push_back(MakeSending(setting, "default",
                                   "Send the default; it is not remembered",
                                   SendDefault));
  }
  commands.push_back(MakeSending(
      setting, "apply", "Send the remembered choice again", ApplySetting));
  if (&setting == &kInput) commands.push_back(MakeRaw());
  return commands;
}

}  // namespace ztk::program
