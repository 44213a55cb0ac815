// SPDX-License-Identifier: MIT
#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"

namespace ztk::program {

Report ShowModels(const Arguments & /*arguments*/) {
  constexpr std::size_t kNumberColumn = 4;
  constexpr std::size_t kNameColumn = 10;
  Report report;
  report.isAnswer = true;
  report.fields["models"] = Json::array();
  for (const Product &product : Products()) {
    Json settings = Json::array();
    std::vector<std::string> titles;
    for (const Setting *setting : AllSettings()) {
      if (setting->product != product.id) continue;
      settings.push_back(setting->name);
      titles.emplace_back(setting->title);
    }
    report.fields["models"].push_back({{"number", product.id},
                                       {"name", product.name},
                                       {"settings", std::move(settings)}});
    report.text += cli::Padded(std::to_string(product.id), kNumberColumn) +
                   cli::Padded(product.name, kNameColumn) +
                   cli::Listed(titles) + "\n";
  }
  return report;
}

}  // namespace ztk::program
