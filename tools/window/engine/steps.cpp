// SPDX-License-Identifier: MIT
#include "window/engine/steps.h"

#include <QCoreApplication>
#include <algorithm>
#include <vector>

#include "window/engine/clubs.h"
#include "window/engine/sentences.h"
#include "ztk/model/history/undo.h"
#include "ztk/model/resend.h"
#include "ztk/system/library_text.h"
#include "ztk/system/places.h"

namespace ztk::window {

namespace {

struct Steps {
  Q_DECLARE_TR_FUNCTIONS(Engine)
};

using model::Change;
using model::History;
using model::MadeChange;
using model::MadeChanges;
using model::Reach;

// The library's text about a choice that cannot be heard, in the language of
// the window. Empty if the texts are not installed.
QString WarningText(const MadeChange &one, const Reach &reach) {
  // If no mixer is attached, the row already says so.
  if (one.result != ZTK_WARNING || !one.selectorsKnown || reach.found() == 0) {
    return {};
  }
  ZTKTextRef text = nullptr;
  ZTK_GetWarningTextForSetUSBAudioInput(one.change.product, one.change.channel,
                                        ZTK_WARNING, LibraryLanguage(), &text);
  return text == nullptr ? QString()
                         : QString::fromStdString(model::Utf8(text));
}

InMixers Receivers(std::size_t accepted, const Reach &reach) {
  const auto attached = static_cast<std::size_t>(std::count_if(
      reach.mixers.begin(), reach.mixers.end(), [](const model::Mixer &mixer) {
        return mixer.state != model::MixerState::Gone;
      }));
  if (accepted == 0) return InMixers::None;
  return accepted >= attached ? InMixers::Every : InMixers::NotKnown;
}

RowOutcome OutcomeOf(const MadeChange &one, const Reach &reach) {
  RowOutcome row{.setting = one.change.setting,
                 .channel = one.change.channel,
                 .index = one.change.index,
                 .delivery = Delivery::Failed,
                 .accepted = static_cast<int>(one.accepted),
                 .inMixers = Receivers(one.accepted, reach),
                 .reason = {},
                 .warning = {}};
  if (!one.remembered && !one.forgotten) {
    row.reason = WhyNotStored(one);
    return row;
  }
  row.reason = WhyNotSent(one.accepted, reach);
  row.delivery =
      row.reason.isEmpty() ? Delivery::Sent : Delivery::RememberedOnly;
  row.warning = WarningText(one, reach);
  return row;
}

StepOutcome OutcomeOf(const MadeChanges &made) {
  StepOutcome outcome;
  for (const MadeChange &one : made.changes) {
    outcome.rows.append(OutcomeOf(one, made.reach));
  }
  return outcome;
}

QString BusyText() {
  return Steps::tr(
      "Another program is changing the settings. Try again in a moment.");
}

StepOutcome Make(const char *command, const std::vector<Change> &changes) {
  History history;
  if (history.state() == History::State::Busy) {
    StepOutcome outcome;
    for (const Change &change : changes) {
      outcome.rows.append({.setting = change.setting,
                           .channel = change.channel,
                           .index = change.index,
                           .delivery = Delivery::Failed,
                           .accepted = 0,
                           .inMixers = InMixers::NotKnown,
                           .reason = BusyText(),
                           .warning = {}});
    }
    return outcome;
  }
  const model::MadeStep step = model::MakeStep(command, changes, &history);
  StepOutcome outcome = OutcomeOf(step.made);
  if (!step.notRecorded.empty()) {
    outcome.report = Steps::tr("This cannot be undone: %1.")
                         .arg(ModelText(step.notRecorded));
  }
  return outcome;
}

// Names the values that undo leaves alone.
QString LeftAloneText(const std::vector<model::UndoItem> &items) {
  QStringList places;
  for (const model::UndoItem &item : items) {
    if (item.action == model::UndoItem::Action::LeaveAlone) {
      places.append(PlaceText(*item.past.setting, item.past.channel));
    }
  }
  if (places.isEmpty()) return {};
  return Steps::tr(
             "Left as it is, because another program has changed it "
             "since: %1.")
      .arg(places.join(QStringLiteral(", ")));
}

// Names what is in effect again.
QString UndoneText(const StepOutcome &outcome) {
  QStringList places;
  for (const RowOutcome &row : outcome.rows) {
    if (row.delivery == Delivery::Failed) continue;
    places.append(PlaceText(*row.setting, row.channel) + QStringLiteral(": ") +
                  ChoiceText(*row.setting, row.channel, row.index));
  }
  if (places.isEmpty()) return {};
  return Steps::tr("Undone: %1.").arg(places.join(QStringLiteral(", ")));
}

StepOutcome UndoIn(History *history) {
  StepOutcome outcome;
  model::DropVoidSteps(history);
  if (history->steps().empty()) {
    outcome.report = Steps::tr("There is nothing to undo.");
    return outcome;
  }
  const std::string why = model::WhyUnreadable(history->steps().back());
  if (!why.empty()) {
    outcome.report =
        Steps::tr("The settings file cannot be read: %1.").arg(ModelText(why));
    return outcome;
  }
  const std::vector<model::UndoItem> items = model::PlanUndo(history->steps());
  const model::UndoneSteps undone =
      model::UndoSteps(model::ChangesOf(items), 1, history);
  outcome = OutcomeOf(undone.made);
  outcome.report =
      (UndoneText(outcome) + QLatin1Char(' ') + LeftAloneText(items)).trimmed();
  if (!undone.saved) {
    outcome.report = Steps::tr(
        "The history of changes cannot be written, so the same step "
        "may be undone again.");
  }
  return outcome;
}

RowOutcome OutcomeOf(const model::StoredValue &value, const Reach &reach) {
  RowOutcome row{.setting = value.setting,
                 .channel = value.channel,
                 .index = value.index,
                 .delivery = Delivery::RememberedOnly,
                 .accepted = static_cast<int>(value.accepted),
                 .inMixers = InMixers::NotKnown,
                 .reason = {},
                 .warning = {}};
  if (value.refused) {
    row.reason =
        Steps::tr("This choice cannot be sent again. Choose it once more.");
    return row;
  }
  row.inMixers = Receivers(value.accepted, reach);
  row.reason = WhyNotSent(value.accepted, reach);
  if (row.reason.isEmpty()) row.delivery = Delivery::Sent;
  return row;
}

// Makes a step, and adds what is true before and after it.
template <typename Step>
StepOutcome Complete(Step step) {
  QStringList places;
  for (const std::string &place : model::MixerPlaces()) {
    places.append(QString::fromStdString(place));
  }
  StepOutcome outcome = step();
  outcome.places = places;
  outcome.stored = ReadStored();
  return outcome;
}

StepOutcome Undo() {
  History history;
  StepOutcome outcome;
  switch (history.state()) {
    case History::State::Usable:
      return UndoIn(&history);
    case History::State::Busy:
      outcome.report = BusyText();
      break;
    case History::State::Unavailable:
      outcome.report = Steps::tr("Nothing can be undone: %1.")
                           .arg(ModelText(history.reason()));
      break;
  }
  return outcome;
}

StepOutcome Resend() {
  std::vector<model::StoredValue> values = model::AllStoredValues();
  StepOutcome outcome;
  if (values.empty()) {
    outcome.report = Steps::tr("Nothing is remembered, so nothing was sent.");
    return outcome;
  }
  const Reach reach = model::SendAgain(&values);
  for (const model::StoredValue &value : values) {
    outcome.rows.append(OutcomeOf(value, reach));
  }
  return outcome;
}

StepOutcome Apply(const QString &path) {
  const ClubFile file = ReadClub(path);
  if (file.error.isEmpty()) return Make("import", file.changes);
  StepOutcome outcome;
  outcome.report = file.error;
  return outcome;
}

}  // namespace

StepOutcome Choose(const model::Setting &setting, std::uint32_t channel,
                   std::uint32_t index) {
  return Complete([&] {
    const std::string command = std::string(setting.name) + " set";
    return Make(command.c_str(), {{.setting = &setting,
                                   .product = setting.product,
                                   .channel = channel,
                                   .index = index}});
  });
}

StepOutcome UndoLast() { return Complete(Undo); }

StepOutcome ResendAll() { return Complete(Resend); }

StepOutcome ApplyFile(const QString &path) {
  return Complete([&path] { return Apply(path); });
}

}  // namespace ztk::window
