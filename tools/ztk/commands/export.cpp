// SPDX-License-Identifier: MIT
#include "ztk/commands/other_commands.h"
#include "ztk/model/exchange.h"

namespace ztk::program {

Report Export(const Arguments & /*arguments*/) {
  Report report;
  const auto [text, leftOut, unreadable] = ExportSettings();
  if (!unreadable.empty()) {
    throw Failure(ExitCode::Failed,
                  "nothing is exported: cannot read " + unreadable.front());
  }
  report.text = text;
  report.fields = Json::parse(text);
  for (const std::string &value : leftOut) {
    report.warnings.push_back("left out, as there are no words for it: " +
                              value);
  }
  if (report.fields["settings"].empty()) {
    report.warnings.emplace_back(
        "nothing is remembered: ztk import of this sets nothing");
  }
  return report;
}

}  // namespace ztk::program
