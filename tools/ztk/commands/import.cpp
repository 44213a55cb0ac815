// SPDX-License-Identifier: MIT
//
// Restores the settings in a file that `ztk export` has written: all of them,
// or none if the file has an error.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/exchange.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/file_text.h"
#include "ztk/system/places.h"

namespace ztk::program {

namespace {

std::string Contents(const std::string &file) {
  std::string text;
  if (file == "-") {
    text = model::ReadText(stdin, kLargestImport + 1);
  } else {
    const model::File opened = model::OpenFile(file, "re");
    if (opened) text = model::ReadText(opened.get(), kLargestImport + 1);
    // A folder can be opened, but not read.
    if (!opened || std::ferror(opened.get()) != 0) {
      throw Failure(ExitCode::Usage, "cannot read " + cli::Quoted(file) + ": " +
                                         std::strerror(errno) +
                                         "; accepted: a file that ztk export "
                                         "has written, or - for the standard "
                                         "input");
    }
  }
  if (text.size() > kLargestImport) {
    throw Failure(ExitCode::Usage,
                  cli::Quoted(file) + " is larger than any file of settings");
  }
  return text;
}

Report Refused(const std::string &file, const ImportedSettings &import) {
  Report report;
  report.fields["errors"] = Json::array();
  for (const std::string &line : import.errors) {
    report.errors.push_back(
        cli::OneLine((file == "-" ? "standard input" : file) + ": " + line));
    report.fields["errors"].push_back(line);
  }
  const std::size_t count = import.errorCount;
  std::string counted =
      std::to_string(count) + (count == 1 ? " error" : " errors");
  if (count > import.errors.size()) {
    counted +=
        " (the first " + std::to_string(import.errors.size()) + " are shown)";
  }
  report.fields["errorCount"] = count;
  report.problem = {
      .exit = ExitCode::Usage,
      .message = "nothing was changed: " + counted + " in " +
                 (file == "-" ? "the standard input" : cli::Quoted(file))};
  return report;
}

void AddImported(const MadeChange &one, const MadeChanges &made,
                 Report *report) {
  const Change &change = one.change;
  const Setting &setting = *change.setting;
  Json fields = ValueFields(setting, change.channel, change.index);
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  if (one.forgotten) fields["forgotten"] = true;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  report->text += PlaceName(setting, change.channel) + ": " +
                  (change.forgets ? "forgotten, default " : "") +
                  DescribedValue(setting, change.channel, change.index) +
                  Described(one, made) + "\n" + NoteOnSendingAgain(change);
}

// What is remembered and not in the file stays, or is forgotten with --only.
void AddKept(const std::vector<StoredValue> &kept, Report *report) {
  report->fields["kept"] = Json::array();
  std::vector<std::string> names;
  for (const StoredValue &value : kept) {
    report->fields["kept"].push_back(
        ValueFields(*value.setting, value.channel, value.index));
    names.push_back(NamedValue(*value.setting, value.channel, value.index));
  }
  if (kept.empty()) return;
  report->text += std::string("Kept, because the file does not contain ") +
                  (names.size() == 1 ? "it: " : "them: ") + cli::Listed(names) +
                  (names.size() == 1 ? "; ztk import --only forgets it\n"
                                     : "; ztk import --only forgets them\n");
}

Report PlanOfImport(const std::vector<Change> &changes) {
  Report report;
  Plan plan;
  for (const Change &change : changes) plan.AddChange(change);
  ReportDryRun(plan, &report);
  return report;
}

Report NothingToImport() {
  Report report;
  report.text = "The file contains no settings: nothing to set.\n";
  report.fields["settings"] = Json::array();
  report.fields["mixers"] = {{"found", MixerPlaces().size()},
                             {"answered", 0},
                             {"unanswered", Json::array()}};
  return report;
}

// The commands that send everything again. The settings that this import has
// forgotten are not remembered any more, so a second import would not send
// their defaults. Therefore a command for each default stands before the
// import, which then forgets what these commands have remembered.
std::string ImportingAgain(const MadeChanges &made,
                           const std::string &command) {
  std::string commands;
  for (const MadeChange &one : made.changes) {
    if (!one.change.forgets) continue;
    if (made.reach.found() > 0 && one.accepted == made.reach.found()) continue;
    commands += DefaultCommand(one.change) + "; ";
  }
  return commands + command;
}

// `command` repeats the import; empty for the standard input.
Report MakeImported(const std::vector<Change> &changes,
                    const std::string &command, bool quiet) {
  Report report;
  report.fields["settings"] = Json::array();
  const MadeChanges made = RunStep("import", changes, quiet, &report);
  for (const MadeChange &one : made.changes) AddImported(one, made, &report);
  ReportOutcome(made, "the content of the file",
                // Standard input cannot be read again.
                command.empty() ? SendingAgain(made)
                                : "run: " + ImportingAgain(made, command),
                &report);
  ExplainWarnings(made, &report);
  return report;
}

}  // namespace

Report Import(const Arguments &arguments) {
  const std::string *file = arguments.Find(Parameter::kFile);
  ImportedSettings import = ParseImport(Contents(*file));
  if (import.errorCount > 0) return Refused(*file, import);
  std::vector<Change> &changes = import.changes;
  std::vector<StoredValue> kept = ValuesBeside(changes);
  const bool only = arguments.Has(Parameter::kOnly);
  if (only) {
    for (const StoredValue &value : kept) changes.push_back(Forgetting(value));
    kept.clear();
  }
  Report report;
  if (arguments.Has(Parameter::kDryRun)) {
    report = PlanOfImport(changes);
  } else if (changes.empty()) {
    report = NothingToImport();
  } else {
    const std::string command =
        *file == "-"
            ? ""
            : std::string("ztk import ") + (only ? "--only " : "") + *file;
    report = MakeImported(changes, command, arguments.Has(Parameter::kQuiet));
  }
  AddKept(kept, &report);
  return report;
}

}  // namespace ztk::program
