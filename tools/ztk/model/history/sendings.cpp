// SPDX-License-Identifier: MIT
#include "ztk/model/history/sendings.h"

#include <string>

namespace ztk::model {

namespace {

// The words in the file, which has the form of the history: a step with one
// change for each value.
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

std::vector<Step> Updated(std::vector<Step> steps,
                          const std::vector<LastSending> &sendings) {
  for (const LastSending &one : sendings) {
    std::erase_if(steps, [&one](const Step &step) {
      return IsAbout(step, *one.setting, one.channel);
    });
    if (one.sending == Sending::Complete) continue;
    steps.push_back(
        {.command = one.sending == Sending::Replaced ? kReplaced : kIncomplete,
         .changes = {{.setting = one.setting,
                      .channel = one.channel,
                      .before = std::nullopt,
                      .after = one.index}}});
  }
  return steps;
}

// Returns whether the file has to be written, and its new text.
bool Differs(const std::vector<LastSending> &sendings, std::string *text) {
  const std::vector<Step> steps = ReadSteps();
  *text = HistoryText(Updated(steps, sendings));
  return *text != HistoryText(steps);
}

// Requires the lock.
void Write(const std::vector<LastSending> &sendings) {
  std::string text;
  // If it cannot be written, only a note is missing.
  if (Differs(sendings, &text)) ReplaceStateFile(Path(), text, false);
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
                        ? Sending::Complete
                        : SendingTo(one.accepted, made.reach.found())});
  }
  return sendings;
}

void RecordSending(const std::vector<LastSending> &sendings,
                   const History *history) {
  if (history != nullptr) {
    if (history->state() == History::State::Usable) Write(sendings);
    return;
  }
  std::string text;
  if (StateFolder().empty() || !Differs(sendings, &text)) return;
  const StateLock lock(StateFolder());
  if (lock.result() == StateLock::Result::Held) Write(sendings);
}

Sending RecordedSending::Of(const Setting &setting, std::uint32_t channel,
                            std::uint32_t index) const {
  if (!steps_) steps_ = ReadSteps();
  for (const Step &step : *steps_) {
    if (!IsAbout(step, setting, channel)) continue;
    if (step.changes.front().after != index) continue;
    return step.command == kReplaced ? Sending::Replaced : Sending::Incomplete;
  }
  return Sending::Complete;
}

}  // namespace ztk::model
