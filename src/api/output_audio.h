// SPDX-License-Identifier: MIT
//
// The facts of USB output audio.
#ifndef ZTK_API_OUTPUT_AUDIO_H_
#define ZTK_API_OUTPUT_AUDIO_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product.h"
#include "api/product_set.h"
#include "api/tables.h"
#include "usb/USB.h"

namespace ztk::output_audio {

inline constexpr std::uint32_t kProduct = ZTK_PRODUCT_VRM_B5;
inline constexpr ProductSet kServed{kProduct};

inline const ZTKTextRef kModel = product::kNameOfB5;
// Deliberate: the key is named Input, although its value is the routing of the
// audio that the computer plays. "%d" is the channel, counted from 0.
inline const ZTKTextRef kKeyFormat = ZTK_TEXT("Input%d");

inline constexpr std::int32_t kChannels = 3;
// Deliberate: the setters accept two channels that have no device value.
inline constexpr std::int32_t kSettableChannels = 5;

inline constexpr std::uint32_t kChoices = 3;
// Deliberate: there is one text more than there are choices.
inline constexpr std::uint32_t kTextBelow = 4;

inline constexpr std::uint64_t kTableLength = 9;

// What the computer plays is an input of the mixer, hence the register's name.
inline constexpr std::uint16_t kWriteRegister = usb::kMixerInputRegister;
// Length in bytes of the input selectors' reply, which is read after each
// change.
inline constexpr std::uint16_t kSelectorInfoLength = 4;

// Returns the index of a channel's default choice. It is equal to the channel.
constexpr std::uint32_t DefaultIndex(std::uint32_t channel) { return channel; }

// Returns the position of a choice in the table of device values. The index may
// be any remembered number; 64 bits hold every position.
constexpr std::uint64_t PositionOf(std::uint32_t channel, std::uint32_t index) {
  return std::uint64_t{channel} * kChoices + index;
}

// Returns whether the table has this position. Nothing is sent if it does not.
// Deliberate: an index that is no choice can have a position of the next
// channel.
constexpr bool HasDeviceValue(std::uint32_t channel, std::uint32_t index) {
  return PositionOf(channel, index) < kTableLength;
}

// Returns the value that mixers receive. Requires HasDeviceValue().
inline std::uint16_t DeviceValue(std::uint32_t channel, std::uint32_t index) {
  return _convTableOut_B5[PositionOf(channel, index)];
}

}  // namespace ztk::output_audio

#endif  // ZTK_API_OUTPUT_AUDIO_H_
