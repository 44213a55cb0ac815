// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/history/undo.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// A value of the history; no value means that nothing was remembered.
std::string ValueWords(const Setting &setting, std::uint32_t channel,
                       const std::optional<std::uint32_t> &value) {
  return value ? DescribedValue(setting, channel, *value) : "forgotten";
}

// A value that undo does not change, because another program has set it since
// the change.
struct ForeignValue {
  std::string state;    // "USB input 3 is MIC (6)"
  std::string command;  // restores what was remembered before
};

ForeignValue Foreign(const PastChange &past) {
  const Setting &setting = *past.setting;
  const auto now = Remembered(setting, past.channel);
  ForeignValue value{
      .state = PlaceName(setting, past.channel) + " is " +
               (now ? DescribedValue(setting, past.channel, *now)
                    : "not remembered any more"),
      .command = SetCommand(setting, past.channel, FormerIndex(past))};
  if (!past.before) {
    value.state += ", and nothing was remembered before";
    // Reset sends nothing, so the default is sent first.
    value.command += std::string(" && ztk reset ") + setting.name;
    if (setting.channels != 0) {
      value.command += " " + std::to_string(past.channel + 1);
    }
  }
  return value;
}

std::vector<ForeignValue> ForeignOnes(const std::vector<UndoItem> &undoings) {
  std::vector<ForeignValue> foreign;
  for (const UndoItem &undoing : undoings) {
    if (undoing.action != UndoItem::Action::LeaveAlone) continue;
    foreign.push_back(Foreign(undoing.past));
  }
  return foreign;
}

constexpr char kRestoring[] = "; to restore the earlier state, run: ";

// `dropped`: the history does not contain the step any more.
void AddLeftAlone(const std::vector<ForeignValue> &foreign, bool dropped,
                  Report *report) {
  report->fields["leftAlone"] = Json::array();
  std::vector<std::string> states;
  std::vector<std::string> commands;
  for (const auto &[state, command] : foreign) {
    report->fields["leftAlone"].push_back(state + kRestoring + command);
    states.push_back(state);
    commands.push_back(command);
  }
  if (foreign.empty()) return;
  report->SetProblem(
      {.exit = ExitCode::Rejected,
       .message =
           "not undone, because another program has changed it since: " +
           cli::Listed(states) +
           (dropped ? "; ztk undo --list does not show it any more" : "") +
           kRestoring + Joined(commands)});
}

// "MIC (6) undone, "
std::string UndoneWords(const PastChange &past) {
  if (!past.after) return "restored, ";
  return DescribedValue(*past.setting, past.channel, *past.after) + " undone, ";
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
               const MadeChanges &made, Report *report) {
  const Setting &setting = *past.setting;
  Json fields = ValueFields(setting, past.channel, one.change.index);
  fields["undoneValue"] =
      past.after ? Json(static_cast<std::int32_t>(*past.after)) : Json();
  fields["wasRemembered"] = past.before.has_value();
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  if (one.forgotten) fields["forgotten"] = true;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  const bool same = past.before.has_value() && past.before == past.after;
  const std::string value =
      DescribedValue(setting, past.channel, one.change.index);
  report->text += PlaceName(setting, past.channel) + ": ";
  if (one.result == ZTK_REJECTED) {
    report->text +=
        (past.after ? DescribedValue(setting, past.channel, *past.after) +
                          " not undone"
                    : "not restored") +
        ": the library refuses the value before it, " + value + "\n";
    return;
  }
  report->text += (same ? "" : UndoneWords(past)) +
                  (past.before ? "" : "default ") + value +
                  (same ? ", the same as before the changes" : "") +
                  Described(one, made) + "\n";
  if (!past.before) {
    report->text += "  nothing was remembered before, and nothing is now\n";
  }
}

// The former value in the file may be a number that no setter accepts.
void AddRefused(const MadeChanges &made, Report *report) {
  std::vector<std::string> refused;
  for (const MadeChange &one : made.changes) {
    if (one.result != ZTK_REJECTED) continue;
    const Change &change = one.change;
    refused.push_back(
        NamedValue(*change.setting, change.channel, change.index));
  }
  if (refused.empty()) return;
  report->SetProblem(
      {.exit = ExitCode::Rejected,
       .message = "cannot be restored, because the library refuses it: " +
                  cli::Listed(refused)});
}

// The changes that were not rejected. The others need not be sent again,
// because they would be rejected again.
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

void ReportUndone(const MadeChanges &made,
                  const std::vector<UndoItem> &undoings, Report *report) {
  report->fields["settings"] = Json::array();
  for (const MadeChange &one : made.changes) {
    AddUndone(one, PastOf(one.change, undoings), made, report);
  }
  const MadeChanges accepted = Accepted(made);
  if (!accepted.changes.empty()) {
    ReportOutcome(accepted, "what was restored", SendingAgain(accepted),
                  report);
    ExplainWarnings(accepted, report);
  }
  AddRefused(made, report);
}

void UndoLast(std::size_t count, bool dryRun, History *history,
              Report *report) {
  const std::vector<Step> &steps = history->steps();
  const std::vector<UndoItem> undoings = PlanUndo(steps, count);
  const std::vector<ForeignValue> foreign = ForeignOnes(undoings);
  const std::vector<Change> changes = ChangesOf(undoings);
  if (dryRun) {
    ReportPlan(changes, report);
    return AddLeftAlone(foreign, false, report);
  }
  report->fields["undone"] = steps.back().command;
  report->fields["undoneSteps"] = Json::array();
  for (std::size_t i = 0; i < count; ++i) {
    report->fields["undoneSteps"].push_back(
        steps[steps.size() - 1 - i].command);
  }
  const UndoneSteps undone = [&] {
    const Progress progress = WaitForChanges(changes);
    return UndoSteps(changes, count, history);
  }();
  ReportUndone(undone.made, undoings, report);
  if (!undone.saved) {
    report->warnings.push_back("the undo history cannot be written to " +
                               StateFolder());
  }
  AddLeftAlone(foreign, undone.dropped, report);
  report->fields["stepsLeft"] = history->steps().size();
}

// "input set  USB input 2: MIC (6), previously CH2 Control Tone PHONO (1)"
std::string ListedStep(std::size_t number, const Step &step,
                       const std::vector<std::optional<bool>> &leftAlone) {
  constexpr std::size_t kNumberColumn = 5;
  constexpr std::size_t kCommandColumn = 18;
  constexpr char kNotUndone[] =
      "; it will not be undone, because another program has changed it since";
  std::string begin =
      cli::Padded("  " + std::to_string(number), kNumberColumn) + " ";
  begin = cli::Padded(begin + step.command, kCommandColumn) + " ";
  std::string text;
  for (std::size_t i = 0; i < step.changes.size(); ++i) {
    const PastChange &change = step.changes[i];
    const Setting &setting = *change.setting;
    text +=
        begin + PlaceName(setting, change.channel) + ": " +
        ValueWords(setting, change.channel, change.after) + ", previously " +
        (change.before ? DescribedValue(setting, change.channel, *change.before)
                       : "nothing remembered");
    if (leftAlone[i] == true) text += kNotUndone;
    text += "\n";
    begin = std::string(kCommandColumn + 1, ' ');
  }
  return text;
}

// Adds a value as the library counts it, and with the number and the text of
// its choice.
void AddValue(const std::string &name, const PastChange &change,
              const std::optional<std::uint32_t> &value, Json *fields) {
  const auto choice =
      value ? ChoiceAt(*change.setting, change.channel, *value) : std::nullopt;
  (*fields)[name] = value ? Json(static_cast<std::int32_t>(*value)) : Json();
  (*fields)[name + "Number"] = choice ? Json(choice->number) : Json();
  (*fields)[name + "Text"] = choice ? Json(choice->text) : Json();
}

Json FieldsOf(std::size_t number, const Step &step,
              const std::vector<std::optional<bool>> &leftAlone) {
  Json fields{{"number", number},
              {"command", step.command},
              {"changes", Json::array()}};
  for (std::size_t i = 0; i < step.changes.size(); ++i) {
    const PastChange &change = step.changes[i];
    Json one{{"setting", change.setting->name},
             {"model", ModelName(*change.setting)},
             {"channel", ChannelField(*change.setting, change.channel)}};
    AddValue("before", change, change.before, &one);
    AddValue("after", change, change.after, &one);
    one["leftAlone"] = leftAlone[i] ? Json(*leftAlone[i]) : Json();
    fields["changes"].push_back(std::move(one));
  }
  return fields;
}

void ListSteps(const std::vector<Step> &steps, Report *report) {
  report->isAnswer = true;
  report->fields["steps"] = Json::array();
  const auto leftAlone = FindLeftAlone(steps);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const Step &step = steps[steps.size() - 1 - i];
    report->fields["steps"].push_back(FieldsOf(i + 1, step, leftAlone[i]));
    report->text += ListedStep(i + 1, step, leftAlone[i]);
  }
  report->text = steps.empty()
                     ? "Nothing to undo.\n"
                     : "The last change is number 1; ztk undo N takes back "
                       "changes 1 to N.\n" +
                           report->text;
}

// The number of steps to take back: the given number, or one.
std::size_t StepsFor(const Arguments &arguments, std::uint32_t known) {
  const std::string *word = arguments.Find(Parameter::kSteps);
  if (word == nullptr) return 1;
  if (const auto number = cli::ParseNumber(*word, 1, known)) return *number;
  // No number is suggested: a change that is taken back by mistake is sent to
  // the mixers at once.
  throw Failure(ExitCode::Usage,
                "no change " + cli::Quoted(*word) + " to undo; accepted: 1" +
                    (known > 1 ? " to " + std::to_string(known) : "") +
                    "; ztk undo --list shows them");
}

void AddSkipped(std::size_t count, Report *report) {
  if (count == 0) return;
  report->fields["skippedSteps"] = count;
  report->text += "Skipped " + std::to_string(count) +
                  (count == 1 ? " change that has" : " changes that have") +
                  " no effect any more.\n";
}

void RequireReadable(const std::vector<Step> &steps, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::string why = WhyUnreadable(steps[steps.size() - 1 - i]);
    if (why.empty()) continue;
    throw Failure(ExitCode::Failed,
                  "nothing can be undone: cannot read " + why);
  }
}

}  // namespace

Report Undo(const Arguments &arguments) {
  SharedHistory shared;
  History &history = *shared.get();
  if (history.state() != History::State::Usable) {
    throw Failure(ExitCode::Failed,
                  "nothing can be undone: " + history.reason());
  }
  const std::size_t dropped = DropVoidSteps(&history);
  Report report;
  if (history.damaged()) {
    report.warnings.emplace_back(
        "the undo history is damaged; only its readable part is used");
  }
  if (arguments.Has(Parameter::kList)) {
    ListSteps(history.steps(), &report);
    return report;
  }
  if (!history.steps().empty()) {
    const std::size_t count =
        StepsFor(arguments, static_cast<std::uint32_t>(history.steps().size()));
    RequireReadable(history.steps(), count);
    AddSkipped(dropped, &report);
    UndoLast(count, arguments.Has(Parameter::kDryRun), &history, &report);
    return report;
  }
  report.fields["settings"] = Json::array();
  report.fields["stepsLeft"] = 0;
  report.text = dropped == 0 ? "Nothing to undo.\n"
                             : "Nothing to undo: what ztk has changed is not "
                               "in the settings files any more.\n";
  return report;
}

}  // namespace ztk::program
