// SPDX-License-Identifier: MIT
//
// The facts of the MIDI channel.
#ifndef ZTK_API_MIDI_H_
#define ZTK_API_MIDI_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product.h"
#include "api/product_set.h"
#include "usb/USB.h"

namespace ztk::midi {

inline constexpr std::uint32_t kProduct = ZTK_PRODUCT_VRM_K2;
inline constexpr ProductSet kServed{kProduct};

inline const ZTKTextRef kModel = product::kNameOfK2;
inline const ZTKTextRef kKey = ZTK_TEXT("MidiChannel");
inline constexpr std::int32_t kDefaultIndex = 0;

inline constexpr std::uint32_t kChoices = 16;
// Deliberate: all sixteen channels can be set, but only the first four are sent
// again.
inline constexpr std::uint32_t kResendBelow = 4;

inline constexpr std::uint16_t kWriteRegister = usb::kMidiChannelRegister;

// Returns the value that mixers receive: the channel is in its high byte.
constexpr std::uint16_t DeviceValue(std::uint32_t index) {
  return static_cast<std::uint16_t>(index << 8);
}

// Returns whether a remembered index can be sent again. The settings file may
// contain any number.
constexpr bool CanBeResent(std::uint32_t index) { return index < kResendBelow; }

}  // namespace ztk::midi

#endif  // ZTK_API_MIDI_H_
