// SPDX-License-Identifier: MIT
//
// The table of the commands of ztk.
#include <utility>

#include "build_config.h"
#include "ztk/command_line.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/setting/setting_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/facts.h"
#include "ztk/table/table_parts.h"

namespace ztk::program {

namespace {

// A command that is not for a single setting.
cli::Command MakeOther(const char *path, const char *summary, const char *note,
                       const char *example,
                       Report (*run)(const Arguments &arguments)) {
  cli::Command command = MakeCommand(path, summary, run);
  command.note = note;
  command.examples = {example};
  return command;
}

cli::Command MakeUndo() {
  cli::Command command = MakeOther(
      "undo", "Undo the last change",
      "ztk keeps the last 100 changes; --list numbers them from the last one\n"
      "backwards. A setting that another program has changed since is not\n"
      "changed. If nothing was remembered before, the default is sent, and\n"
      "nothing is remembered afterwards. Raw values, the defaults of ztk "
      "output\n"
      "default, and apply cannot be undone.",
      "ztk undo --list", Undo);
  command.options = {{.names = Parameter::kSteps,
                      .value = "",
                      .description = "Undo the changes 1 to N of --list; only "
                                     "the last one when left out"},
                     {.names = Parameter::kList,
                      .value = "",
                      .description = "List what can be undone, and do nothing"},
                     DryRunOption()};
  return command;
}

cli::Command MakeReset() {
  cli::Command command = MakeOther(
      "reset", "Forget what is remembered",
      "Removes it from the settings file. Nothing is sent: the mixer keeps "
      "its\n"
      "settings until it is switched off. Nothing is announced either, so ztk\n"
      "watch does not show it.",
      "ztk reset input 2", Reset);
  command.options = {
      cli::Offering({.names = Parameter::kSetting,
                     .value = "",
                     .description = "input, output, boost or midi; all when "
                                    "left out"},
                    SettingValues),
      {.names = Parameter::kChannel,
       .value = "",
       .description = "Channel; all of the setting when left out"},
      DryRunOption()};
  return command;
}

cli::Command MakeImport() {
  cli::Command command = MakeOther(
      "import", "Restore the settings in a file written by ztk export",
      "The whole file is checked before anything is changed. Remembered\n"
      "settings that are not in the file are kept, and listed.",
      "ztk import club.json --dry-run", Import);
  command.options = {
      {.names = Parameter::kFile,
       .value = "",
       .description = "File that ztk export has written, or - for the standard "
                      "input",
       .required = true,
       .fill = cli::Fill::File},
      {.names = Parameter::kOnly,
       .value = "",
       .description = "Forget settings that are not in the file, and send "
                      "their defaults"},
      DryRunOption()};
  return command;
}

cli::Command MakeApply() {
  cli::Command command = MakeOther(
      "apply", "Send the remembered settings again (of every model: --all)",
      "Sends what is remembered for the VRM-D6. If nothing is remembered for\n"
      "it, sends what is remembered for its sister models. A setting without "
      "a\n"
      "remembered value is not sent.",
      "ztk apply", ApplyAll);
  command.options = {
      {.names = Parameter::kProduct,
       .value = "MODEL",
       .description = "Send only what is remembered for this model",
       .fill = cli::Fill::Values,
       .values = [](const Arguments &,
                    const std::string &) { return ProductValues(); }},
      {.names = Parameter::kAll,
       .value = "",
       .description = "Send what is remembered for every model"},
      DryRunOption()};
  return command;
}

cli::Command MakeWarning() {
  cli::Command command = MakeOther(
      "warning", "Show the text that explains why a channel is silent",
      "Without a mixer the text is always in your own language.",
      "ztk warning --language de", ShowWarning);
  command.options = {
      cli::Offering({.names = Parameter::kOfChannel,
                     .value = "N",
                     .description = "Channel, 1 to 4; 1 when left out"},
                    [] { return ChannelValues(kInput, kWarningChannels); }),
      cli::Offering({.names = Parameter::kLanguage,
                     .value = "L",
                     .description = "German, de or 3, for example; your own "
                                    "language when left out"},
                    LanguageValues)};
  return command;
}

cli::Command MakeDoctor() {
  cli::Command command = MakeOther(
      "doctor", "Find out why something does not work, and what to do",
      "Checks the mixers, the settings files, the session's message bus and\n"
      "the warning texts. Nothing is changed; each mixer receives one query.\n"
      "The exit status is 1 when a problem is found; a note is not a problem.\n"
      "With --quiet only the problems are printed.",
      "ztk doctor", Diagnose);
  command.options = {{.names = Parameter::kReportFile,
                      .value = "FILE",
                      .description =
                          "Also write a report for a maintainer to this file: "
                          "mixers, versions and findings, without private data",
                      .fill = cli::Fill::File}};
  return command;
}

cli::Command MakeStatus() {
  cli::Command command =
      MakeOther("status", "Show the mixers and the remembered settings",
                "Mixers are numbered in the order of the bus. If there are "
                "several, each has\none line with its port.",
                "ztk status", ShowStatus);
  command.options = {{.names = Parameter::kVerbose,
                      .value = "",
                      .description =
                          "Show all details, also if there are several "
                          "mixers"}};
  return command;
}

cli::Command MakeExport() {
  return MakeOther(
      "export", "Write all remembered settings as text",
      "As JSON, by model, setting and channel; ztk import reads it.",
      "ztk export > club.json", Export);
}

cli::Command MakeWatch() {
  return MakeOther(
      "watch", "Show changes by any program, and mixers that come and go",
      "Shows the changes that all programs of your session make, and mixers\n"
      "that are plugged in or unplugged. Ctrl-C ends it, with exit status 0.\n"
      "Without a message bus only mixers are shown, and the exit status is 5.\n"
      "--quiet is not accepted.",
      "ztk watch --json", Watch);
}

cli::Command MakeModels() {
  return MakeOther(
      "models", "List the models with their numbers and settings",
      "--product takes the name of a model in any form, as b5 for VRM-B5, or\n"
      "its number.",
      "ztk models", ShowModels);
}

cli::Command MakeVersions() {
  return MakeOther("versions", "Show the versions of ztk and of what it uses",
                   "The installed parts belong to the VRM-D6.", "ztk versions",
                   ShowVersions);
}

cli::Command MakeAutoapply(const char *verb, const char *summary,
                           Report (*run)(const Arguments &)) {
  cli::Command command =
      MakeCommand(std::string("autoapply ") + verb, summary, run);
  command.note = AutoapplyFact();
  command.examples = {"ztk " + command.path};
  return command;
}

cli::Group MakeAutoapplyGroup() {
  return {.name = "autoapply",
          .summary = "Send the remembered settings when a mixer is plugged in",
          .note = AutoapplyFact(),
          .example = "ztk autoapply on"};
}

std::vector<cli::Command> MakeAutoapplyCommands() {
  return {MakeAutoapply("on", "Turn it on, for every mixer from now on",
                        TurnAutoapplyOn),
          MakeAutoapply("off", "Turn it off", TurnAutoapplyOff),
          MakeAutoapply("status", "Show whether it is on", ShowAutoapply)};
}

void Append(cli::Command command, std::vector<cli::Command> *commands) {
  commands->push_back(std::move(command));
}

void Append(std::vector<cli::Command> more,
            std::vector<cli::Command> *commands) {
  for (cli::Command &command : more) commands->push_back(std::move(command));
}

// The commands that start with the word; all when it is empty.
std::vector<cli::Command> MakeCommands(const std::string &firstWord) {
  std::vector<cli::Command> commands;
  const auto add = [&](const char *word, const auto &make) {
    if (firstWord.empty() || firstWord == word) Append(make(), &commands);
  };
  add("status", MakeStatus);
  for (const Setting *setting : AllSettings()) {
    add(setting->name, [setting] { return SettingCommands(*setting); });
  }
  add("apply", MakeApply);
  add("autoapply", MakeAutoapplyCommands);
  add("undo", MakeUndo);
  add("reset", MakeReset);
  add("export", MakeExport);
  add("import", MakeImport);
  add("watch", MakeWatch);
  add("warning", MakeWarning);
  add("doctor", MakeDoctor);
  add("models", MakeModels);
  add("versions", MakeVersions);
  return commands;
}

std::vector<cli::Group> MakeGroups(const std::string &firstWord) {
  std::vector<cli::Group> groups;
  for (const Setting *setting : AllSettings()) {
    if (!firstWord.empty() && firstWord != setting->name) continue;
    groups.push_back({.name = setting->name,
                      .summary = Summary(*setting),
                      .note = LimitSentence(*setting),
                      .example = std::string("ztk ") + setting->name + " set " +
                                 setting->example});
  }
  groups.push_back(MakeAutoapplyGroup());
  return groups;
}

std::vector<cli::Term> MakeExitStatuses() {
  std::vector<cli::Term> terms;
  for (const ExitMeaning &meaning : ExitMeanings()) {
    terms.push_back({.name = std::to_string(static_cast<int>(meaning.exit)),
                     .meaning = meaning.text});
  }
  return terms;
}

}  // namespace

cli::Command MakeCommand(std::string path, std::string summary,
                         std::function<Report(const Arguments &)> run) {
  cli::Command command{.path = std::move(path),
                       .summary = std::move(summary),
                       .options = {},
                       .note = "",
                       .examples = {},
                       .run = nullptr};
  command.run = [path = command.path,
                 run = std::move(run)](const Arguments &arguments) {
    return RunCommand(path, run, arguments);
  };
  return command;
}

}  // namespace ztk::program

ztk::cli::Program ztk::cli::ThisProgram(const std::string &firstWord) {
  using namespace ztk::program;
  // The message about an unknown word needs all commands.
  std::vector<Command> commands = MakeCommands(firstWord);
  const std::string word = commands.empty() ? "" : firstWord;
  if (commands.empty()) commands = MakeCommands(word);
  return {
      .name = "ztk",
      .version = build::kVersion,
      .summary = "settings of the USB DJ mixer VRM-D6",
      .about =
          "Settings of the USB DJ mixer VRM-D6 and its sister models.\n"
          "Channels and choices are numbered from 1, in the order in "
          "which they are listed.",
      .examples = {"ztk status", "ztk input list 2",
                   "ztk input set 2 \"post ch2 fader\"",
                   "ztk input set 2 mic --dry-run", "ztk undo"},
      .options = {{.names = Parameter::kJson,
                   .value = "",
                   .description = "Write the answer as JSON"},
                  {.names = std::string("-q,") + Parameter::kQuiet,
                   .value = "",
                   .description = "Print only errors, warnings and what was "
                                  "asked for, such as values"}},
      .groups = MakeGroups(word),
      .commands = std::move(commands),
      .exitStatuses = MakeExitStatuses,
      .introduction = ManualIntroduction,
      .sections = ManualSections,
      .seeAlso = {"ztk-virtual-mixer(1)", "ZTKFunc(3)"}};
}
