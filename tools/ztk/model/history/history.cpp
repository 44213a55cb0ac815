// SPDX-License-Identifier: MIT
#include "ztk/model/history/history.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "cli/strings.h"
#include "ztk/model/history/sendings.h"
#include "ztk/model/remembered.h"

namespace ztk::model {

namespace {

using Json = nlohmann::ordered_json;

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
  for (const Setting *setting : AllSettings()) {
    if (name != setting->name) continue;
    const Json afterwards = json.value("after", Json(false));
    const auto after = Number(afterwards);
    const std::uint32_t channel =
        setting->channels == 0
            ? 0
            : Number(json.value("channel", Json())).value_or(0) - 1;
    if (!after && !afterwards.is_null()) return std::nullopt;
    if (channel >= ChannelsToWalk(*setting)) return std::nullopt;
    return PastChange{.setting = setting,
                      .channel = channel,
                      .before = Number(json.value("before", Json())),
                      .after = after};
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

Json NumberOrNull(const std::optional<std::uint32_t> &number) {
  return number ? Json(static_cast<std::int32_t>(*number)) : Json();
}

std::string LineOf(const Step &step) {
  Json json{{"command", step.command}, {"changes", Json::array()}};
  for (const PastChange &change : step.changes) {
    json["changes"].push_back(
        {{"setting", change.setting->name},
         {"channel",
          change.setting->channels == 0 ? Json() : Json(change.channel + 1)},
         {"before", NumberOrNull(change.before)},
         {"after", NumberOrNull(change.after)}});
  }
  return json.dump() + "\n";
}

}  // namespace

ParsedHistory ParseHistory(const std::string &text) {
  ParsedHistory parsed;
  for (const std::string &line : cli::LinesOf(text)) {
    if (auto step = ParseStep(line)) {
      parsed.steps.push_back(std::move(*step));
    } else {
      parsed.damaged = true;
    }
  }
  return parsed;
}

std::string HistoryText(const std::vector<Step> &steps) {
  std::string text;
  for (const Step &step : steps) text += LineOf(step);
  return text;
}

History::History() : path_(StateFolder() + kFile), lock_(StateFolder()) {
  switch (lock_.result()) {
    case StateLock::Result::Held:
      Load();
      return;
    case StateLock::Result::Busy:
      state_ = State::Busy;
      break;
    case StateLock::Result::Unavailable:
      break;
  }
  reason_ = lock_.reason();
}

// A file that exists and cannot be read is left alone: it is neither empty nor
// damaged, and may be readable the next time.
void History::Load() {
  const auto [text, reason] = ReadStateFile(path_);
  if (!reason.empty()) {
    reason_ = reason;
    return;
  }
  state_ = State::Usable;
  ParsedHistory parsed = ParseHistory(text);
  steps_ = std::move(parsed.steps);
  damaged_ = parsed.damaged;
}

void History::Add(Step step) {
  steps_.push_back(std::move(step));
  if (steps_.size() <= kMostSteps) return;
  steps_.erase(steps_.begin(),
               steps_.end() - static_cast<std::ptrdiff_t>(kMostSteps));
}

bool History::Save() {
  const bool saved = ReplaceStateFile(path_, HistoryText(steps_), damaged_);
  // The damaged file is kept under another name.
  if (saved) damaged_ = false;
  return saved;
}

RecordedStep::RecordedStep(Step step, History *history) : history_(history) {
  if (history->state() != History::State::Usable) {
    notRecorded_ = history->reason();
  } else if (!step.changes.empty()) {
    history->Add(std::move(step));
    recorded_ = history->Save();
    if (!recorded_) {
      notRecorded_ = "nothing can be written to " + StateFolder();
    }
  }
}

void RecordedStep::TakeBack() const {
  if (!recorded_) return;
  history_->DropLast();
  // If this fails, the file keeps a step that did not happen, which undo
  // recognises.
  static_cast<void>(history_->Save());
}

MadeStep MakeStep(const std::string &command,
                  const std::vector<Change> &changes, History *history) {
  Step step{.command = command, .changes = {}};
  for (const Change &change : changes) {
    const auto before = Remembered(*change.setting, change.channel);
    const auto after =
        change.forgets ? std::nullopt : std::optional(change.index);
    if (before == after) continue;
    step.changes.push_back({.setting = change.setting,
                            .channel = change.channel,
                            .before = before,
                            .after = after});
  }
  const RecordedStep recorded(std::move(step), history);
  MadeStep result{.made = MakeChanges(changes),
                  .notRecorded = recorded.notRecorded()};
  const bool kept = std::any_of(
      result.made.changes.begin(), result.made.changes.end(),
      [](const MadeChange &one) { return one.remembered || one.forgotten; });
  if (!kept) recorded.TakeBack();
  RecordSending(SendingsOf(result.made), result.made.reach.started, history);
  return result;
}

}  // namespace ztk::model
