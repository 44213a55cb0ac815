// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>

#include "cli/strings.h"
#include "cli/terminal.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/diagnosis.h"
#include "ztk/progress.h"
#include "ztk/report/mixer_report.h"
#include "ztk/report/unsent_report.h"

namespace ztk::program {

namespace {

constexpr std::size_t kColumn = 10;

// The lines below a finding. What follows the cause, after a semicolon, is what
// to do about it, or what the command does.
std::vector<std::string> ExplanationOf(const Finding &finding) {
  const std::size_t end = finding.cause.find("; ");
  std::vector<std::string> lines{"cause: " + finding.cause.substr(0, end)};
  if (end != std::string::npos) {
    lines.push_back("help:  " + finding.cause.substr(end + 2));
  }
  return lines;
}

void AddFinding(const char *part, const Finding &finding, Report *report) {
  report->fields["findings"].push_back(
      {{"id", finding.id},
       {"part", part},
       {"severity", finding.isNote ? "note" : "problem"},
       {"finding", finding.what},
       {"cause", finding.cause},
       {"command", finding.command},
       {"mixer", finding.mixer == 0 ? Json() : Json(finding.mixer)}});
  report->text += cli::Padded(part, kColumn) +
                  (finding.isNote ? "note: " : "") +
                  cli::OneLine(finding.what) + "\n";
  for (const std::string &line : ExplanationOf(finding)) {
    report->text += cli::Padded("", kColumn) + cli::OneLine(line) + "\n";
  }
  report->text += cli::kUnwrapped + cli::Padded("", kColumn) +
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

// Reports a finding as error messages: with --quiet no text is shown.
void AddErrors(const char *part, const Finding &finding, Report *report) {
  report->errors.push_back(std::string(part) + ": " + finding.what);
  for (const std::string &line : ExplanationOf(finding)) {
    report->errors.push_back(line);
  }
  report->errors.push_back("type:  " + finding.command);
}

// Nothing fails because of a note, so its command need not be run.
std::string Summary(std::size_t problems, std::size_t notes) {
  const bool one = problems == 1;
  std::string words =
      one ? "1 problem" : std::to_string(problems) + " problems";
  if (notes > 0) {
    words +=
        notes == 1 ? " and 1 note" : " and " + std::to_string(notes) + " notes";
  }
  words += std::string(" found; run the ") + (one ? "command" : "commands");
  if (notes > 0) {
    words += one ? " of the problem" : " of the problems";
  } else {
    words += " above";
  }
  return words + (one ? "" : ", from top to bottom");
}

// What an attached mixer may have instead of what is remembered.
Findings NotesOnUnsent() {
  const RecordedSending recorded;
  if (!recorded.AnyAttached()) return {};
  const Unsent unsent = FindUnsent(AllRememberedChoices(), recorded);
  Findings notes;
  for (const Unsent::Line &line : unsent.lines) {
    if (line.command.empty()) continue;
    notes.push_back({.id = "unsent",
                     .what = line.text,
                     .cause = "a mixer may have another choice until it "
                              "accepts this one",
                     .command = line.command,
                     .isNote = true});
  }
  return notes;
}

// Returns how many problems the check has found; notes are none.
std::size_t AddCheck(const CheckedPart &part, bool quiet, Report *report) {
  std::string good;
  const Findings findings = [&] {
    std::optional<Progress> progress;
    if (part.asksMixers) progress.emplace(kWaitingForMixer, kLongestQuestion);
    return part.check(&good);
  }();
  const auto problems = static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(),
                    [](const Finding &finding) { return !finding.isNote; }));
  report->fields["checks"].push_back(
      {{"part", part.name},
       {"ok", problems == 0},
       {"message", problems == 0 ? Json(good) : Json()}});
  const Findings notes = part.asksMixers ? NotesOnUnsent() : Findings{};
  if (findings.empty() || (problems == 0 && part.asksMixers)) {
    report->text += cli::Padded(part.name, kColumn) + "ok: " + good + "\n";
  }
  for (const Finding &finding : findings) {
    AddFinding(part.name, finding, report);
    if (quiet && !finding.isNote) AddErrors(part.name, finding, report);
  }
  for (const Finding &note : notes) AddFinding(part.name, note, report);
  return problems;
}

}  // namespace

Report Diagnose(const Arguments &arguments) {
  const std::string *file = arguments.Find(Parameter::kReportFile);
  if (file != nullptr && (*file == "-" || file->empty())) {
    throw Failure(ExitCode::Usage, "--report needs the name of a file, not " +
                                       cli::Quoted(*file) +
                                       "; for example: ztk doctor --report "
                                       "mixer.json");
  }
  Report report;
  report.fields["checks"] = Json::array();
  report.fields["findings"] = Json::array();
  std::size_t problems = 0;
  for (const CheckedPart &part : CheckedParts()) {
    problems += AddCheck(part, arguments.Has(Parameter::kQuiet), &report);
  }
  if (file != nullptr) AddMixerReport(*file, &report);
  if (problems > 0) {
    // With --quiet no note is shown.
    const std::size_t notes = arguments.Has(Parameter::kQuiet)
                                  ? 0
                                  : report.fields["findings"].size() - problems;
    report.problem = {.exit = ExitCode::Found,
                      .message = Summary(problems, notes)};
  }
  return report;
}

}  // namespace ztk::program
