// SPDX-License-Identifier: MIT
#include "ztk/commands/other_commands.h"
#include "ztk/model/exchange.h"

namespace ztk::program {

Report Export(const Arguments & /*arguments*/) {
  Report report;
  report.isAnswer = true;
  const auto [text, leftOut, unreadable] = ExportSettings();
  if (!unreadable.empty()) {
    throw Failure(ExitCode::Failed,
                  "nothing is exported: cannot read " + unreadable.front());
  }
  report.text = text;
  report.fields = Json::parse(text);
  for (const std::string &value : leftOut) {
    report.warnings.push_back("left out, because it is not a choice: " + value);
  }
  if (report.fields["settings"].empty()) {
    report.warnings.emplace_back(
        "nothing is remembered, so the output contains no settings");
  }
  return report;
}

}  // namespace ztk::program
