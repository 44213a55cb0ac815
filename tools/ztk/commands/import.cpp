// SPDX-License-Identifier: MIT
//
// Restores settings from a file that `ztk export` has written: all or nothing.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

#include "cli/strings.h"
#include "ztk/commands/exported_file.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/change.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/history.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

namespace {

constexpr std::size_t kLargest = std::size_t{1} << 20;  // bytes

// What the answer in JSON has besides, so that it can be read back too.
constexpr const char *kEnvelope[] = {"schema", "command", "ok", "warnings"};

// What is wrong with a file, one line each.
class Errors {
 public:
  void Add(const std::string &place, const std::string &what) {
    lines_.push_back(place.empty() ? what : place + ": " + what);
  }
  const std::vector<std::string> &lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

std::string Contents(const std::string &file) {
  std::string text;
  const auto take = [&text](std::istream &stream) {
    char byte = 0;
    while (text.size() <= kLargest && stream.get(byte)) text += byte;
  };
  if (file == "-") {
    take(std::cin);
  } else {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    // Opening a folder succeeds; reading it does not.
    if (stream) take(stream);
    if (!stream.is_open() || stream.bad() || (text.empty() && errno != 0)) {
      throw Failure(ExitCode::Usage, "cannot read " + cli::Quoted(file) + ": " +
                                         std::strerror(errno) +
                                         "; accepted: a file that ztk export "
                                         "has written, or - for the input");
    }
  }
  if (text.size() > kLargest) {
    throw Failure(ExitCode::Usage,
                  cli::Quoted(file) + " is too large to hold settings");
  }
  return text;
}

// A name that stands twice would silently win over the other one.
Json Parse(const std::string &text, Errors *errors) {
  std::vector<std::set<std::string>> names;
  const auto watch = [&](int /*depth*/, Json::parse_event_t event,
                         Json &parsed) {
    if (event == Json::parse_event_t::object_start) names.emplace_back();
    if (event == Json::parse_event_t::object_end) names.pop_back();
    if (event == Json::parse_event_t::key &&
        !names.back().insert(parsed.get<std::string>()).second) {
      errors->Add("", cli::Quoted(parsed.get<std::string>()) + " stands twice");
    }
    return true;
  };
  try {
    return Json::parse(text, watch);
  } catch (const Json::parse_error &error) {
    errors->Add("", "this is not JSON, at byte " + std::to_string(error.byte));
    return {};
  }
}

std::vector<std::string> ModelNames() {
  std::vector<std::string> names;
  for (const Family *family : Families()) {
    const std::string name = ModelName(*family);
    if (std::find(names.begin(), names.end(), name) == names.end()) {
      names.push_back(name);
    }
  }
  return names;
}

std::vector<std::string> SettingNames(const std::string &model) {
  std::vector<std::string> names;
  for (const Family *family : Families()) {
    if (ModelName(*family) == model) names.emplace_back(family->name);
  }
  return names;
}

// The channel that a name in the file means, from 0.
std::optional<std::uint32_t> ChannelNamed(const Family &family,
                                          const std::string &name) {
  for (std::uint32_t channel = 0; channel < family.channels; ++channel) {
    if (name == std::to_string(channel + 1)) return channel;
  }
  return std::nullopt;
}

// Reads what a file says and collects what is wrong with it.
class Reader {
 public:
  std::vector<Change> Read(const Json &json) {
    if (!json.is_object() || !json.contains("settings")) {
      errors.Add("",
                 "there are no settings in it; accepted: what ztk export "
                 "writes");
      return {};
    }
    for (const auto &[name, value] : json.items()) ReadHead(name, value);
    if (!json.contains("version")) errors.Add("version", "it is missing");
    if (changes_.empty() && errors.lines().empty()) {
      errors.Add("settings", "there is none");
    }
    return changes_;
  }

  Errors errors;

 private:
  void ReadHead(const std::string &name, const Json &value) {
    if (name == "version") {
      if (value != kExportVersion) {
        errors.Add(name, "accepted: " + std::to_string(kExportVersion));
      }
    } else if (name == "settings") {
      if (!value.is_object()) return errors.Add(name, "accepted: an object");
      for (const auto &[model, settings] : value.items()) {
        ReadModel(model, settings);
      }
    } else if (std::find(std::begin(kEnvelope), std::end(kEnvelope), name) ==
               std::end(kEnvelope)) {
      errors.Add("", "no entry " + cli::Quoted(name) +
                         "; accepted: version, settings");
    }
  }

  void ReadModel(const std::string &model, const Json &settings) {
    const std::string place = "settings." + cli::OneLine(model);
    const std::vector<std::string> names = SettingNames(model);
    if (names.empty()) {
      return errors.Add("settings",
                        "no model " + cli::Quoted(model) +
                            "; accepted: " + cli::Listed(ModelNames()));
    }
    if (!settings.is_object()) return errors.Add(place, "accepted: an object");
    for (const auto &[name, value] : settings.items()) {
      const Family *found = nullptr;
      for (const Family *family : Families()) {
        if (name == family->name && ModelName(*family) == model) {
          found = family;
        }
      }
      if (found == nullptr) {
        errors.Add(place, "no setting " + cli::Quoted(name) +
                              "; accepted: " + cli::Listed(names));
      } else {
        ReadSetting(*found, place + "." + name, value);
      }
    }
  }

  void ReadSetting(const Family &family, const std::string &place,
                   const Json &value) {
    if (family.channels == 0) return ReadChoice(family, 0, place, value);
    const std::string accepted =
        "accepted: 1 to " + std::to_string(family.channels);
    if (!value.is_object()) {
      return errors.Add(place, "an object of channels is needed; " + accepted);
    }
    for (const auto &[name, choice] : value.items()) {
      const auto channel = ChannelNamed(family, name);
      if (channel) {
        ReadChoice(family, *channel, place + "." + name, choice);
      } else {
        errors.Add(place, "no channel " + cli::Quoted(name) + "; " + accepted);
      }
    }
  }

  void ReadChoice(const Family &family, std::uint32_t channel,
                  const std::string &place, const Json &value) {
    const std::vector<Choice> choices =
        ChoicesOf(family, family.product, channel);
    const std::string accepted = "; accepted: " + Described(choices);
    if (!value.is_string()) {
      return errors.Add(place, "the text of a choice is needed" + accepted);
    }
    const auto words = value.get<std::string>();
    const Match match = FindChoice(choices, words);
    if (!match.choice) {
      return errors.Add(place, "no choice " + cli::Quoted(words) + accepted);
    }
    changes_.push_back({.family = &family,
                        .product = family.product,
                        .channel = channel,
                        .index = match.choice->number - 1});
  }

  std::vector<Change> changes_;
};

Report Refused(const std::string &file, const Errors &errors) {
  Report report;
  report.fields["errors"] = Json::array();
  for (const std::string &line : errors.lines()) {
    report.errors.push_back(cli::OneLine(file + ": " + line));
    report.fields["errors"].push_back(line);
  }
  const std::size_t count = errors.lines().size();
  report.problem = {.exit = ExitCode::Usage,
                    .message = "nothing was changed: " + std::to_string(count) +
                               (count == 1 ? " error" : " errors") + " in " +
                               cli::Quoted(file)};
  return report;
}

void AddImported(const MadeChange &one, const Reach &reach, Report *report) {
  const Change &change = one.change;
  const Family &family = *change.family;
  Json fields{{"setting", family.name}, {"model", ModelName(family)}};
  AddValueFields(family, change.channel, change.index, &fields);
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  report->text += PlaceName(family, change.channel) + ": " +
                  DescribedValue(family, change.channel, change.index) + ", " +
                  Described(one, reach) + "\n" + NoteOnSendingAgain(change);
}

}  // namespace

Report Import(const Arguments &arguments) {
  const std::string *file = arguments.Find(Parameter::File);
  if (file == nullptr) {
    throw Failure(ExitCode::Usage,
                  "FILE is missing: one that ztk export has written, or - for "
                  "the input; see ztk import --help");
  }
  const std::string text = Contents(*file);
  Reader reader;
  const Json json = Parse(text, &reader.errors);
  std::vector<Change> changes;
  if (reader.errors.lines().empty()) changes = reader.Read(json);
  if (!reader.errors.lines().empty()) return Refused(*file, reader.errors);

  Report report;
  if (arguments.Has(Parameter::DryRun)) {
    Plan plan;
    for (const Change &change : changes) plan.AddChange(change);
    plan.AddQuestion();
    plan.Tell(&report);
    return report;
  }
  report.fields["settings"] = Json::array();
  const MadeChanges made = MakeStep("import", changes, &report);
  for (const MadeChange &one : made.changes) {
    AddImported(one, made.reach, &report);
  }
  AddTruth(made, "what stands in it", "ztk import " + *file, &report);
  ExplainWarnings(made, &report);
  return report;
}

}  // namespace ztk::program
