// SPDX-License-Identifier: MIT
#include "ztk/report/unsent_report.h"

#include "cli/strings.h"
#include "ztk/report/setting_report.h"

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
  return Joined(commands);
}

struct Reason {
  Sending sending;
  const char *words;
};
constexpr Reason kReasons[] = {
    {Sending::Incomplete, "Not sent, or not to every mixer: "},
    {Sending::Replaced, "ztk has sent another value since: "},
    {Sending::Earlier, "Sent before a mixer was attached: "}};

}  // namespace

Unsent FindUnsent(const std::vector<StoredValue> &remembered,
                  const RecordedSending &recorded) {
  Unsent unsent;
  std::vector<StoredValue> all;
  for (const Reason &reason : kReasons) {
    std::vector<std::string> names;
    for (const StoredValue &value : remembered) {
      if (recorded.Of(*value.setting, value.channel, value.index) !=
          reason.sending) {
        continue;
      }
      names.push_back(PlaceName(*value.setting, value.channel));
      all.push_back(value);
    }
    if (names.empty()) continue;
    unsent.lines.push_back(reason.words + cli::Listed(names));
  }
  unsent.command = Commands(all);
  return unsent;
}

std::string TextOf(const Unsent &unsent) {
  std::string text;
  for (const std::string &line : unsent.lines) text += line + "\n";
  return text;
}

std::string WithCommand(const Unsent &unsent) {
  if (unsent.lines.empty()) return "";
  return TextOf(unsent) + "To send what is remembered, run: " + unsent.command +
         "\n";
}

void AddUnsent(const std::vector<StoredValue> &remembered,
               const RecordedSending &recorded, Report *report) {
  if (remembered.empty()) return;
  if (!recorded.AnyAttached()) {
    report->text += "No mixer is attached; when one is attached, run: " +
                    Commands(remembered) + "\n";
    return;
  }
  report->text += WithCommand(FindUnsent(remembered, recorded));
}

Json UnsentField(Sending sending) {
  switch (sending) {
    case Sending::Earlier:
      return "earlier";
    case Sending::Incomplete:
      return "incomplete";
    case Sending::Replaced:
      return "replaced";
    case Sending::Complete:
    case Sending::Forgotten:
      break;
  }
  return nullptr;
}

}  // namespace ztk::program
