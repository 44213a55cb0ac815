// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "ztk/commands/setting_parts.h"
#include "ztk/model/products.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

Report GetRemembered(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  report.text = Belonging(family) + "\n";
  for (const std::uint32_t channel : ChannelsFor(family, arguments)) {
    const auto index = Current(family, product, channel);
    if (!index) {
      throw Failure(ExitCode::Rejected,
                    "nothing can be read for the " + ProductName(product) +
                        ": " + Belonging(family) + " Leave --product out");
    }
    const bool remembered = Remembered(family, channel).has_value();
    Json fields;
    AddValueFields(family, channel, *index, &fields);
    fields["remembered"] = remembered;
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(family, channel) + "  " +
                   DescribedValue(family, channel, *index) +
                   (remembered ? "\n" : " (default; nothing remembered)\n");
  }
  return report;
}

}  // namespace ztk::program
