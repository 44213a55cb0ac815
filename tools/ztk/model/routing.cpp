// SPDX-License-Identifier: MIT
#include "ztk/model/routing.h"

#include "api/input_audio.h"

namespace ztk::model {

namespace {

// The low byte of the value that mixers receive.
constexpr std::uint16_t kLine = 1;
constexpr std::uint16_t kPhono = 3;
constexpr std::uint16_t kPostOwnFader = 6;
constexpr std::uint16_t kCrossFaderA = 7;
constexpr std::uint16_t kCrossFaderB = 8;
constexpr std::uint16_t kMic = 9;
constexpr std::uint16_t kRecOut = 10;
// After the fader of CH1; the other lanes follow.
constexpr std::uint16_t kPostFirstFader = 17;

std::optional<Tap> TapOfSource(std::uint32_t channel, std::uint16_t source) {
  switch (source) {
    case kLine:
      return Tap{.source = Source::Line, .lane = channel};
    case kPhono:
      return Tap{.source = Source::Phono, .lane = channel};
    case kPostOwnFader:
      return Tap{.source = Source::PostFader, .lane = channel};
    case kCrossFaderA:
      return Tap{.source = Source::CrossFaderA};
    case kCrossFaderB:
      return Tap{.source = Source::CrossFaderB};
    case kMic:
      return Tap{.source = Source::Mic};
    case kRecOut:
      return Tap{.source = Source::RecOut};
    default:
      break;
  }
  if (source < kPostFirstFader || source >= kPostFirstFader + kLanes) {
    return std::nullopt;
  }
  return Tap{.source = Source::PostFader,
             .lane = std::uint32_t{source} - kPostFirstFader};
}

bool IsChoice(std::uint32_t channel, std::uint32_t index) {
  return channel < std::uint32_t{input_audio::kChannels} &&
         index < input_audio::BoundsOf(channel).count;
}

}  // namespace

std::optional<Tap> TapOf(std::uint32_t channel, std::uint32_t index) {
  if (!IsChoice(channel, index)) return std::nullopt;
  return TapOfSource(channel, input_audio::DeviceValue(channel, index) & 0xFF);
}

std::optional<std::uint32_t> IndexOf(std::uint32_t channel, const Tap &tap) {
  for (std::uint32_t index = 0; IsChoice(channel, index); ++index) {
    if (TapOf(channel, index) == tap) return index;
  }
  return std::nullopt;
}

std::optional<std::uint32_t> DecidingSelector(std::uint32_t channel,
                                              std::uint32_t index) {
  if (!IsChoice(channel, index) || channel == input_audio::kLastChannel ||
      index >= input_audio::kIndexWarnsBelow.withMixer) {
    return std::nullopt;
  }
  return channel;
}

}  // namespace ztk::model
