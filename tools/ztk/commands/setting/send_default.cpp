// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include <algorithm>

#include "ztk/commands/setting/setting_parts.h"
#include "ztk/report/dry_run_report.h"

namespace ztk::program {

namespace {

Report PlanOfDefault(const Setting &setting, std::uint32_t product,
                     const std::vector<std::uint32_t> &channels) {
  CheckProductAccepted(setting, product, "the default");
  Plan plan;
  for (const std::uint32_t channel : channels) {
    plan.AddDefault(setting, channel);
  }
  Report report;
  AddSettingNames(setting, product, &report);
  ReportDryRun(plan, &report);
  WarnOfOtherModel(setting, plan.mixersThatCanBeOpened(), &report);
  return report;
}

struct SentDefaults {
  RecordedCalls calls;
  ZTKResult result = ZTK_SUCCESS;
  bool announced = true;
  bool announcementFailed = false;
  std::vector<std::size_t> accepted;  // mixers, for each of the channels
};

SentDefaults SendDefaults(const Setting &setting, std::uint32_t product,
                          const std::vector<std::uint32_t> &channels) {
  SentDefaults sent;
  const Progress progress =
      WaitForRequests(channels.size() * RequestsOf(setting));
  for (const std::uint32_t channel : channels) {
    sent.result = sent.calls.Call(
        [&] { return ZTK_SetUSBOutputAudioDefault(product, channel); });
    const std::uint32_t announcement = sent.calls.last().announcement.result;
    if (announcement != ZTK_ANNOUNCEMENT_SENT) sent.announced = false;
    if (announcement == ZTK_ANNOUNCEMENT_FAILED) sent.announcementFailed = true;
    sent.accepted.push_back(sent.calls.acceptedLast());
  }
  return sent;
}

}  // namespace

Report SendDefault(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  Report report;
  AddSettingNames(setting, product, &report);
  report.fields["channels"] = Json::array();
  const std::vector<std::uint32_t> channels = ChannelsFor(setting, arguments);
  if (arguments.Has(Parameter::kDryRun)) {
    return PlanOfDefault(setting, product, channels);
  }
  const SentDefaults sent = SendDefaults(setting, product, channels);
  if (sent.result != ZTK_SUCCESS)
    ThrowRejected(setting, product, "the default");
  const bool any = std::any_of(sent.accepted.begin(), sent.accepted.end(),
                               [](std::size_t count) { return count > 0; });
  for (std::size_t i = 0; i < channels.size(); ++i) {
    const std::uint32_t channel = channels[i];
    // The default of a channel is the choice with its own number.
    if (sent.accepted[i] > 0) RecordReplaced(setting, channel, channel);
    Json fields;
    AddValueFields(setting, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(setting, channel) + ": default " +
                   DescribedValue(setting, channel, channel) +
                   Sent(sent.accepted[i], sent.calls.reach(), any) +
                   ", not remembered\n";
  }
  report.fields["result"] = sent.result;
  report.fields["announced"] = sent.announced;
  ReportReach(sent.calls.reach(), TextsIfNeverRemembered("ztk output default"),
              &report);
  WarnOfOtherModel(setting, sent.calls.reach().answered(), &report);
  if (sent.announcementFailed) WarnOfFailedAnnouncement(&report);
  return report;
}

}  // namespace ztk::program
