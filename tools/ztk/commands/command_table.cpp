// SPDX-License-Identifier: MIT
#include "ztk/commands/command_table.h"

#include "ztk/commands/autoapply.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/setting_commands.h"
#include "ztk/model/settings.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

using Run = Report (*)(const Setting &setting, const Arguments &arguments);

ParameterUse ProductOption(const std::string &otherwise) {
  return {.parameter = Parameter::Product,
          .required = false,
          .description =
              "Model, by name or number; " + otherwise + " when left out"};
}

ParameterUse DryRunOption() {
  return {.parameter = Parameter::DryRun,
          .required = false,
          .description = "Show what would be done, and do nothing"};
}

// N, where the setting has channels.
void AddChannel(const Setting &setting, bool required,
                std::vector<ParameterUse> *uses) {
  if (setting.channels == 0) return;
  std::string text = "Channel, 1 to " + std::to_string(setting.channels);
  if (!required) text += "; all when left out";
  uses->push_back({.parameter = Parameter::Channel,
                   .required = required,
                   .description = text});
}

Command MakeCommand(const Setting &setting, const char *verb,
                    const std::string &summary, const std::string &words,
                    Run run) {
  std::string path = std::string(setting.name) + " " + verb;
  std::string example = "ztk " + path;
  if (!words.empty()) example += " " + words;
  return {.path = path,
          .summary = summary,
          .parameters = {},
          .note = Note(setting),
          .example = example,
          .run = [&setting, run](const Arguments &arguments) {
            return run(setting, arguments);
          }};
}

// list, get, default and apply, which differ in nothing but what they run.
Command MakePlain(const Setting &setting, const char *verb,
                  const std::string &summary, Run run) {
  Command command = MakeCommand(setting, verb, summary,
                                setting.channels == 0 ? "" : "1", run);
  AddChannel(setting, false, &command.parameters);
  command.parameters.push_back(ProductOption(ModelName(setting)));
  return command;
}

Command MakeSending(const Setting &setting, const char *verb,
                    const std::string &summary, Run run) {
  Command command = MakePlain(setting, verb, summary, run);
  command.parameters.push_back(DryRunOption());
  return command;
}

Command MakeSet(const Setting &setting) {
  Command command = MakeCommand(
      setting, "set", "Choose: send it to every mixer and remember it",
      setting.example, SetChoice);
  AddChannel(setting, true, &command.parameters);
  command.parameters.push_back(
      {.parameter = Parameter::Choice,
       .required = false,
       .description = "Number as listed (from 1), text, or its beginning; "
                      "asked for in a terminal when left out"});
  command.parameters.push_back(ProductOption(ModelName(setting)));
  command.parameters.push_back(DryRunOption());
  return command;
}

Command MakeRaw() {
  Command command = MakeCommand(
      kInput, "raw", "Send a raw routing value; it is not remembered", "2 0 3",
      SendRaw);
  AddChannel(kInput, true, &command.parameters);
  command.parameters.push_back({.parameter = Parameter::High,
                                .required = true,
                                .description =
                                    "Number that goes, raised by 1, into the "
                                    "top four bits of the value"});
  command.parameters.push_back({.parameter = Parameter::Source,
                                .required = true,
                                .description = "Source code, 0 to 15"});
  command.parameters.push_back(ProductOption(ModelName(kInput)));
  command.parameters.push_back(DryRunOption());
  return command;
}

void AddSettingCommands(const Setting &setting,
                        std::vector<Command> *commands) {
  commands->push_back(MakePlain(
      setting, "list", "List the choices with their numbers", ListChoices));
  commands->push_back(
      MakePlain(setting, "get", "Show what is remembered", GetRemembered));
  commands->push_back(MakeSet(setting));
  if (&setting == &kOutput) {
    commands->push_back(MakeSending(setting, "default",
                                    "Send the default; it is not remembered",
                                    SendDefault));
  }
  commands->push_back(MakeSending(
      setting, "apply", "Send what is remembered again", ApplySetting));
  if (&setting == &kInput) commands->push_back(MakeRaw());
}

// Of what is remembered as a whole.
void AddMemory(std::vector<Command> *commands) {
  commands->push_back(
      {.path = "undo",
       .summary = "Put back what ztk has changed last",
       .parameters = {DryRunOption()},
       .note =
           "Each further undo goes one command back, 100 at most. What\n"
           "another program has changed since is left alone. Where nothing\n"
           "was remembered before, the default is put back and remembered,\n"
           "as the library cannot forget. Only what is remembered can be\n"
           "undone: not raw values, defaults, or what was applied.",
       .example = "ztk undo",
       .run = Undo});
  commands->push_back(
      {.path = "export",
       .summary = "Write all that is remembered, in words",
       .parameters = {},
       .note = "In JSON, by model, setting and channel, for ztk import.",
       .example = "ztk export > club.json",
       .run = Export});
  commands->push_back(
      {.path = "import",
       .summary = "Set all that stands in a file of ztk export",
       .parameters = {{.parameter = Parameter::File,
                       .required = true,
                       .description =
                           "File that ztk export has written, or - for "
                           "the standard input"},
                      DryRunOption()},
       .note =
           "All of it is checked before anything is changed. Settings that\n"
           "do not stand in it are left alone.",
       .example = "ztk import club.json --dry-run",
       .run = Import});
}

void AddOthers(std::vector<Command> *commands) {
  commands->push_back(
      {.path = "apply",
       .summary = "Send all that is remembered for a model again",
       .parameters = {ProductOption("VRM-D6"), DryRunOption()},
       .note =
           "Only settings with a remembered value are sent. With another\n"
           "model, what is remembered for that one: --product VRM-B5 for\n"
           "USB output audio, --product VRM-K2 for the MIDI channel. Without\n"
           "it, the models whose settings are left out are named.",
       .example = "ztk apply",
       .run = ApplyAll});
  for (Command &command : AutoapplyCommands()) {
    commands->push_back(std::move(command));
  }
  AddMemory(commands);
  commands->push_back(
      {.path = "watch",
       .summary = "Show changes made by any program, until interrupted",
       .parameters = {},
       .note = "All programs of your session are heard. Ctrl-C ends it, with\n"
               "exit status 0.",
       .example = "ztk watch --json",
       .run = Watch});
  commands->push_back(
      {.path = "warning",
       .summary = "Show the text that explains why a routing is silent",
       .parameters = {{.parameter = Parameter::OfChannel,
                       .required = false,
                       .description = "Channel, 1 to 4; 1 when left out"},
                      {.parameter = Parameter::Language,
                       .required = false,
                       .description =
                           "As in German, de or 3; your own when left "
                           "out"}},
       .note = "Without a mixer the text is always in your own language.",
       .example = "ztk warning --language de",
       .run = ShowWarning});
  commands->push_back(
      {.path = "doctor",
       .summary = "Find out why something does not work, and what to type",
       .parameters = {{.parameter = Parameter::ReportFile,
                       .required = false,
                       .description =
                           "Also write a report for a maintainer to this "
                           "file: mixers, versions and findings, without "
                           "private data"}},
       .note =
           "Looks at the mixers, the settings files, the session's message\n"
           "bus and the warning texts. Nothing is changed; every mixer is\n"
           "asked one question. The exit status is 1 when something is\n"
           "wrong; a note alone does not count as wrong.",
       .example = "ztk doctor",
       .run = Diagnose});
  commands->push_back({.path = "versions",
                       .summary = "Show the versions of the installed pieces",
                       .parameters = {},
                       .note = "The installed pieces belong to the VRM-D6.",
                       .example = "ztk versions",
                       .run = ShowVersions});
}

std::vector<Command> MakeCommands() {
  std::vector<Command> commands;
  commands.push_back({.path = "status",
                      .summary = "Show the mixers and what is remembered",
                      .parameters = {},
                      .note = "Mixers are numbered in the order of the bus.",
                      .example = "ztk status",
                      .run = ShowStatus});
  for (const Setting *setting : AllSettings())
    AddSettingCommands(*setting, &commands);
  AddOthers(&commands);
  return commands;
}

std::vector<Group> MakeGroups() {
  std::vector<Group> groups;
  for (const Setting *setting : AllSettings()) {
    groups.push_back({.name = setting->name,
                      .summary = Summary(*setting),
                      .note = Note(*setting),
                      .example = std::string("ztk ") + setting->name + " set " +
                                 setting->example});
  }
  groups.push_back(AutoapplyGroup());
  return groups;
}

}  // namespace

const std::vector<Command> &Commands() {
  static const std::vector<Command> commands = MakeCommands();
  return commands;
}

const std::vector<Group> &Groups() {
  static const std::vector<Group> groups = MakeGroups();
  return groups;
}

bool IsFlag(Parameter parameter) { return parameter == Parameter::DryRun; }

const char *ParameterName(Parameter parameter) {
  switch (parameter) {
    case Parameter::Channel:
      return "N";
    case Parameter::Choice:
      return "CHOICE";
    case Parameter::High:
      return "HIGH";
    case Parameter::Source:
      return "SOURCE";
    case Parameter::Product:
      return "--product";
    case Parameter::OfChannel:
      return "--channel";
    case Parameter::DryRun:
      return "--dry-run";
    case Parameter::File:
      return "FILE";
    case Parameter::ReportFile:
      return "--report";
    case Parameter::Language:
      break;
  }
  return "--language";
}

const char *ParameterValueName(Parameter parameter) {
  switch (parameter) {
    case Parameter::Product:
      return "MODEL";
    case Parameter::OfChannel:
      return "N";
    case Parameter::Language:
      return "L";
    case Parameter::ReportFile:
      return "FILE";
    default:
      break;
  }
  return "";
}

}  // namespace ztk::program
