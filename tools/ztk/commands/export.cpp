// SPDX-License-Identifier: MIT
#include "ztk/commands/other_commands.h"

#include "ztk/commands/exported_file.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

Report Export(const Arguments & /*arguments*/) {
  Report report;
  Json settings = Json::object();
  SettingsSnapshot remembered;
  for (const Family *family : Families()) {
    for (std::uint32_t channel = 0; channel < ChannelsToWalk(*family);
         ++channel) {
      const auto index = remembered.Remembered(*family, channel);
      if (!index) continue;
      const auto choice = ChoiceAt(*family, channel, *index);
      if (!choice) {
        report.warnings.push_back("left out, as there are no words for it: " +
                                  PlaceName(*family, channel) + ": " +
                                  DescribedValue(*family, channel, *index));
        continue;
      }
      Json &place = settings[ModelName(*family)][family->name];
      if (family->channels == 0) {
        place = choice->text;
      } else {
        place[std::to_string(channel + 1)] = choice->text;
      }
    }
  }
  report.fields["version"] = kExportVersion;
  report.fields["settings"] = std::move(settings);
  report.text = report.fields.dump(2) + "\n";
  return report;
}

}  // namespace ztk::program
