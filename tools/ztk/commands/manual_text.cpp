// SPDX-License-Identifier: MIT
//
// The program as its manual and the completions tell it, from the table of
// commands.
#include <algorithm>

#include "cli/described.h"
#include "cli/strings.h"
#include "ztk/commands/command_table.h"
#include "ztk/commands/warning.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"
#include "ztk/system/facts.h"

namespace ztk::program {

namespace {

using cli::Fill;
using cli::Typed;
using cli::Value;
using Values = std::vector<Value>;

// The setting that a command is about; null for the other commands.
const Setting *SettingOf(const std::string &path) {
  for (const Setting *setting : AllSettings()) {
    if (path.starts_with(std::string(setting->name) + " ")) return setting;
  }
  return nullptr;
}

Values Channels(const Setting &setting, std::uint32_t count) {
  Values values;
  for (std::uint32_t channel = 0; channel < count; ++channel) {
    values.push_back({.word = std::to_string(channel + 1),
                      .meaning = PlaceName(setting, channel)});
  }
  return values;
}

// What is left of a text behind words that were typed of it before; the text
// itself when there are none, nothing when they are others.
std::string Rest(const std::string &text, const std::string &words) {
  if (words.empty()) return text;
  if (cli::LowerCase(text).rfind(cli::LowerCase(words) + " ", 0) != 0)
    return "";
  return text.substr(words.size() + 1);
}

std::uint32_t ChannelTyped(const Typed &before) {
  const auto word = before.find(ParameterName(Parameter::Channel));
  if (word == before.end()) return 0;
  return cli::ParseNumber(word->second).value_or(1) - 1;
}

// Texts say more than numbers; but a number is what can stand for a text that
// looks like an option.
Values Choices(const Setting &setting, const Typed &before,
               const std::string &begun) {
  const std::uint32_t channel = ChannelTyped(before);
  if (channel >= ChannelsToWalk(setting)) return {};
  const auto words = before.find(ParameterName(Parameter::Choice));
  const std::string known = words == before.end() ? "" : words->second;
  const bool number =
      !begun.empty() && begun.front() >= '0' && begun.front() <= '9';
  Values values;
  for (const Choice &choice : ChoicesOf(setting, setting.product, channel)) {
    const std::string position = std::to_string(choice.number);
    if (known.empty() && (number || choice.text.starts_with('-'))) {
      values.push_back({.word = position, .meaning = choice.text});
    }
    const std::string rest = Rest(choice.text, known);
    if (!rest.empty() && !number) {
      values.push_back({.word = rest, .meaning = "choice " + position});
    }
  }
  return values;
}

void AddValues(const Setting *setting, const ParameterUse &use,
               cli::Option *option) {
  switch (use.parameter) {
    case Parameter::Channel:
      option->values = [setting](const Typed & /*before*/,
                                 const std::string & /*begun*/) {
        return Channels(*setting, setting->channels);
      };
      break;
    case Parameter::Choice:
      option->values = [setting](const Typed &before,
                                 const std::string &begun) {
        return Choices(*setting, before, begun);
      };
      break;
    case Parameter::OfChannel:
      option->values = [](const Typed & /*before*/,
                          const std::string & /*begun*/) {
        return Channels(kInput, kWarningChannels);
      };
      break;
    case Parameter::Product:
      option->values = [](const Typed & /*before*/,
                          const std::string & /*begun*/) {
        Values values;
        for (const Product &product : Products()) {
          values.push_back({.word = product.name, .meaning = "model"});
        }
        return values;
      };
      break;
    case Parameter::Language:
      option->values = [](const Typed & /*before*/,
                          const std::string & /*begun*/) {
        Values values;
        for (const std::string &name : LanguageNames()) {
          values.push_back({.word = name, .meaning = "language"});
        }
        return values;
      };
      break;
    case Parameter::File:
    case Parameter::ReportFile:
      option->fill = Fill::File;
      return;
    case Parameter::DryRun:  // no word follows
    case Parameter::High:    // any number
    case Parameter::Source:
      return;
  }
  option->fill = Fill::Values;
}

cli::Command DescribedCommand(const Command &command) {
  cli::Command described{.path = command.path,
                         .summary = command.summary,
                         .options = {},
                         .note = command.note,
                         .examples = {command.example}};
  const Setting *setting = SettingOf(command.path);
  for (const ParameterUse &use : command.parameters) {
    cli::Option option{.names = ParameterName(use.parameter),
                       .value = ParameterValueName(use.parameter),
                       .description = use.description,
                       .required = use.required,
                       .repeats = use.parameter == Parameter::Choice};
    AddValues(setting, use, &option);
    described.options.push_back(std::move(option));
  }
  return described;
}

cli::Section ExitStatus() {
  cli::Section section{.title = "EXIT STATUS", .text = "", .terms = {}};
  for (const ExitMeaning &meaning : ExitMeanings()) {
    section.terms.push_back(
        {.name = std::to_string(static_cast<int>(meaning.exit)),
         .meaning = meaning.text});
  }
  return section;
}

cli::Section JsonOutput() {
  cli::Section section{
      .title = "JSON",
      .text =
          "With --json every command writes one object on one line, also "
          "when it fails;\n"
          "watch writes one for each change, as it comes.\n"
          "Each has \"schema\", \"command\" and \"ok\".\n"
          "The first is a number that is raised whenever a field is\n"
          "removed or changes its meaning.\n"
          "When \"ok\" is false, \"error\" holds a \"code\" and a "
          "\"message\".\n"
          "All fields are in ztk.schema.json, which is installed with the\n"
          "documentation.\n"
          "\n"
          "The codes are:",
      .terms = {}};
  for (const ExitMeaning &meaning : ExitMeanings()) {
    if (meaning.exit == ExitCode::Done) continue;
    section.terms.push_back(
        {.name = meaning.word,
         .meaning =
             "exit status " + std::to_string(static_cast<int>(meaning.exit))});
  }
  return section;
}

cli::Section Environment() {
  cli::Section section{.title = "ENVIRONMENT", .text = "", .terms = {}};
  for (const VariableFact &fact : VariableFacts()) {
    section.terms.push_back({.name = fact.names, .meaning = fact.meaning});
  }
  section.terms.push_back(
      {.name = "NO_COLOR, CLICOLOR, TERM",
       .meaning = "Nothing stands out in the terminal if NO_COLOR is set "
                  "and not empty,\nif CLICOLOR is 0, or if TERM is "
                  "dumb.\nWhat goes to a file or a pipe is always "
                  "plain."});
  return section;
}

cli::Section Files() {
  cli::Section section{.title = "FILES", .text = FilesFact(), .terms = {}};
  for (const Setting *setting : AllSettings()) {
    const std::string model = ModelName(*setting);
    const std::string name = std::string(SettingsFolderFact()) + "com.tarvix." +
                             model + "autosetup.plist";
    const auto known = std::find_if(
        section.terms.begin(), section.terms.end(),
        [&name](const cli::Term &term) { return term.name == name; });
    if (known == section.terms.end()) {
      section.terms.push_back({.name = name,
                               .meaning = "What is remembered for the " +
                                          model + ": " + setting->name});
    } else {
      known->meaning += std::string(", ") + setting->name;
    }
  }
  section.terms.push_back(
      {.name = "tarvix/ztk-history.jsonl",
       .meaning = "What ztk has changed, step by step, for ztk undo"});
  section.terms.push_back({.name = "tarvix/ztk.lock",
                           .meaning = "Held by the ztk that changes something; "
                                      "others wait for it"});
  return section;
}

}  // namespace

}  // namespace ztk::program

ztk::cli::Program ztk::cli::Described() {
  using namespace ztk::program;
  Program program{
      .name = "ztk",
      .summary = "settings of the USB DJ mixer VRM-D6",
      .about = kAbout,
      .options = {},
      .groups = {},
      .commands = {},
      .sections = {ExitStatus(), JsonOutput(), Environment(), Files()},
      .seeAlso = {"ztk-virtual-mixer(1)", "ZTKFunc(3)"}};
  for (const OptionForAll &option :
       {kHelpOption, kJsonOption, kVersionOption}) {
    program.options.push_back({.names = option.names,
                               .value = "",
                               .description = option.description});
  }
  for (const program::Group &group : Groups()) {
    program.groups.push_back(
        {.name = group.name,
         .summary = group.summary,
         .note = group.note,
         .isSetting = std::any_of(AllSettings().begin(), AllSettings().end(),
                                  [&group](const Setting *setting) {
                                    return group.name == setting->name;
                                  })});
  }
  for (const program::Command &command : Commands()) {
    program.commands.push_back(DescribedCommand(command));
  }
  return program;
}
