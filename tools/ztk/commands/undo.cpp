// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/warning.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/history.h"
#include "ztk/model/products.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

namespace {

// What the library takes where nothing is remembered.
std::uint32_t DefaultOf(const Family &family, std::uint32_t channel) {
  constexpr std::uint32_t kBoostDefault = 3;
  if (&family == &kOutput) return channel;
  return &family == &kBoost ? kBoostDefault : 0;
}

// The library cannot forget a setting: where nothing was remembered, the
// default is put back, and remembered.
std::uint32_t Former(const PastChange &change) {
  return change.before.value_or(DefaultOf(*change.family, change.channel));
}

// What is to be done about one change.
struct Undoing {
  PastChange past;
  enum class Kind : std::uint8_t {
    PutBack,
    Already,  // it has its former value
    Foreign   // somebody else has changed it since
  } kind;
};

Undoing::Kind KindOf(const PastChange &change) {
  const auto now = Remembered(*change.family, change.channel);
  if (now == change.after) return Undoing::Kind::PutBack;
  if (now == change.before || now == Former(change)) {
    return Undoing::Kind::Already;
  }
  return Undoing::Kind::Foreign;
}

// The last change first.
std::vector<Undoing> Look(const Step &step) {
  std::vector<Undoing> found;
  for (auto change = step.changes.rbegin(); change != step.changes.rend();
       ++change) {
    found.push_back({.past = *change, .kind = KindOf(*change)});
  }
  return found;
}

bool IsVoid(const Step &step) {
  for (const PastChange &change : step.changes) {
    if (KindOf(change) != Undoing::Kind::Already) return false;
  }
  return true;
}

std::vector<Change> ToMake(const std::vector<Undoing> &undoings) {
  std::vector<Change> changes;
  for (const Undoing &undoing : undoings) {
    if (undoing.kind != Undoing::Kind::PutBack) continue;
    const PastChange &past = undoing.past;
    changes.push_back({.family = past.family,
                       .product = past.family->product,
                       .channel = past.channel,
                       .index = Former(past)});
  }
  return changes;
}

// Values that somebody else has set since are his.
std::vector<std::string> ForeignOnes(const std::vector<Undoing> &undoings) {
  std::vector<std::string> foreign;
  for (const Undoing &undoing : undoings) {
    if (undoing.kind != Undoing::Kind::Foreign) continue;
    const PastChange &past = undoing.past;
    const auto now = Remembered(*past.family, past.channel);
    foreign.push_back(PlaceName(*past.family, past.channel) + " is " +
                      (now ? DescribedValue(*past.family, past.channel, *now)
                           : "not remembered any more") +
                      " (for what it was, type: " +
                      SetCommand(*past.family, past.channel, Former(past)) +
                      ")");
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
                         const std::vector<Undoing> &undoings) {
  for (const Undoing &undoing : undoings) {
    if (undoing.past.family == change.family &&
        undoing.past.channel == change.channel) {
      return undoing.past;
    }
  }
  return undoings.front().past;
}

void AddUndone(const MadeChange &one, const PastChange &past,
               const Reach &reach, Report *report) {
  const Family &family = *past.family;
  Json fields{{"setting", family.name}, {"model", ModelName(family)}};
  AddValueFields(family, past.channel, one.change.index, &fields);
  fields["undoneValue"] = static_cast<std::int32_t>(past.after);
  fields["wasRemembered"] = past.before.has_value();
  fields["result"] = one.result;
  fields["remembered"] = one.remembered;
  fields["announced"] = one.announced;
  report->fields["settings"].push_back(std::move(fields));
  report->text += PlaceName(family, past.channel) + ": " +
                  DescribedValue(family, past.channel, past.after) +
                  " undone, " +
                  DescribedValue(family, past.channel, one.change.index);
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
        PlaceName(*change.family, change.channel) + ": " +
        DescribedValue(*change.family, change.channel, change.index));
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

// What the setters take, which a number in the file need not be.
bool CanBeSet(const Change &change) {
  const Family &family = *change.family;
  const std::size_t choices =
      ChoicesOf(family, family.product, change.channel).size();
  return change.index < choices + family.placeholders;
}

void TellPlan(const std::vector<Change> &changes, Report *report) {
  Plan plan;
  MadeChanges refused;
  for (const Change &change : changes) {
    if (CanBeSet(change)) {
      plan.AddChange(change);
    } else {
      refused.changes.push_back({.change = change, .result = ZTK_REJECTED});
    }
  }
  if (refused.changes.size() < changes.size()) plan.AddQuestion();
  plan.Tell(report);
  AddRefused(refused, report);
}

std::string SendingAgain(const Change &change) {
  const Family &family = *change.family;
  if (!IsSentAgain(family, change.index)) {
    return SetCommand(family, change.channel, change.index);
  }
  return family.product == kOwnProduct
             ? "ztk apply"
             : "ztk apply --product " + ProductName(family.product);
}

// How to send again what was put back; each model is sent by itself.
std::string SendingAgain(const MadeChanges &made) {
  std::vector<std::string> commands;
  for (const Family *family : Families()) {
    for (const MadeChange &one : made.changes) {
      if (one.change.family != family) continue;
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
bool UndoStep(const std::vector<Undoing> &undoings, Report *report) {
  const MadeChanges made = MakeChanges(ToMake(undoings));
  bool done = true;
  for (const MadeChange &one : made.changes) {
    AddUndone(one, PastOf(one.change, undoings), made.reach, report);
    done = done && (one.remembered || one.result == ZTK_REJECTED);
  }
  const MadeChanges accepted = Accepted(made);
  if (!accepted.changes.empty()) {
    AddTruth(accepted, "what was put back", SendingAgain(accepted), report);
    ExplainWarnings(accepted, report);
  }
  AddRefused(made, report);
  return done;
}

void UndoLast(bool dryRun, History *history, Report *report) {
  const Step step = history->steps().back();
  const std::vector<Undoing> undoings = Look(step);
  const std::vector<std::string> foreign = ForeignOnes(undoings);
  const std::vector<Change> changes = ToMake(undoings);
  if (dryRun) {
    TellPlan(changes, report);
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
  History history;
  if (!history.usable()) {
    throw Failure(ExitCode::Failed,
                  "nothing can be undone: " + history.reason());
  }
  // A step that came to nothing, because it was interrupted.
  while (!history.steps().empty() && IsVoid(history.steps().back())) {
    history.DropLast();
  }
  Report report;
  if (history.damaged()) {
    report.warnings.emplace_back(
        "the history is damaged; what can be read of it is used");
  }
  if (!history.steps().empty()) {
    UndoLast(arguments.Has(Parameter::DryRun), &history, &report);
    return report;
  }
  report.fields["settings"] = Json::array();
  report.fields["stepsLeft"] = 0;
  report.text = "Nothing to undo.\n";
  return report;
}

}  // namespace ztk::program
