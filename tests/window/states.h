// SPDX-License-Identifier: MIT
//
// States for the tests: each test takes one and changes what it is about.
#ifndef ZTK_TESTS_WINDOW_STATES_H_
#define ZTK_TESTS_WINDOW_STATES_H_

#include <array>
#include <cstdint>

#include "window/engine/state.h"

namespace ztk::window {

inline MixerState AnsweringMixer(int number = 1) {
  return {.number = number,
          .place = QStringLiteral("1-%1").arg(number),
          .answer = MixerAnswer::Answers,
          .firmware = 1078,
          .certifiedLevel = 1,
          .seratoActive = false,
          .selectors = {4, 4, 4, 4}};
}

inline RowState &RowOf(State *state, const model::Setting &setting,
                       std::uint32_t channel) {
  for (RowState &row : state->rows) {
    if (row.setting == &setting && row.channel == channel) return row;
  }
  qFatal("The state has no such row");
}

// One mixer, which has accepted what is remembered.
inline State UsualState() {
  State state;
  state.known = true;
  state.mixersKnown = true;
  state.mixers = {AnsweringMixer()};
  for (const model::Setting *setting : model::AllSettings()) {
    for (std::uint32_t channel = 0; channel < model::ChannelsToWalk(*setting);
         ++channel) {
      RowState row;
      row.setting = setting;
      row.channel = channel;
      row.stored = 0;
      row.delivery = Delivery::Sent;
      row.accepted = 1;
      row.inMixers = InMixers::Every;
      state.rows.append(row);
    }
  }
  // After the fader, LINE, cross fader A, LINE, REC OUT.
  constexpr std::array<std::uint32_t, 5> kChoices = {2, 1, 3, 1, 0};
  for (std::uint32_t channel = 0; channel < kChoices.size(); ++channel) {
    RowState &row = RowOf(&state, model::kInput, channel);
    row.stored = kChoices[channel];
    row.shown = kChoices[channel];
  }
  return state;
}

}  // namespace ztk::window

#endif  // ZTK_TESTS_WINDOW_STATES_H_
