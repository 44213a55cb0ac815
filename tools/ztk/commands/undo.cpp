// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"
#include "ztk/model/undo.h"
#include "ztk/progress.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// Values that somebody else has set since are his.
std::vector<std::string> ForeignOnes(const std::vector<UndoItem> &undoings) {
  std::vector<std::string> foreign;
  for (const UndoItem &undoing : undoings) {
    if (undoing.action != UndoItem::Action::LeaveAlone) continue;
    const PastChange &past = undoing.past;
    const auto now = Remembered(*past.setting, past.channel);
    foreign.push_back(
        PlaceName(*past.setting, past.channel) + " is " +
        (now ? DescribedValue(*past.setting, past.channel, *now)
             : "not remembered any more") +
        " (for what it was, type: " +
        SetCommand(*past.setting, past.channel, FormerIndex(past)) + ")");
  }
  return foreign;
}

void AddLeftAlone(const std::vector<std::string> &foreign, Report *report) {
  report->fields["leftAlone"] = foreign;
  if (foreign.empty()) return;
  if (report->problem) report->warnings.push_back(report->problem->message);
  report->problem = {.exit = ExitCode::Rejected,
                     .message =
                         "left alone, as another program has changed it "
                         "since: " +
                         cli::Listed(foreign)};
}

const PastChange &PastOf(const Change &change,
                         const std::vector<UndoItem> &undoings) {
  for (const UndoItem &undoing : undoings) {
    if (undoing.past.setting == change.setting &&
        undoing.past.channel == change.channel) {
      return undoing.past;
    }
  }
  return undoings.front().past;
}

void AddUndone(const MadeChange &one, const PastChange &past,
               const Reach &reach, Report *report) {
  const Setting &setting = *past.setting;
  Json fields{{"setting", setting.name}, {"model", ModelName(setting)}};
  AddValueFields(setting, past.channel, one.change.index, &fields);
  fields["undoneValue"] =
      past.after ? Json(static_cast<std::int32_t>(*past.after)) : Json();
  fields["wasRemembered"] = past.before.has_value();
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  report->text +=
      PlaceName(setting, past.channel) + ": " +
      (past.after ? DescribedValue(setting, past.channel, *past.after)
                  : "reset") +
      " undone, " + DescribedValue(setting, past.channel, one.change.index);
  if (one.result == ZTK_REJECTED) {
    report->text += " refused\n";
    return;
  }
  report->text += " " + Described(one, reach) + "\n";
  if (!past.before) {
    report->text += "  nothing was remembered before: this is the default\n";
  }
}

// What stood in the file may be a number that no setter takes.
void AddRefused(const MadeChanges &made, Report *report) {
  std::vector<std::string> refused;
  for (const MadeChange &one : made.changes) {
    if (one.result != ZTK_REJECTED) continue;
    const Change &change = one.change;
    refused.push_back(
        PlaceName(*change.setting, change.channel) + ": " +
        DescribedValue(*change.setting, change.channel, change.index));
  }
  if (refused.empty()) return;
  if (report->problem) report->warnings.push_back(report->problem->message);
  report->problem = {
      .exit = ExitCode::Rejected,
      .message = "cannot be put back, as the library refuses it: " +
                 cli::Listed(refused)};
}

// The rest without those that were refused, of which nothing can be expected.
MadeChanges Accepted(const MadeChanges &made) {
  MadeChanges accepted{.changes = {}, .reach = made.reach};
  for (const MadeChange &one : made.changes) {
    if (one.result != ZTK_REJECTED) accepted.changes.push_back(one);
  }
  return accepted;
}

void ReportPlan(const std::vector<Change> &changes, Report *report) {
  Plan plan;
  MadeChanges refused;
  for (const Change &change : changes) {
    if (CanBeSet(*change.setting, change.channel, change.index)) {
      plan.AddChange(change);
    } else {
      refused.changes.push_back({.change = change, .result = ZTK_REJECTED});
    }
  }
  ReportDryRun(plan, report);
  AddRefused(refused, report);
}

std::string SendingAgain(const Change &change) {
  const Setting &setting = *change.setting;
  if (!IsSentAgain(setting, change.index)) {
    return SetCommand(setting, change.channel, change.index);
  }
  return setting.product == kOwnProduct
             ? "ztk apply"
             : "ztk apply --product " + ProductName(setting.product);
}

// How to send again what was put back; each model is sent by itself.
std::string SendingAgain(const MadeChanges &made) {
  std::vector<std::string> commands;
  for (const Setting *setting : AllSettings()) {
    for (const MadeChange &one : made.changes) {
      if (one.change.setting != setting) continue;
      const std::string command = SendingAgain(one.change);
      if (std::find(commands.begin(), commands.end(), command) ==
          commands.end()) {
        commands.push_back(command);
      }
    }
  }
  std::string joined;
  for (const std::string &command : commands) {
    joined += (joined.empty() ? "" : "; ") + command;
  }
  return joined;
}

// True where the step is done with, for better or worse.
bool UndoStep(const std::vector<UndoItem> &undoings, Report *report) {
  const MadeChanges made = [&undoings] {
    const Progress progress(kWaitingForMixer);
    return MakeChanges(ChangesOf(undoings));
  }();
  bool done = true;
  for (const MadeChange &one : made.changes) {
    AddUndone(one, PastOf(one.change, undoings), made.reach, report);
    done =
        done && (one.remembered || one.forgotten || one.result == ZTK_REJECTED);
  }
  const MadeChanges accepted = Accepted(made);
  if (!accepted.changes.empty()) {
    ReportOutcome(accepted, "what was put back", SendingAgain(accepted),
                  report);
    ExplainWarnings(accepted, report);
  }
  AddRefused(made, report);
  return done;
}

void UndoLast(bool dryRun, History *history, Report *report) {
  const Step step = history->steps().back();
  const std::vector<UndoItem> undoings = PlanUndo(history->steps());
  const std::vector<std::string> foreign = ForeignOnes(undoings);
  const std::vector<Change> changes = ChangesOf(undoings);
  if (dryRun) {
    ReportPlan(changes, report);
    return AddLeftAlone(foreign, report);
  }
  report->fields["undone"] = step.command;
  report->fields["settings"] = Json::array();
  if (changes.empty() || UndoStep(undoings, report)) history->DropLast();
  if (!history->Save()) {
    report->warnings.push_back("the history cannot be written to " +
                               StateFolder());
  }
  AddLeftAlone(foreign, report);
  report->fields["stepsLeft"] = history->steps().size();
}

}  // namespace

Report Undo(const Arguments &arguments) {
  SharedHistory shared;
  History &history = *shared.get();
  if (history.state() != History::State::Usable) {
    throw Failure(ExitCode::Failed,
                  "nothing can be undone: " + history.reason());
  }
  while (!history.steps().empty()) {
    const Step &last = history.steps().back();
    const std::string why = WhyUnreadable(last);
    if (!why.empty()) {
      throw Failure(ExitCode::Failed,
                    "nothing can be undone: cannot read " + why);
    }
    // A step that came to nothing, because it was interrupted.
    if (!IsVoid(last)) break;
    history.DropLast();
  }
  Report report;
  if (history.damaged()) {
    report.warnings.emplace_back(
        "the history is damaged; what can be read of it is used");
  }
  if (!history.steps().empty()) {
    UndoLast(arguments.Has(Parameter::kDryRun), &history, &report);
    return report;
  }
  report.fields["settings"] = Json::array();
  report.fields["stepsLeft"] = 0;
  report.text = "Nothing to undo.\n";
  return report;
}

}  // namespace ztk::program
