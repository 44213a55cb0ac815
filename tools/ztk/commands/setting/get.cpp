// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include <algorithm>

#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"
#include "ztk/model/silence.h"
#include "ztk/progress.h"
#include "ztk/report/silence_report.h"
#include "ztk/report/unsent_report.h"

namespace ztk::program {

namespace {

// Asks the mixers only when the answer depends on their input selectors.
void AddSilenceOf(const std::vector<std::uint32_t> &channels,
                  const RecordedSending &recorded, Report *report) {
  const auto isAsked = [&channels](std::uint32_t channel) {
    return std::find(channels.begin(), channels.end(), channel) !=
           channels.end();
  };
  const bool depends =
      std::any_of(channels.begin(), channels.end(), [](std::uint32_t channel) {
        const auto index = CurrentIndex(kInput, kInput.product, channel);
        return index && NeedsSelector(channel, *index);
      });
  std::vector<MixerStatus> mixers;
  if (depends) {
    const Progress progress(kWaitingForMixer, kLongestQuestion);
    mixers = AskForSelectors();
  }
  std::vector<SilentRouting> silent = FindSilentRoutings(mixers, recorded);
  std::erase_if(silent, [&isAsked](const SilentRouting &routing) {
    return !isAsked(routing.channel);
  });
  AddSilence(silent, mixers.size() > 1, report);
}

}  // namespace

Report GetRemembered(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  Report report;
  report.isAnswer = true;
  AddSettingNames(setting, product, &report);
  report.fields["channels"] = Json::array();
  const std::vector<std::uint32_t> channels = ChannelsFor(setting, arguments);
  const bool quiet = arguments.Has(Parameter::kQuiet);
  // A mixer cannot be asked for its choice.
  if (!quiet)
    report.text = Belonging(setting) + " ztk shows the remembered " +
                  (channels.size() == 1 ? "choice.\n" : "choices.\n");
  const std::string why = WarnOfUnreadable(setting, &report);
  std::vector<RememberedChoice> choices;
  const RecordedSending recorded;
  for (const std::uint32_t channel : channels) {
    const auto index = CurrentIndex(setting, product, channel);
    if (!index) {
      throw Failure(ExitCode::Rejected,
                    "nothing can be read for the " + ProductName(product) +
                        ": " + Belonging(setting) + " Leave --product out");
    }
    const auto stored = Remembered(setting, channel);
    const bool remembered = stored.has_value();
    choices.push_back(
        {.setting = &setting, .channel = channel, .index = stored});
    Json fields;
    AddValueFields(setting, channel, *index, &fields);
    fields["remembered"] = remembered;
    fields["unsent"] = UnsentField(recorded.Of(setting, channel, stored));
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(setting, channel) + "  " +
                   DescribedValue(setting, channel, *index) +
                   (remembered    ? "\n"
                    : why.empty() ? ", default: nothing is remembered\n"
                                  : ", default: the file cannot be read\n");
  }
  if (!quiet) AddUnsent(choices, recorded, &report);
  if (&setting == &kInput && (!quiet || arguments.Has(Parameter::kJson))) {
    AddSilenceOf(channels, recorded, &report);
  }
  return report;
}

}  // namespace ztk::program
