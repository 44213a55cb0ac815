// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include "ztk/commands/setting/setting_parts.h"
#include "ztk/progress.h"
#include "ztk/report/dry_run_report.h"

namespace ztk::program {

namespace {

Report PlanOfDefault(const Setting &setting, std::uint32_t product,
                     const std::vector<std::uint32_t> &channels) {
  CheckServed(setting, product, "the default");
  Plan plan;
  for (const std::uint32_t channel : channels) {
    plan.AddDefault(setting, channel);
  }
  Report report;
  AddSettingNames(setting, product, &report);
  ReportDryRun(plan, &report);
  return report;
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
  RecordedCalls calls;
  ZTKResult result = ZTK_SUCCESS;
  bool announced = true;
  {
    const Progress progress(kWaitingForMixer);
    for (const std::uint32_t channel : channels) {
      result = calls.Call(
          [&] { return ZTK_SetUSBOutputAudioDefault(product, channel); });
      announced = announced &&
                  calls.last().announcement.result == ZTK_ANNOUNCEMENT_SENT;
    }
  }
  if (result != ZTK_SUCCESS) ThrowRejected(setting, product, "the default");
  for (const std::uint32_t channel : channels) {
    // The default of a channel is the choice with its own number.
    Json fields;
    AddValueFields(setting, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(setting, channel) + ": default " +
                   DescribedValue(setting, channel, channel) + ", " +
                   Described(calls.reach()) + ", not remembered\n";
  }
  report.fields["result"] = result;
  report.fields["announced"] = announced;
  ReportReach(calls.reach(),
              NeverRemembered("the default", "ztk output default"), &report);
  if (!announced) WarnOfMissingBus(&report);
  return report;
}

}  // namespace ztk::program
