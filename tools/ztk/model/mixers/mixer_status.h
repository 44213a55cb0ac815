// SPDX-License-Identifier: MIT
//
// The status that the mixers report.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXERS_MIXER_STATUS_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXERS_MIXER_STATUS_H_

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "api/status.h"
#include "ztk/model/mixers/reach.h"

namespace ztk::model {

// A value that a mixer was asked for. Without a value, `why` is the reason: "no
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
  // Answered, unless it could not be opened, was unplugged or did not answer. A
  // mixer that refuses a single query counts as answering.
  Mixer mixer;
  // The first query that failed, and how; none when all were answered.
  std::optional<Mixer> failure;
  std::string place;  // the system's name of the port, such as "1-2"
  // The name that it gives itself, such as "VRM-D6"; see ProductAt().
  std::string product;
  MixerFact<std::uint16_t> firmware;
  MixerFact<std::uint32_t> certificationLevel;
  MixerFact<SelectorPositions> selectors;
  MixerFact<bool> seratoActive;

  bool answers() const { return mixer.state == MixerState::Answered; }
  // Whether it answers the queries that every mixer knows. It may not know
  // single queries.
  bool works() const { return answers() && firmware.value.has_value(); }
  // Whether it was asked, and has refused each query or failed it.
  bool refusesAll() const {
    return answers() && failure && !firmware.value &&
           !certificationLevel.value && !selectors.value && !seratoActive.value;
  }
};

// All attached mixers in the order of the bus. They are asked at the same time,
// and a mixer that does not answer is not asked again, so this usually takes
// at most one second. Asks all again when a mixer was plugged in or unplugged
// during this.
std::vector<MixerStatus> AskEveryMixer();

// Asks all attached mixers in the same way, but only for the positions of their
// selectors.
std::vector<MixerStatus> AskForSelectors();

// "4.36", as the two bytes of the number read.
std::string FirmwareVersion(std::uint16_t number);

// Whether the mixer has sent all bytes of the number. A byte that it has not
// sent reads as 0xFF. The tested bytes of a real version or level are never
// 0xFF.
bool IsWholeFirmware(std::uint16_t number);
bool IsWholeLevel(std::uint32_t level);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXERS_MIXER_STATUS_H_
