// SPDX-License-Identifier: MIT
//
// Connection to a mixer and the ten requests that it understands. The names
// are visible in the library, but this header is not installed.
//
// A connection lives for exactly one request. Nothing is kept between calls,
// so any thread may call; the slot belongs to the caller.
#ifndef ZTK_USB_USB_H_
#define ZTK_USB_USB_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "platform/usb.h"

namespace ztk::usb {

using Code = platform::usb::Code;
// Null, or one opened mixer.
using Connection = platform::usb::Device *;

// The mixer in its USB device descriptor; the vendor is build::kUsbVendorId.
inline constexpr std::uint16_t kMixerProductId = 27;

// Registers, as they stand in the index field of a request. Two numbers serve
// a read and a write that have nothing to do with each other.
inline constexpr std::uint16_t kFirmwareVersionRegister = 0x8001;
inline constexpr std::uint16_t kInputSelectorRegister = 0x8002;
inline constexpr std::uint16_t kMixerOutputRegister = 0x8002;
inline constexpr std::uint16_t kUsbOutputLevelRegister = 0x8003;
inline constexpr std::uint16_t kSeratoActiveRegister = 0x8004;
inline constexpr std::uint16_t kMidiChannelRegister = 0x8004;
inline constexpr std::uint16_t kMidiKeyModeRegister = 0x8005;
inline constexpr std::uint16_t kPortInfoRegister = 0x8006;
inline constexpr std::uint16_t kCertifyLevelRegister = 0x8007;
inline constexpr std::uint16_t kMixerInputRegister = 0x8016;

}  // namespace ztk::usb

extern "C" {

// Counts the attached mixers; 0 also when the bus cannot be read. None is
// opened. `productId` is ignored: every model is found the same way.
ZTK_EXPORT std::int32_t CheckUSBAudio(std::uint32_t productId);

// Empties the slot, then opens the mixer at position `index` (from 0, in
// registry order) into it. 0 when the caller may send its request; anything
// else means: send nothing and do not close. kError for a null slot or no such
// mixer.
ZTK_EXPORT ztk::usb::Code open_pipes(ztk::usb::Connection *slot,
                                     std::uint32_t index);

// The search behind open_pipes(), which callers use instead. `slot` is not
// null. An occupied slot keeps its connection and answers kError once the mixer
// is reached.
ZTK_EXPORT ztk::usb::Code openUSB(ztk::usb::Connection *slot,
                                  std::uint32_t index);

// Closes the connection and empties the slot, which is not null; nothing on an
// empty one.
ZTK_EXPORT void closeUSB(ztk::usb::Connection *slot);

// Sends one control request. *length is the length of the data stage before,
// and the bytes transferred after the call, whatever the result.
ZTK_EXPORT ztk::usb::Code DeviceRequest(ztk::usb::Connection device,
                                        std::uint8_t requestType,
                                        std::uint8_t request,
                                        std::uint16_t value,
                                        std::uint16_t index, void *data,
                                        std::uint16_t *length);

// Reads. `length` bytes are asked for; how many came is not told, so the
// caller presets `buffer`.
ZTK_EXPORT ztk::usb::Code GetFirmwareVersionNumber(ztk::usb::Connection device,
                                                   std::uint8_t *buffer,
                                                   std::uint16_t length);
// Byte 0 has no meaning here; byte channel + 1 is a selector's position.
ZTK_EXPORT ztk::usb::Code GetInputSelectorInfo(ztk::usb::Connection device,
                                               std::uint8_t *buffer,
                                               std::uint16_t length);
ZTK_EXPORT ztk::usb::Code GetSeratoActiveInfo(ztk::usb::Connection device,
                                              std::uint8_t *buffer,
                                              std::uint16_t length);
ZTK_EXPORT ztk::usb::Code GetPortInfo(ztk::usb::Connection device,
                                      std::uint8_t *buffer,
                                      std::uint16_t length);
ZTK_EXPORT ztk::usb::Code GetCertifyLevel(ztk::usb::Connection device,
                                          std::uint8_t *buffer,
                                          std::uint16_t length);

// Writes: the new setting travels in the value field, there is no data stage.
ZTK_EXPORT ztk::usb::Code SetMixerOutputSetting(ztk::usb::Connection device,
                                                std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetMixerInputSetting(ztk::usb::Connection device,
                                               std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetUSBOutputLevelSetting(ztk::usb::Connection device,
                                                   std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetMidiChannelSetting(ztk::usb::Connection device,
                                                std::uint16_t value);
// No function of the library sends this one; programs may.
ZTK_EXPORT ztk::usb::Code SetMidiKeyModeSetting(ztk::usb::Connection device,
                                                std::uint16_t value);

}  // extern "C"

#endif  // ZTK_USB_USB_H_
