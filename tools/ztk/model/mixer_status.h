// SPDX-License-Identifier: MIT
//
// What the mixers tell of themselves.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXER_STATUS_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXER_STATUS_H_

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "api/status.h"
#include "ztk/model/reach.h"

namespace ztk::model {

// A fact that a mixer was asked for. Without a value, `why` says why: "no
// answer", "not asked", "unknown".
template <typename Value>
struct MixerFact {
  std::optional<Value> value;
  std::string why = "not asked";
};

// Positions of the input selectors; none where a position is out of range.
using SelectorPositions =
    std::array<std::optional<std::uint8_t>, status::kSelectors>;

struct MixerStatus {
  // Answered unless it could not be opened, has gone or did not answer; a mixer
  // that refuses a single question counts as answering.
  Mixer mixer;
  // The first question that failed, and how; none where all were answered.
  std::optional<Mixer> failure;
  std::string place;  // the system's name of the port, as "1-2"
  MixerFact<std::uint16_t> firmware;
  MixerFact<std::uint32_t> certificationLevel;
  MixerFact<SelectorPositions> selectors;
  MixerFact<bool> seratoActive;

  bool answers() const { return mixer.state == MixerState::Answered; }
  // Whether it answers what every mixer answers. Single questions may be
  // unknown to it.
  bool works() const { return answers() && firmware.value.has_value(); }
};

// All mixers that are attached, in the order of the bus, asked at the same
// time. A mixer that does not answer is asked nothing more, so this takes as
// long as one request. Asks again when a mixer has come or gone meanwhile.
std::vector<MixerStatus> AskEveryMixer();

// The same for the selectors alone.
std::vector<MixerStatus> AskForSelectors();

// "4.36", as the two bytes of the number read.
std::string FirmwareVersion(std::uint16_t number);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXER_STATUS_H_
