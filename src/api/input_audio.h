// SPDX-License-Identifier: MIT
//
// The facts of USB input audio.
#ifndef ZTK_API_INPUT_AUDIO_H_
#define ZTK_API_INPUT_AUDIO_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product.h"
#include "api/product_set.h"
#include "api/tables.h"
#include "usb/USB.h"

namespace ztk::input_audio {

inline constexpr std::uint32_t kProduct = ZTK_PRODUCT_VRM_D6;
inline constexpr ProductSet kServed{kProduct};

inline const ZTKTextRef kModel = product::kNameOfD6;
// Deliberate: the key is named Output, although its value is the routing of the
// audio that the computer records. "%d" is the channel, counted from 0.
inline const ZTKTextRef kKeyFormat = ZTK_TEXT("Output%d");
inline constexpr std::int32_t kDefaultIndex = 0;

inline constexpr std::int32_t kChannels = 5;
// This channel has other choices than the other channels, and no input
// selector.
inline constexpr std::uint32_t kLastChannel = 4;
// Deliberate: a remembered choice can be read and sent again for one channel
// more than exists. Channel 5 has no key, so its choice is always the default.
inline constexpr std::int32_t kRememberedChannels = 6;

// Deliberate: the three functions have three different limits.
struct Bounds {
  std::uint32_t count;      // choices that are offered
  std::uint32_t textBelow;  // indexes that have a text
  std::uint32_t setBelow;   // indexes that can be set
};
inline constexpr Bounds kRowBounds{.count = 7, .textBelow = 9, .setBelow = 8};
inline constexpr Bounds kLastRowBounds{
    .count = 8, .textBelow = 10, .setBelow = 9};

constexpr const Bounds &BoundsOf(std::uint32_t channel) {
  return channel == kLastChannel ? kLastRowBounds : kRowBounds;
}

// Both tables are addressed as one flat array.
inline constexpr std::uint32_t kRowWidth = 8;
inline constexpr std::uint32_t kTableLength = 42;

// The index may be any remembered number; 64 bits hold every position.
constexpr std::uint64_t PositionOf(std::uint32_t channel, std::uint32_t index) {
  return std::uint64_t{channel} * kRowWidth + index;
}

inline constexpr std::uint16_t kWriteRegister = usb::kMixerOutputRegister;

// Returns the value that mixers receive. Requires CanBeResent(channel, index),
// which is true for every index that can be set.
inline std::uint16_t DeviceValue(std::uint32_t channel, std::uint32_t index) {
  return _convTable_PC_INPUT[PositionOf(channel, index)];
}

// Returns whether a remembered index can be sent again.
constexpr bool CanBeResent(std::uint32_t channel, std::uint32_t index) {
  return PositionOf(channel, index) < kTableLength;
}

// The direct setter accepts a source below kSources and sends DirectValue().
inline constexpr std::uint32_t kSources = 16;
constexpr std::uint16_t DirectValue(std::uint32_t channel, std::uint32_t high,
                                    std::uint32_t source) {
  return static_cast<std::uint16_t>(((high + 1) << 12 & 0xF000) |
                                    ((channel + 1) << 8 & 0x0F00) |
                                    (source & 0x00FF));
}

// A routing whose number is below a threshold can be heard only if the input
// selector of the channel is in this position. Otherwise the setter warns.
inline constexpr std::uint8_t kAudiblePosition = ZTK_SELECTOR_AUDIBLE;
inline constexpr std::uint16_t kSelectorInfoLength = 5;  // bytes
// Deliberate: the thresholds depend on the setter and on whether a mixer is
// attached.
struct Thresholds {
  std::uint32_t withoutMixer;
  std::uint32_t withMixer;
};
inline constexpr Thresholds kIndexWarnsBelow{.withoutMixer = 3, .withMixer = 2};
inline constexpr Thresholds kSourceWarnsBelow{.withoutMixer = 2,
                                              .withMixer = 4};

}  // namespace ztk::input_audio

#endif  // ZTK_API_INPUT_AUDIO_H_
