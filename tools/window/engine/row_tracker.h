// SPDX-License-Identifier: MIT
//
// Keeps the rows of the state up to date: what is stored, what became of the
// changes of this window, and which mixers have what is stored.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_ROW_TRACKER_H_
#define ZTK_TOOLS_WINDOW_ENGINE_ROW_TRACKER_H_

#include <QList>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "window/engine/readings.h"
#include "window/engine/state.h"
#include "window/engine/steps.h"

namespace ztk::window {

class RowTracker {
 public:
  // Makes the rows of the state, and changes them from then on.
  explicit RowTracker(State *state);

  // The user has made a choice. The result names the choice in TakeOutcome(); 0
  // if there is no such row.
  std::uint64_t TakeChoice(const model::Setting &setting, std::uint32_t channel,
                           std::uint32_t index);
  // A step has ended: the choice with this number, or another step (0).
  void TakeOutcome(const StepOutcome &outcome, std::uint64_t choice);
  void TakeStored(const StoredState &stored);
  // The mixers that are attached now. Called before State::mixers changes.
  void TakeMixers(const QList<MixerState> &mixers);

 private:
  struct Own {
    std::uint64_t choice = 0;  // the choice that is not made yet; 0: none
    // What this window has sent last, as long as it is stored.
    std::optional<std::uint32_t> sent;
  };

  void TakeRow(const RowOutcome &outcome, std::uint64_t choice);
  // The places at which mixers are attached now. `answersAgain`: one of these
  // mixers has not answered before.
  void TakePlaces(const QStringList &places, bool answersAgain);
  // What this window has sent does not count any more.
  void Forget(qsizetype row);
  // Of a row that this window has not sent.
  InMixers Unsent() const;

  State &state_;
  std::vector<Own> own_;  // of each row
  std::uint64_t lastChoice_ = 0;
  QStringList places_;  // at which mixers were attached when last read
  bool placesKnown_ = false;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_ROW_TRACKER_H_
