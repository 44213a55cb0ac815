// SPDX-License-Identifier: MIT
#include "window/engine/row_tracker.h"

#include <algorithm>

namespace ztk::window {

namespace {

QStringList AttachedPlaces(const QList<MixerState> &mixers) {
  QStringList places;
  for (const MixerState &mixer : mixers) {
    if (mixer.isAttached()) places.append(mixer.place);
  }
  return places;
}

// Whether there is a mixer at this place that answers, or one that does not.
bool IsThere(const QList<MixerState> &mixers, const QString &place,
             bool answers) {
  return std::any_of(mixers.begin(), mixers.end(), [&](const MixerState &one) {
    return one.place == place &&
           (one.answer == MixerAnswer::Answers) == answers;
  });
}

bool ContainsAll(const QStringList &places, const QStringList &others) {
  return std::all_of(
      others.begin(), others.end(),
      [&places](const QString &place) { return places.contains(place); });
}

}  // namespace

RowTracker::RowTracker(State *state) : state_(*state) {
  state_.rows = EmptyRows();
  own_.resize(static_cast<std::size_t>(state_.rows.size()));
}

std::uint64_t RowTracker::TakeChoice(const model::Setting &setting,
                                     std::uint32_t channel,
                                     std::uint32_t index) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    if (row.setting != &setting || row.channel != channel) continue;
    Forget(i);
    own_[static_cast<std::size_t>(i)].choice = ++lastChoice_;
    row.shown = index;
    row.delivery = Delivery::Sending;
    return lastChoice_;
  }
  return 0;
}

InMixers RowTracker::Unsent() const {
  return placesKnown_ && places_.isEmpty() ? InMixers::None
                                           : InMixers::NotKnown;
}

void RowTracker::Forget(qsizetype row) {
  RowState &state = state_.rows[row];
  state.delivery = Delivery::Idle;
  state.accepted = 0;
  state.reason.clear();
  state.warning.clear();
  state.inMixers = Unsent();
  own_[static_cast<std::size_t>(row)].sent.reset();
}

void RowTracker::TakeOutcome(const StepOutcome &outcome, std::uint64_t choice) {
  TakePlaces(outcome.places, false);
  for (const RowOutcome &row : outcome.rows) TakeRow(row, choice);
  TakeStored(outcome.stored);
}

void RowTracker::TakeRow(const RowOutcome &outcome, std::uint64_t choice) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    if (row.setting != outcome.setting || row.channel != outcome.channel) {
      continue;
    }
    Own &own = own_[static_cast<std::size_t>(i)];
    // A newer choice waits, and the row shows that one.
    if (own.choice != 0 && own.choice != choice) return;
    const bool failed = outcome.delivery == Delivery::Failed;
    own = {.choice = 0,
           .sent = failed ? std::nullopt : std::optional(outcome.index)};
    row.delivery = outcome.delivery;
    row.accepted = outcome.accepted;
    row.reason = outcome.reason;
    row.warning = outcome.warning;
    row.inMixers = failed ? Unsent() : outcome.inMixers;
  }
}

void RowTracker::TakeStored(const StoredState &stored) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    const StoredRow &now = stored.rows[i];
    const Own &own = own_[static_cast<std::size_t>(i)];
    row.unreadable = now.unreadable;
    const bool changed = row.stored != now.stored;
    row.stored = now.stored;
    // Until an own change has arrived, an older value must not be shown again.
    if (own.choice != 0) continue;
    row.shown = row.stored.value_or(row.setting->defaultIndex(row.channel));
    // Another program has changed it. What it has sent is not known.
    const bool isOther = own.sent && own.sent != row.shown;
    if (isOther || (changed && !own.sent)) Forget(i);
  }
  state_.canUndo = stored.canUndo;
  state_.undoes = stored.undoes;
  state_.known = true;
}

void RowTracker::TakeMixers(const QList<MixerState> &mixers) {
  const QStringList places = AttachedPlaces(mixers);
  const bool answersAgain =
      std::any_of(places.begin(), places.end(), [&](const QString &place) {
        return IsThere(state_.mixers, place, false) &&
               IsThere(mixers, place, true);
      });
  TakePlaces(places, answersAgain);
}

void RowTracker::TakePlaces(const QStringList &places, bool answersAgain) {
  const bool plugged = !placesKnown_ || !ContainsAll(places_, places);
  const bool unplugged = !ContainsAll(places, places_);
  places_ = places;
  placesKnown_ = true;
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    if (row.delivery == Delivery::Sending) continue;
    if (row.delivery == Delivery::Failed) {
      row.inMixers = Unsent();
      continue;
    }
    // A new mixer has not received it. Without a mixer there is none to have
    // it. A reason why a mixer did not accept it may be outdated.
    const bool wasRefused = row.delivery == Delivery::RememberedOnly &&
                            row.inMixers != InMixers::Every;
    if (plugged || (unplugged && places.isEmpty()) ||
        (wasRefused && (unplugged || answersAgain))) {
      Forget(i);
    }
  }
}

}  // namespace ztk::window
