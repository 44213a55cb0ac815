// SPDX-License-Identifier: MIT
#include "ztk/report/unsent_report.h"

#include "cli/strings.h"
#include "ztk/model/remembered.h"
#include "ztk/report/change_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// The command that sends the choice; empty if nothing has to be sent.
std::string CommandFor(const RememberedChoice &choice, Sending sending) {
  if (sending == Sending::Reset) return "";
  if (choice.index) {
    return ApplyCommand(*choice.setting, choice.channel, *choice.index);
  }
  return DefaultCommand(
      {.setting = choice.setting,
       .product = choice.setting->product,
       .channel = choice.channel,
       .index = CurrentIndex(*choice.setting, choice.setting->product,
                             choice.channel)
                    .value_or(0)});
}

struct Reason {
  Sending sending;
  const char *words;
};
// A reset comes first, because nothing has to be sent after it.
constexpr Reason kReasons[] = {
    {Sending::Reset, "Reset, but the mixer may still have it: "},
    {Sending::Incomplete, "Not sent, or not to every mixer: "},
    {Sending::Replaced, "ztk has sent another value since: "},
    {Sending::Earlier, "A mixer was plugged in after this was sent: "},
    {Sending::DefaultNotSent,
     "Default that was not sent, or not to every mixer: "}};

}  // namespace

std::vector<RememberedChoice> RememberedChoicesOf(
    const Setting &setting, const std::vector<std::uint32_t> &channels) {
  SettingsSnapshot settings;
  std::vector<RememberedChoice> choices;
  for (const std::uint32_t channel : channels) {
    choices.push_back({.setting = &setting,
                       .channel = channel,
                       .index = settings.Remembered(setting, channel)});
  }
  return choices;
}

std::vector<RememberedChoice> AllRememberedChoices() {
  std::vector<RememberedChoice> choices;
  for (const Setting *setting : AllSettings()) {
    const auto some = RememberedChoicesOf(*setting, AllChannels(*setting));
    choices.insert(choices.end(), some.begin(), some.end());
  }
  return choices;
}

std::string ApplyCommands(const std::vector<RememberedChoice> &choices) {
  std::vector<std::string> commands;
  for (const auto &[setting, channel, index] : choices) {
    if (index) commands.push_back(ApplyCommand(*setting, channel, *index));
  }
  return Joined(commands);
}

Unsent FindUnsent(const std::vector<RememberedChoice> &choices,
                  const RecordedSending &recorded) {
  Unsent unsent;
  std::vector<std::string> all;
  for (const Reason &reason : kReasons) {
    std::vector<std::string> names;
    std::vector<std::string> commands;
    for (const RememberedChoice &choice : choices) {
      const auto &[setting, channel, index] = choice;
      if (recorded.Of(*setting, channel, index) != reason.sending) continue;
      names.push_back(PlaceName(*setting, channel));
      const std::string command = CommandFor(choice, reason.sending);
      if (!command.empty()) commands.push_back(command);
    }
    if (names.empty()) continue;
    unsent.lines.push_back({.text = reason.words + cli::Listed(names),
                            .command = Joined(commands)});
    all.insert(all.end(), commands.begin(), commands.end());
  }
  unsent.command = Joined(all);
  return unsent;
}

std::string TextOf(const Unsent &unsent) {
  std::string text;
  for (const Unsent::Line &line : unsent.lines) text += line.text + "\n";
  return text;
}

std::string WithCommand(const Unsent &unsent) {
  if (unsent.command.empty()) return TextOf(unsent);
  return TextOf(unsent) +
         "To send these choices to every mixer, run: " + unsent.command + "\n";
}

void AddUnsent(const std::vector<RememberedChoice> &choices,
               const RecordedSending &recorded, Report *report) {
  const std::string all = ApplyCommands(choices);
  if (all.empty() || recorded.AnyAttached()) {
    report->text += WithCommand(FindUnsent(choices, recorded));
    return;
  }
  report->text +=
      "No mixer is attached; when one is attached, run: " + all + "\n";
}

Json UnsentField(Sending sending) {
  switch (sending) {
    case Sending::Earlier:
      return "earlier";
    case Sending::Incomplete:
      return "incomplete";
    case Sending::Replaced:
      return "replaced";
    case Sending::Reset:
      return "reset";
    case Sending::DefaultNotSent:
      return "default";
    case Sending::Complete:
    case Sending::DefaultSent:
      break;
  }
  return nullptr;
}

}  // namespace ztk::program
