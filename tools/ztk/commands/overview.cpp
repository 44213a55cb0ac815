// SPDX-License-Identifier: MIT
//
// The answer to `ztk` without a command, in a terminal.
#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/mixers/reach.h"
#include "ztk/model/remembered.h"
#include "ztk/model/settings.h"
#include "ztk/report/unsent_report.h"

namespace ztk::program {

namespace {

constexpr std::size_t kColumn = 20;

std::string Attached(std::size_t count) {
  if (count == 0)
    return "No mixer is attached. To find out why, run: ztk doctor\n";
  if (count == 1) return "1 mixer is attached.\n";
  return std::to_string(count) + " mixers are attached.\n";
}

std::string ChoicesNow(const Setting &setting, SettingsSnapshot *settings) {
  std::string text;
  for (std::uint32_t channel = 0; channel < ChannelsToWalk(setting);
       ++channel) {
    const auto index = CurrentIndex(setting, setting.product, channel);
    if (!index) continue;
    text += cli::Padded("  " + PlaceName(setting, channel), kColumn) + " " +
            DescribedValue(setting, channel, *index) +
            (settings->Remembered(setting, channel) ? "" : ", default") + "\n";
  }
  return text;
}

}  // namespace

Report ShowOverview(const Arguments & /*arguments*/) {
  Report report;
  SettingsSnapshot settings;
  const std::vector<std::string> mixerPlaces = MixerPlaces();
  report.text = Attached(mixerPlaces.size());
  for (const Setting *setting : AllSettings()) {
    report.text += "\n" + std::string(setting->title) + " of the " +
                   ModelName(*setting) + ", remembered or default\n" +
                   ChoicesNow(*setting, &settings);
  }
  const Unsent unsent =
      FindUnsent(AllRememberedChoices(), RecordedSending(mixerPlaces));
  if (!unsent.lines.empty()) report.text += "\n" + WithCommand(unsent);
  report.text +=
      "\n"
      "Next:\n"
      "  ztk input set     choose what is recorded; ztk asks for the rest\n"
      "  ztk status        query the mixers\n"
      "  ztk --help        show all commands\n";
  return report;
}

}  // namespace ztk::program
