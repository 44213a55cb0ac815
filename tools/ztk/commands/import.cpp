// SPDX-License-Identifier: MIT
//
// Restores settings from a file that `ztk export` has written: all or nothing.
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/exchange.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

std::string Contents(const std::string &file) {
  std::string text;
  const auto take = [&text](std::istream &stream) {
    char byte = 0;
    while (text.size() <= kLargestImport && stream.get(byte)) text += byte;
  };
  if (file == "-") {
    take(std::cin);
  } else {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    // Opening a folder succeeds; reading it does not.
    if (stream) take(stream);
    if (!stream.is_open() || stream.bad() || (text.empty() && errno != 0)) {
      throw Failure(ExitCode::Usage, "cannot read " + cli::Quoted(file) + ": " +
                                         std::strerror(errno) +
                                         "; accepted: a file that ztk export "
                                         "has written, or - for the input");
    }
  }
  if (text.size() > kLargestImport) {
    throw Failure(ExitCode::Usage,
                  cli::Quoted(file) + " is too large to hold settings");
  }
  return text;
}

Report Refused(const std::string &file, const ImportedSettings &import) {
  Report report;
  report.fields["errors"] = Json::array();
  for (const std::string &line : import.errors) {
    report.errors.push_back(cli::OneLine(file + ": " + line));
    report.fields["errors"].push_back(line);
  }
  const std::size_t count = import.errorCount;
  std::string counted =
      std::to_string(count) + (count == 1 ? " error" : " errors");
  if (count > import.errors.size()) {
    counted += ", of which the first " + std::to_string(import.errors.size()) +
               " are shown,";
  }
  report.fields["errorCount"] = count;
  report.problem = {.exit = ExitCode::Usage,
                    .message = "nothing was changed: " + counted + " in " +
                               cli::Quoted(file)};
  return report;
}

void AddImported(const MadeChange &one, const Reach &reach, Report *report) {
  const Change &change = one.change;
  const Setting &setting = *change.setting;
  Json fields{{"setting", setting.name}, {"model", ModelName(setting)}};
  AddValueFields(setting, change.channel, change.index, &fields);
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  report->text += PlaceName(setting, change.channel) + ": " +
                  DescribedValue(setting, change.channel, change.index) + ", " +
                  Described(one, reach) + "\n" + NoteOnSendingAgain(change);
}

}  // namespace

Report Import(const Arguments &arguments) {
  const std::string *file = arguments.Find(Parameter::kFile);
  if (file == nullptr) {
    throw Failure(ExitCode::Usage,
                  "FILE is missing: one that ztk export has written, or - for "
                  "the input; see ztk import --help");
  }
  const ImportedSettings import = ParseImport(Contents(*file));
  if (import.errorCount > 0) return Refused(*file, import);
  const std::vector<Change> &changes = import.changes;

  Report report;
  if (arguments.Has(Parameter::kDryRun)) {
    Plan plan;
    for (const Change &change : changes) plan.AddChange(change);
    ReportDryRun(plan, &report);
    return report;
  }
  report.fields["settings"] = Json::array();
  const MadeChanges made = RunStep("import", changes, &report);
  for (const MadeChange &one : made.changes) {
    AddImported(one, made.reach, &report);
  }
  ReportOutcome(made, "what stands in it", "ztk import " + *file, &report);
  ExplainWarnings(made, &report);
  return report;
}

}  // namespace ztk::program
