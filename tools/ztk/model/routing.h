// SPDX-License-Identifier: MIT
//
// The points of the VRM-D6 that the computer can record, and which of them the
// choices of USB input audio stand for.
#ifndef ZTK_TOOLS_ZTK_MODEL_ROUTING_H_
#define ZTK_TOOLS_ZTK_MODEL_ROUTING_H_

#include <cstdint>
#include <optional>

#include "ZTKFunc.h"

namespace ztk::model {

// The channels CH1 to CH4 of the mixer; not the USB channels.
inline constexpr std::uint32_t kLanes = 4;

enum class Source : std::uint8_t {
  Phono,      // an input of a lane
  Line,       // an input of a lane
  PostFader,  // after the fader of a lane
  CrossFaderA,
  CrossFaderB,
  Mic,
  RecOut
};

// The point from which a signal is recorded.
struct Tap {
  Source source;
  std::uint32_t lane = 0;  // counts from 0; 0 for a source without lanes

  bool operator==(const Tap &) const = default;
};

// The tap that a choice of a USB channel records; none for a number that is not
// a choice.
std::optional<Tap> TapOf(std::uint32_t channel, std::uint32_t index);

// The choice of a USB channel that records this tap; none when there is no such
// choice.
std::optional<std::uint32_t> IndexOf(std::uint32_t channel, const Tap &tap);

// The lane whose input selector decides whether this choice can be heard; none
// when it depends on no selector.
std::optional<std::uint32_t> DecidingSelector(std::uint32_t channel,
                                              std::uint32_t index);

// The position of that selector in which the choice can be heard.
inline constexpr int kAudiblePosition = ZTK_SELECTOR_AUDIBLE;

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_ROUTING_H_
