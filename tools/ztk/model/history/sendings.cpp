// SPDX-License-Identifier: MIT
#include "ztk/model/history/sendings.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include "cli/strings.h"
#include "ztk/model/history/state_file.h"

namespace ztk::model {

namespace {

// Each line of the file is one record:
//   SETTING CHANNEL INDEX WORD MILLISECONDS
// CHANNEL and INDEX count from 0, MILLISECONDS since 1970 in UTC. ztk status
// reads the file at each start, so it is simpler to read than JSON.
std::string Path() { return StateFolder() + "/ztk-sendings.txt"; }

struct SendingWord {
  Sending sending;
  const char *word;
};
constexpr SendingWord kWords[] = {{Sending::Complete, "complete"},
                                  {Sending::Incomplete, "incomplete"},
                                  {Sending::Replaced, "replaced"},
                                  {Sending::Reset, "reset"},
                                  {Sending::DefaultNotSent, "default"}};

std::int64_t Milliseconds(SystemTime time) {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             time.time_since_epoch())
      .count();
}

// Removes the first word of the line and returns it.
std::string_view TakeWord(std::string_view *line) {
  const std::size_t end = std::min(line->find(' '), line->size());
  const std::string_view word = line->substr(0, end);
  line->remove_prefix(std::min(end + 1, line->size()));
  return word;
}

template <typename Number>
bool TakeNumber(std::string_view *line, Number *number) {
  const std::string_view word = TakeWord(line);
  const char *const end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, *number);
  return !word.empty() && error == std::errc() && rest == end;
}

// None for a line that is damaged.
std::optional<SendingRecord> ParseRecord(std::string_view line) {
  SendingRecord record;
  const std::string_view name = TakeWord(&line);
  for (const Setting *setting : AllSettings()) {
    if (name == setting->name) record.last.setting = setting;
  }
  if (record.last.setting == nullptr ||
      !TakeNumber(&line, &record.last.channel) ||
      !TakeNumber(&line, &record.last.index)) {
    return std::nullopt;
  }
  const std::string_view word = TakeWord(&line);
  const auto *const known =
      std::find_if(std::begin(kWords), std::end(kWords),
                   [word](const SendingWord &one) { return word == one.word; });
  if (known == std::end(kWords)) return std::nullopt;
  record.last.sending = known->sending;
  if (!TakeNumber(&line, &record.milliseconds)) return std::nullopt;
  return record;
}

std::string LineOf(const SendingRecord &record) {
  std::string line = record.last.setting->name;
  line += " " + std::to_string(record.last.channel) + " " +
          std::to_string(record.last.index);
  for (const SendingWord &one : kWords) {
    if (one.sending == record.last.sending) line += std::string(" ") + one.word;
  }
  return line + " " + std::to_string(record.milliseconds) + "\n";
}

std::vector<SendingRecord> ReadRecords() {
  std::vector<SendingRecord> records;
  for (const std::string &line : cli::LinesOf(ReadStateFile(Path()).text)) {
    if (const auto record = ParseRecord(line)) records.push_back(*record);
  }
  return records;
}

// Requires the lock.
void Write(const std::vector<LastSending> &sendings, SystemTime started) {
  std::vector<SendingRecord> records = ReadRecords();
  for (const LastSending &one : sendings) {
    std::erase_if(records, [&one](const SendingRecord &record) {
      return record.last.setting == one.setting &&
             record.last.channel == one.channel;
    });
    if (one.sending == Sending::DefaultSent) continue;
    records.push_back({.last = one, .milliseconds = Milliseconds(started)});
  }
  std::string text;
  for (const SendingRecord &record : records) text += LineOf(record);
  // If it cannot be written, only a note is missing.
  ReplaceStateFile(Path(), text, false);
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
    Sending sending = SendingTo(one.accepted, made.reach.found());
    if (one.forgotten) {
      sending = sending == Sending::Complete ? Sending::DefaultSent
                                             : Sending::DefaultNotSent;
    }
    sendings.push_back({.setting = one.change.setting,
                        .channel = one.change.channel,
                        .index = one.change.index,
                        .sending = sending});
  }
  return sendings;
}

void RecordSending(const std::vector<LastSending> &sendings, SystemTime started,
                   const History *history) {
  if (sendings.empty()) return;
  if (history != nullptr) {
    if (history->state() == History::State::Usable) Write(sendings, started);
    return;
  }
  if (StateFolder().empty()) return;
  const StateLock lock(StateFolder());
  if (lock.result() == StateLock::Result::Held) Write(sendings, started);
}

RecordedSending::RecordedSending(std::vector<std::string> places)
    : places_(std::move(places)) {}

const std::vector<std::string> &RecordedSending::Places() const {
  if (!places_) places_ = MixerPlaces();
  return *places_;
}

const AttachTimes &RecordedSending::WhenAttached() const {
  if (attached_) return *attached_;
  std::vector<std::int64_t> times;
  for (const std::string &place : Places()) {
    const auto since = AttachedSince(place);
    times.push_back(since ? Milliseconds(*since) : 0);
  }
  attached_.emplace();
  if (times.empty()) return *attached_;
  const auto [first, last] = std::minmax_element(times.begin(), times.end());
  attached_ = {.first = *first, .last = *last};
  return *attached_;
}

Sending RecordedSending::Of(const Setting &setting, std::uint32_t channel,
                            std::optional<std::uint32_t> remembered) const {
  if (!records_) records_ = ReadRecords();
  for (const auto &[last, milliseconds] : *records_) {
    if (last.setting != &setting || last.channel != channel) continue;
    const bool isUnremembered = last.sending == Sending::Reset ||
                                last.sending == Sending::DefaultNotSent;
    if (isUnremembered && !remembered) {
      return WhenAttached().first > milliseconds ? Sending::Complete
                                                 : last.sending;
    }
    if (isUnremembered || last.index != remembered) continue;
    if (last.sending != Sending::Complete) return last.sending;
    return WhenAttached().last > milliseconds ? Sending::Earlier
                                              : Sending::Complete;
  }
  return Sending::Complete;
}

}  // namespace ztk::model
