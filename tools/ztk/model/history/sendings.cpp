// SPDX-License-Identifier: MIT
#include "ztk/model/history/sendings.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ztk::model {

namespace {

// The words in the file, which has the form of the history: a step with one
// change for each value.
constexpr char kComplete[] = "complete";
constexpr char kIncomplete[] = "incomplete";
constexpr char kReplaced[] = "replaced";

std::string Path() { return StateFolder() + "/ztk-sendings.jsonl"; }

std::vector<Step> ReadSteps() {
  return ParseHistory(ReadStateFile(Path()).text).steps;
}

bool IsAbout(const Step &step, const Setting &setting, std::uint32_t channel) {
  const PastChange &change = step.changes.front();
  return change.setting == &setting && change.channel == channel;
}

const char *Word(Sending sending) {
  switch (sending) {
    case Sending::Incomplete:
      return kIncomplete;
    case Sending::Replaced:
      return kReplaced;
    case Sending::Complete:
    case Sending::Earlier:
    case Sending::Forgotten:
      break;
  }
  return kComplete;
}

std::int64_t Milliseconds(SystemTime time) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             time.time_since_epoch())
      .count();
}

std::vector<Step> Updated(std::vector<Step> steps,
                          const std::vector<LastSending> &sendings,
                          SystemTime started) {
  for (const LastSending &one : sendings) {
    std::erase_if(steps, [&one](const Step &step) {
      return IsAbout(step, *one.setting, one.channel);
    });
    if (one.sending == Sending::Forgotten) continue;
    steps.push_back({.command = Word(one.sending),
                     .changes = {{.setting = one.setting,
                                  .channel = one.channel,
                                  .before = std::nullopt,
                                  .after = one.index}},
                     .time = Milliseconds(started)});
  }
  return steps;
}

// Returns whether the file has to be written, and its new text.
bool Differs(const std::vector<LastSending> &sendings, SystemTime started,
             std::string *text) {
  const std::vector<Step> steps = ReadSteps();
  *text = HistoryText(Updated(steps, sendings, started));
  return *text != HistoryText(steps);
}

// Requires the lock.
void Write(const std::vector<LastSending> &sendings, SystemTime started) {
  std::string text;
  // If it cannot be written, only a note is missing.
  if (Differs(sendings, started, &text)) ReplaceStateFile(Path(), text, false);
}

}  // namespace

Sending SendingTo(std::size_t accepted, std::size_t mixers) {
  return mixers > 0 && accepted == mixers ? Sending::Complete
                                          : Sending::Incomplete;
}

std::vector<LastSending> SendingsOf(const MadeChanges &made) {
  std::vector<LastSending> sendings;
  for (const MadeChange &one : made.changes) {
    if (!one.remembered && !one.forgotten) continue;
    sendings.push_back(
        {.setting = one.change.setting,
         .channel = one.change.channel,
         .index = one.change.index,
         .sending = one.forgotten
                        ? Sending::Forgotten
                        : SendingTo(one.accepted, made.reach.found())});
  }
  return sendings;
}

void RecordSending(const std::vector<LastSending> &sendings, SystemTime started,
                   const History *history) {
  if (history != nullptr) {
    if (history->state() == History::State::Usable) Write(sendings, started);
    return;
  }
  std::string text;
  if (StateFolder().empty() || !Differs(sendings, started, &text)) return;
  const StateLock lock(StateFolder());
  if (lock.result() == StateLock::Result::Held) Write(sendings, started);
}

RecordedSending::RecordedSending(std::vector<std::string> places)
    : places_(std::move(places)) {}

const std::vector<std::string> &RecordedSending::Places() const {
  if (!places_) places_ = MixerPlaces();
  return *places_;
}

const std::vector<Step> &RecordedSending::Steps() const {
  if (!steps_) steps_ = ReadSteps();
  return *steps_;
}

bool RecordedSending::IsBeforeAMixer(const Step &step) const {
  if (!step.time) return false;
  return std::any_of(Places().begin(), Places().end(),
                     [&step](const std::string &place) {
                       const auto since = AttachedSince(place);
                       return since && Milliseconds(*since) > *step.time;
                     });
}

Sending RecordedSending::Of(const Setting &setting, std::uint32_t channel,
                            std::uint32_t index) const {
  for (const Step &step : Steps()) {
    if (!IsAbout(step, setting, channel)) continue;
    if (step.changes.front().after != index) continue;
    if (step.command == kReplaced) return Sending::Replaced;
    if (step.command == kIncomplete) return Sending::Incomplete;
    return IsBeforeAMixer(step) ? Sending::Earlier : Sending::Complete;
  }
  return Sending::Complete;
}

}  // namespace ztk::model
