// SPDX-License-Identifier: MIT
#include "ztk/model/history.h"

#include <algorithm>
#include <sstream>

#include "ztk/model/settings_snapshot.h"
#include "ztk/report.h"

namespace ztk::program {

namespace {

constexpr std::size_t kMostSteps = 100;
constexpr char kFile[] = "/ztk-history.jsonl";

std::optional<std::uint32_t> Number(const Json &json) {
  if (!json.is_number_integer()) return std::nullopt;
  return static_cast<std::uint32_t>(json.get<std::int64_t>());
}

std::optional<PastChange> ParseChange(const Json &json) {
  if (!json.is_object()) return std::nullopt;
  const std::string name = json.value("setting", Json()).is_string()
                               ? json["setting"].get<std::string>()
                               : "";
  for (const Family *family : Families()) {
    if (name != family->name) continue;
    const auto after = Number(json.value("after", Json()));
    const std::uint32_t channel =
        family->channels == 0
            ? 0
            : Number(json.value("channel", Json())).value_or(0) - 1;
    if (!after || channel >= ChannelsToWalk(*family)) return std::nullopt;
    return PastChange{.family = family,
                      .channel = channel,
                      .before = Number(json.value("before", Json())),
                      .after = *after};
  }
  return std::nullopt;
}

std::optional<Step> ParseStep(const std::string &line) {
  const Json json = Json::parse(line, nullptr, false);
  if (!json.is_object()) return std::nullopt;
  const Json changes = json.value("changes", Json());
  const Json command = json.value("command", Json());
  if (!changes.is_array() || !command.is_string()) return std::nullopt;
  Step step{.command = command.get<std::string>(), .changes = {}};
  for (const Json &one : changes) {
    const auto change = ParseChange(one);
    if (!change) return std::nullopt;
    step.changes.push_back(*change);
  }
  if (step.changes.empty()) return std::nullopt;
  return step;
}

std::string LineOf(const Step &step) {
  Json json{{"command", step.command}, {"changes", Json::array()}};
  for (const PastChange &change : step.changes) {
    json["changes"].push_back(
        {{"setting", change.family->name},
         {"channel", ChannelField(*change.family, change.channel)},
         {"before", change.before
                        ? Json(static_cast<std::int32_t>(*change.before))
                        : Json()},
         {"after", static_cast<std::int32_t>(change.after)}});
  }
  return json.dump() + "\n";
}

void WarnOfNoUndo(const std::string &reason, Report *report) {
  report->warnings.push_back("ztk undo will not know of this: " + reason);
}

}  // namespace

History::History() : path_(StateFolder() + kFile), lock_(StateFolder()) {
  if (usable()) Load();
}

void History::Load() {
  const std::string text = ReadStateFile(path_);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (auto step = ParseStep(line)) {
      steps_.push_back(std::move(*step));
    } else {
      damaged_ = true;
    }
  }
}

void History::Add(Step step) {
  steps_.push_back(std::move(step));
  if (steps_.size() <= kMostSteps) return;
  steps_.erase(steps_.begin(),
               steps_.end() - static_cast<std::ptrdiff_t>(kMostSteps));
}

bool History::Save() {
  std::string text;
  for (const Step &step : steps_) text += LineOf(step);
  const bool saved = ReplaceStateFile(path_, text, damaged_);
  // What was damaged stands beside it now.
  if (saved) damaged_ = false;
  return saved;
}

MadeChanges MakeStep(const std::string &command,
                     const std::vector<Change> &changes, Report *report) {
  History history;
  Step step{.command = command, .changes = {}};
  for (const Change &change : changes) {
    const auto before = Remembered(*change.family, change.channel);
    if (before == change.index) continue;
    step.changes.push_back({.family = change.family,
                            .channel = change.channel,
                            .before = before,
                            .after = change.index});
  }
  // Before the change: what ends this program meanwhile leaves a step too many,
  // which is noticed, and not one too few.
  bool recorded = false;
  if (!history.usable()) {
    WarnOfNoUndo(history.reason(), report);
  } else if (!step.changes.empty()) {
    history.Add(step);
    recorded = history.Save();
    if (!recorded) {
      WarnOfNoUndo("nothing can be written to " + StateFolder(), report);
    }
  }
  MadeChanges made = MakeChanges(changes);
  const bool kept =
      std::any_of(made.changes.begin(), made.changes.end(),
                  [](const MadeChange &one) { return one.remembered; });
  if (recorded && !kept) {
    history.DropLast();
    history.Save();
  }
  return made;
}

}  // namespace ztk::program
