// SPDX-License-Identifier: MIT
#include <optional>

#include "cli/strings.h"
#include "cli/terminal.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/diagnosis.h"
#include "ztk/progress.h"
#include "ztk/report/mixer_report.h"

namespace ztk::program {

namespace {

constexpr std::size_t kColumn = 10;

void AddFinding(const char *part, const Finding &finding, Report *report) {
  report->fields["findings"].push_back(
      {{"id", finding.id},
       {"part", part},
       {"severity", finding.isNote ? "note" : "problem"},
       {"finding", finding.what},
       {"cause", finding.cause},
       {"command", finding.command}});
  report->text += cli::Padded(part, kColumn) +
                  (finding.isNote ? "note: " : "") +
                  cli::OneLine(finding.what) + "\n" + cli::Padded("", kColumn) +
                  "cause: " + cli::OneLine(finding.cause) + "\n" + cli::kWhole +
                  cli::Padded("", kColumn) +
                  "type:  " + cli::OneLine(finding.command) + "\n";
}

void AddMixerReport(const std::string &file, Report *report) {
  const Progress progress(kWaitingForMixer);
  const std::string failure =
      WriteMixerReport(MakeMixerReport(report->fields["findings"]), file);
  if (!failure.empty()) throw Failure(ExitCode::Failed, failure);
  report->fields["report"] = file;
  report->text += cli::Padded("report", kColumn) + "written to " +
                  cli::OneLine(file) + "\n";
}

}  // namespace

Report Diagnose(const Arguments &arguments) {
  Report report;
  report.fields["checks"] = Json::array();
  report.fields["findings"] = Json::array();
  std::size_t problems = 0;
  for (const CheckedPart &part : CheckedParts()) {
    std::optional<Progress> progress;
    if (part.asksMixers) progress.emplace(kWaitingForMixer);
    std::string good;
    const Findings findings = part.check(&good);
    progress.reset();
    report.fields["checks"].push_back(
        {{"part", part.name},
         {"ok", findings.empty()},
         {"message", findings.empty() ? Json(good) : Json()}});
    if (findings.empty()) {
      report.text += cli::Padded(part.name, kColumn) + "ok: " + good + "\n";
    }
    for (const Finding &finding : findings) {
      AddFinding(part.name, finding, &report);
      if (!finding.isNote) ++problems;
    }
  }
  if (const std::string *file = arguments.Find(Parameter::kReportFile)) {
    AddMixerReport(*file, &report);
  }
  if (problems > 0) {
    report.problem = {
        .exit = ExitCode::Found,
        .message = problems == 1
                       ? "1 problem found; type what stands below its cause"
                       : std::to_string(problems) +
                             " problems found; type what stands below each "
                             "cause, the first one first"};
  }
  return report;
}

}  // namespace ztk::program
