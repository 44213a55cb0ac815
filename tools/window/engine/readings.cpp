// SPDX-License-Identifier: MIT
#include "window/engine/readings.h"

#include <QStringList>
#include <stdexcept>
#include <vector>

#include "window/engine/sentences.h"
#include "ztk/model/autoapply.h"
#include "ztk/model/diagnosis.h"
#include "ztk/model/history/undo.h"
#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/remembered.h"

namespace ztk::window {

namespace {

// A finding that the window shows at the row itself.
constexpr char kShownAtTheRow[] = "channel-silent";

// The settings and channels of the step, each of them once.
QString PlacesOf(const model::Step &step) {
  QStringList places;
  for (const model::PastChange &change : step.changes) {
    const QString place = PlaceText(*change.setting, change.channel);
    if (!places.contains(place)) places.append(place);
  }
  return places.join(QStringLiteral(", "));
}

// What undo would do. Of a single change also the value that comes back, unless
// undo leaves alone what another program has set since.
QString UndoText(const std::vector<model::Step> &steps) {
  const QString places = PlacesOf(steps.back());
  const std::vector<model::UndoItem> items = model::PlanUndo(steps);
  if (items.size() != 1 ||
      items.front().action != model::UndoItem::Action::PutBack) {
    return places;
  }
  const model::PastChange &past = items.front().past;
  return places + QStringLiteral(" → ") +
         ChoiceText(*past.setting, past.channel, model::FormerIndex(past));
}

MixerAnswer AnswerOf(model::MixerState state) {
  switch (state) {
    case model::MixerState::Answered:
      return MixerAnswer::Answers;
    case model::MixerState::Silent:
      return MixerAnswer::Silent;
    case model::MixerState::Gone:
      return MixerAnswer::Gone;
    case model::MixerState::NotOpened:
      return MixerAnswer::Forbidden;
    case model::MixerState::Refused:
    case model::MixerState::Failed:
      break;
  }
  return MixerAnswer::Refuses;
}

MixerState Shown(const model::MixerStatus &status) {
  MixerState mixer{.number = status.mixer.number,
                   .place = QString::fromStdString(status.place),
                   .answer = AnswerOf(status.mixer.state),
                   .firmware = status.firmware.value,
                   .certifiedLevel = status.certificationLevel.value,
                   .seratoActive = status.seratoActive.value,
                   .selectors = {}};
  if (!status.selectors.value) return mixer;
  for (std::size_t i = 0; i < mixer.selectors.size(); ++i) {
    mixer.selectors[i] = (*status.selectors.value)[i];
  }
  return mixer;
}

QList<MixerState> Shown(const std::vector<model::MixerStatus> &mixers) {
  QList<MixerState> shown;
  for (const model::MixerStatus &status : mixers) shown.append(Shown(status));
  return shown;
}

}  // namespace

StoredState ReadRows() {
  StoredState state;
  model::SettingsSnapshot settings;
  for (const model::Setting *setting : model::AllSettings()) {
    for (std::uint32_t channel = 0; channel < model::ChannelsToWalk(*setting);
         ++channel) {
      state.rows.append(
          {.stored = settings.Remembered(*setting, channel),
           .unreadable = ModelText(settings.WhyUnreadable(*setting))});
    }
  }
  return state;
}

StoredState ReadStored() {
  StoredState state = ReadRows();
  model::History history;
  if (history.state() != model::History::State::Usable) return state;
  // Void steps are removed from this copy only. The undo removes them from the
  // file.
  model::DropVoidSteps(&history);
  if (history.steps().empty()) return state;
  state.canUndo = true;
  state.undoes = UndoText(history.steps());
  return state;
}

QList<RowState> EmptyRows() {
  QList<RowState> rows;
  for (const model::Setting *setting : model::AllSettings()) {
    for (std::uint32_t channel = 0; channel < model::ChannelsToWalk(*setting);
         ++channel) {
      RowState row;
      row.setting = setting;
      row.channel = channel;
      row.shown = setting->defaultIndex(channel);
      rows.append(row);
    }
  }
  return rows;
}

QList<MixerState> AskMixers() { return Shown(model::AskEveryMixer()); }

QList<MixerState> AskForSelectors() { return Shown(model::AskForSelectors()); }

QList<FindingState> FindProblems() {
  QList<FindingState> findings;
  for (const model::CheckedPart &part : model::CheckedParts()) {
    std::string good;
    for (const model::Finding &finding : part.check(&good)) {
      if (finding.id != kShownAtTheRow) findings.append(Translated(finding));
    }
  }
  return findings;
}

AutoapplyStatus ReadAutoapply() try {
  return {.state = model::IsAutoapplyOn() ? Autoapply::On : Autoapply::Off,
          .why = {}};
} catch (const std::runtime_error &error) {
  return {.state = Autoapply::Unavailable, .why = ModelSentence(error.what())};
}

QString SwitchAutoapply(bool on) try {
  model::SetAutoapply(on);
  return {};
} catch (const std::runtime_error &error) {
  return ModelSentence(error.what());
}

}  // namespace ztk::window
