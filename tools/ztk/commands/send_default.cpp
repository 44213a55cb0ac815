// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "ztk/commands/setting_parts.h"
#include "ztk/model/change.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/mixers.h"
#include "ztk/system/announcement.h"

namespace ztk::program {

namespace {

Report PlanOfDefault(const Family &family, std::uint32_t product,
                     const std::vector<std::uint32_t> &channels) {
  CheckServed(family, product, "the default");
  Plan plan;
  for (const std::uint32_t channel : channels) {
    plan.AddDefault(family, channel);
  }
  plan.AddQuestion();
  Report report;
  AddFamilyFields(family, product, &report);
  plan.Tell(&report);
  return report;
}

}  // namespace

Report SendDefault(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  const std::vector<std::uint32_t> channels = ChannelsFor(family, arguments);
  if (arguments.Has(Parameter::DryRun)) {
    return PlanOfDefault(family, product, channels);
  }
  BusWitness witness({family.notice});
  const Sent sent = SendAndLook([&] {
    ZTKResult result = ZTK_SUCCESS;
    for (const std::uint32_t channel : channels) {
      result = ZTK_SetUSBOutputAudioDefault(product, channel);
    }
    return result;
  });
  if (sent.result != ZTK_SUCCESS) {
    ThrowRejected(family, product, "the default");
  }
  bool announced = true;
  for (const std::uint32_t channel : channels) {
    // The default of a channel is the choice with its own number.
    Json fields;
    AddValueFields(family, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(family, channel) + ": default " +
                   DescribedValue(family, channel, channel) + ", " +
                   Described(sent.reach) + ", not remembered\n";
    announced = announced && witness.Heard({.family = family.notice,
                                            .product = product,
                                            .channel = channel,
                                            .index = channel});
  }
  report.fields["result"] = sent.result;
  report.fields["announced"] = announced;
  AddReach(sent.reach, NeverRemembered("the default", "ztk output default"),
           &report);
  if (!announced) WarnOfSilentBus(&report);
  return report;
}

}  // namespace ztk::program
