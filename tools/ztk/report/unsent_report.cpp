// SPDX-License-Identifier: MIT
#include "ztk/report/unsent_report.h"

#include "cli/strings.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/places.h"

namespace ztk::program {

namespace {

// The commands that send the values, each once.
std::string Commands(const std::vector<StoredValue> &values) {
  std::vector<std::string> commands;
  commands.reserve(values.size());
  for (const StoredValue &value : values) {
    commands.push_back(
        ApplyCommand(*value.setting, value.channel, value.index));
  }
  return EachOnce(commands);
}

std::string LineOf(const char *what, const std::vector<StoredValue> &values) {
  if (values.empty()) return "";
  std::vector<std::string> names;
  names.reserve(values.size());
  for (const StoredValue &value : values) {
    names.push_back(PlaceName(*value.setting, value.channel));
  }
  return what + cli::Listed(names) + "\n";
}

}  // namespace

Unsent FindUnsent(const std::vector<StoredValue> &remembered,
                  const RecordedSending &recorded) {
  std::vector<StoredValue> incomplete;
  std::vector<StoredValue> replaced;
  std::vector<StoredValue> all;
  for (const StoredValue &value : remembered) {
    const Sending sending =
        recorded.Of(*value.setting, value.channel, value.index);
    if (sending == Sending::Complete) continue;
    all.push_back(value);
    (sending == Sending::Replaced ? replaced : incomplete).push_back(value);
  }
  return {.text = LineOf("ztk could not send to every mixer: ", incomplete) +
                  LineOf("ztk has sent another value since: ", replaced),
          .command = Commands(all)};
}

std::string WithCommand(const Unsent &unsent) {
  if (unsent.text.empty()) return "";
  return unsent.text + "To send what is remembered, run: " + unsent.command +
         "\n";
}

void AddUnsent(const std::vector<StoredValue> &remembered, Report *report) {
  if (remembered.empty()) return;
  if (MixerPlaces().empty()) {
    report->text += "No mixer is attached; when one is attached, run: " +
                    Commands(remembered) + "\n";
    return;
  }
  report->text += WithCommand(FindUnsent(remembered, RecordedSending()));
}

Json UnsentField(Sending sending) {
  switch (sending) {
    case Sending::Incomplete:
      return "incomplete";
    case Sending::Replaced:
      return "replaced";
    case Sending::Complete:
      break;
  }
  return nullptr;
}

}  // namespace ztk::program
