// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"

namespace ztk::program {

Report GetRemembered(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  Report report;
  AddSettingNames(setting, product, &report);
  report.fields["channels"] = Json::array();
  report.text = Belonging(setting) + "\n";
  const std::string why = WarnOfUnreadable(setting, &report);
  for (const std::uint32_t channel : ChannelsFor(setting, arguments)) {
    const auto index = CurrentIndex(setting, product, channel);
    if (!index) {
      throw Failure(ExitCode::Rejected,
                    "nothing can be read for the " + ProductName(product) +
                        ": " + Belonging(setting) + " Leave --product out");
    }
    const bool remembered = Remembered(setting, channel).has_value();
    Json fields;
    AddValueFields(setting, channel, *index, &fields);
    fields["remembered"] = remembered;
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(setting, channel) + "  " +
                   DescribedValue(setting, channel, *index) +
                   (remembered    ? "\n"
                    : why.empty() ? " (default; nothing remembered)\n"
                                  : " (default; the file cannot be read)\n");
  }
  return report;
}

}  // namespace ztk::program
