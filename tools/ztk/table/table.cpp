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

// A command that does not belong to a single setting, such as "status".
cli::Command MakeGeneral(const char *path, const char *summary,
                         const char *note, const char *example,
                         Report (*run)(const Arguments &arguments)) {
  cli::Command command = MakeCommand(path, summary, run);
  command.note = note;
  command.examples = {example};
  return command;
}

cli::Command MakeUndo() {
  cli::Command command = MakeGeneral(
      "undo", "Undo the last change",
      "ztk keeps the last 100 changes; --list shows them, and the last one is\n"
      "number 1. A setting that another program has changed since then is not\n"
      "undone. If nothing was remembered before a change, undo sends the\n"
      "default, and nothing is remembered afterwards. ztk apply, ztk input "
      "raw\n"
      "and ztk output default cannot be undone, because they do not change "
      "what\n"
      "is remembered. An undo cannot be taken back: set the value again.",
      "ztk undo --list", Undo);
  command.options = {{.names = Parameter::kSteps,
                      .value = "",
                      .description = "Undo the changes 1 to N of --list; only "
                                     "change 1 when left out"},
                     {.names = Parameter::kList,
                      .value = "",
                      .description = "List what can be undone, and do nothing"},
                     DryRunOption()};
  return command;
}

cli::Command MakeReset() {
  cli::Command command =
      MakeGeneral("reset", "Forget what is remembered",
                  "Removes remembered values from the settings files. Nothing "
                  "is sent: the\n"
                  "mixer keeps its settings until it is switched off. Nothing "
                  "is announced\n"
                  "either, so ztk watch does not show this change.",
                  "ztk reset input 2", Reset);
  command.options = {
      cli::Offering({.names = Parameter::kSetting,
                     .value = "",
                     .description = "input, output, boost or midi; all four "
                                    "when left out"},
                    SettingValues),
      {.names = Parameter::kChannel,
       .value = "",
       .description = "Channel; all channels of the setting when left out"},
      DryRunOption()};
  return command;
}

cli::Command MakeImport() {
  cli::Command command = MakeGeneral(
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
  cli::Command command = MakeGeneral(
      "apply",
      "Send the remembered settings again: those of the VRM-D6 or, "
      "if nothing is remembered for it, those of its sister models; "
      "--all: those of all models",
      "A setting without a remembered value is not sent.", "ztk apply",
      ApplyAll);
  command.options = {
      {.names = Parameter::kProduct,
       .value = "MODEL",
       .description = "Send only what is remembered for this model",
       .fill = cli::Fill::Values,
       .values = [](const Arguments &,
                    const std::string &) { return ModelValues(); }},
      {.names = Parameter::kAll,
       .value = "",
       .description = "Send what is remembered for every model"},
      DryRunOption()};
  return command;
}

cli::Command MakeWarning() {
  cli::Command command = MakeGeneral(
      "warning", "Show the library's warning text about silent channels",
      "Shows only the text; ztk status tells which channels are silent. If no\n"
      "mixer is attached, the text is another one, in your own language.",
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
  cli::Command command = MakeGeneral(
      "doctor", "Find out why something does not work, and what to do",
      "Checks the mixers, the settings files, the session's message bus, the\n"
      "texts of ztk warning and the undo history. Nothing is changed; the\n"
      "mixers receive only queries.\n"
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
      MakeGeneral("status", "Show the mixers and the remembered settings",
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
  return MakeGeneral(
      "export", "Write all remembered settings as text",
      "As JSON, by model, setting and channel; ztk import reads it.",
      "ztk export > club.json", Export);
}

cli::Command MakeWatch() {
  return MakeGeneral(
      "watch", "Show changes by any program, and mixers that come and go",
      "Shows the changes that all programs of your session make, and mixers\n"
      "that are plugged in or unplugged. Ctrl-C ends it, with exit status 0.\n"
      "Without a message bus only mixers are shown, and the exit status is 5.\n"
      "With --quiet the first line, which says that it watches, is left out.",
      "ztk watch --json", Watch);
}

cli::Command MakeModels() {
  return MakeGeneral(
      "models", "List the models with their numbers and settings",
      "The option --product of other commands accepts the number of a model\n"
      "or its name. The part after the dash is enough: b5 means VRM-B5.",
      "ztk models", ShowModels);
}

cli::Command MakeVersions() {
  return MakeGeneral(
      "versions", "Show the versions of ztk and of what it uses",
      "Package, driver, utility and library are what the macOS\n"
      "package for the VRM-D6 has installed. Loaded is the library\n"
      "that ztk uses.",
      "ztk versions", ShowVersions);
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

// The commands whose first word is `firstWord`; every command if it is empty.
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

// Words that users try, with the command that does what they expect.
std::vector<cli::Advice> MakeAdvice() {
  using Repeats = cli::Advice::Repeats;
  std::vector<cli::Advice> advice{
      {.path = "",
       .word = "forget",
       .text = "run: ztk reset",
       .repeats = Repeats::Rest},
      {.path = "",
       .word = "redo",
       .text = "an undo cannot be taken back; set the value again, for "
               "example: ztk input set 2 mic",
       .repeats = Repeats::Nothing},
      {.path = "export",
       .word = "*",
       .text = "run: ztk export >",
       .repeats = Repeats::WordToo}};
  for (const Setting *setting : AllSettings()) {
    const std::string name = setting->name;
    advice.push_back({.path = name,
                      .word = "reset",
                      .text = "run: ztk reset " + name,
                      .repeats = Repeats::Rest});
    advice.push_back({.path = name,
                      .word = "N",
                      .text = "run: ztk " + name + " set",
                      .repeats = Repeats::WordToo});
    advice.push_back({.path = "apply",
                      .word = name,
                      .text = "run: ztk " + name + " apply",
                      .repeats = Repeats::Rest});
  }
  return advice;
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
  std::vector<Command> commands = MakeCommands(firstWord);
  // If no command begins with this word, the error message lists all commands.
  const std::string word = commands.empty() ? "" : firstWord;
  if (commands.empty()) commands = MakeCommands(word);
  return {.name = "ztk",
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
                       .description =
                           "Print nothing about changes that succeed: only "
                           "errors, warnings and what a command shows, such as "
                           "values"}},
          .groups = MakeGroups(word),
          .commands = std::move(commands),
          .exitStatuses = MakeExitStatuses,
          .introduction = ManualIntroduction,
          .sections = ManualSections,
          .seeAlso = {"ztk-virtual-mixer(1)", "ZTKFunc(3)"},
          .advice = MakeAdvice};
}
