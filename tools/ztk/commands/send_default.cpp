// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "ztk/commands/setting_parts.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/system/announcement.h"

namespace ztk::program {

namespace {

Report PlanOfDefault(const Setting &setting, std::uint32_t product,
                     const std::vector<std::uint32_t> &channels) {
  CheckServed(setting, product, "the default");
  Plan plan;
  for (const std::uint32_t channel : channels) {
    plan.AddDefault(setting, channel);
  }
  plan.AddQuestion();
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
  if (arguments.Has(Parameter::DryRun)) {
    return PlanOfDefault(setting, product, channels);
  }
  BusWitness witness({setting.notice});
  const Sent sent = Send([&] {
    ZTKResult result = ZTK_SUCCESS;
    for (const std::uint32_t channel : channels) {
      result = ZTK_SetUSBOutputAudioDefault(product, channel);
    }
    return result;
  });
  if (sent.result != ZTK_SUCCESS) {
    ThrowRejected(setting, product, "the default");
  }
  bool announced = true;
  for (const std::uint32_t channel : channels) {
    // The default of a channel is the choice with its own number.
    Json fields;
    AddValueFields(setting, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(setting, channel) + ": default " +
                   DescribedValue(setting, channel, channel) + ", " +
                   Described(sent.reach) + ", not remembered\n";
    announced = announced && witness.Heard({.setting = setting.notice,
                                            .product = product,
                                            .channel = channel,
                                            .index = channel});
  }
  report.fields["result"] = sent.result;
  report.fields["announced"] = announced;
  ReportReach(sent.reach, NeverRemembered("the default", "ztk output default"),
              &report);
  if (!announced) WarnOfMissingBus(&report);
  return report;
}

}  // namespace ztk::program
