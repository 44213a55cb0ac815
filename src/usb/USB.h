// SPDX-License-Identifier: MIT
//
// The connection to a mixer and its ten requests. The functions are exported by
// the library, but this header is not installed.
//
// A connection is used for exactly one request. Nothing is kept between calls,
// so any thread may call these functions; the slot belongs to the caller.
#ifndef ZTK_USB_USB_H_
#define ZTK_USB_USB_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "platform/usb.h"

namespace ztk::usb {

using Code = platform::usb::Code;
// Null, or one opened mixer.
using Connection = platform::usb::Device *;

// The product id in the USB device descriptor of a mixer. The vendor id is
// build::kUsbVendorId.
inline constexpr std::uint16_t kMixerProductId = 27;

// Registers, which the index field of a request names. Two of the numbers are
// used for a read and a write that are unrelated.
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

// Counts the attached mixers without opening them; 0 also if the bus cannot be
// read. `productId` is ignored: all models are found in the same way.
ZTK_EXPORT std::int32_t CheckUSBAudio(std::uint32_t productId);

// Empties the slot, then opens the mixer at position `index` (from 0, in
// registry order) into it. Returns 0 if the caller may send its request. For
// any other result the caller sends nothing and does not close the connection;
// kError means that the slot is null or there is no such mixer.
ZTK_EXPORT ztk::usb::Code open_pipes(ztk::usb::Connection *slot,
                                     std::uint32_t index);

// The search that open_pipes() makes; callers use open_pipes(). `slot` is not
// null. If the slot already holds a connection, it keeps that one, and the
// search returns kError when it reaches the mixer.
ZTK_EXPORT ztk::usb::Code openUSB(ztk::usb::Connection *slot,
                                  std::uint32_t index);

// Closes the connection and empties the slot, which is not null. Does nothing
// if the slot is empty.
ZTK_EXPORT void closeUSB(ztk::usb::Connection *slot);

// Sends one control request. Before the call *length is the length of the data
// stage. After the call it is the number of bytes that were transferred, also
// when the request has failed.
ZTK_EXPORT ztk::usb::Code DeviceRequest(ztk::usb::Connection device,
                                        std::uint8_t requestType,
                                        std::uint8_t request,
                                        std::uint16_t value,
                                        std::uint16_t index, void *data,
                                        std::uint16_t *length);

// Reads. They ask for `length` bytes and do not return how many came, so the
// caller presets `buffer`.
ZTK_EXPORT ztk::usb::Code GetFirmwareVersionNumber(ztk::usb::Connection device,
                                                   std::uint8_t *buffer,
                                                   std::uint16_t length);
// Byte 0 is not used; byte channel + 1 is the position of a selector.
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

// Writes. The value field of the request holds the new setting; there is no
// data stage.
ZTK_EXPORT ztk::usb::Code SetMixerOutputSetting(ztk::usb::Connection device,
                                                std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetMixerInputSetting(ztk::usb::Connection device,
                                               std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetUSBOutputLevelSetting(ztk::usb::Connection device,
                                                   std::uint16_t value);
ZTK_EXPORT ztk::usb::Code SetMidiChannelSetting(ztk::usb::Connection device,
                                                std::uint16_t value);
// No function of ZTKFunc.h sends this request; programs may call it.
ZTK_EXPORT ztk::usb::Code SetMidiKeyModeSetting(ztk::usb::Connection device,
                                                std::uint16_t value);

}  // extern "C"

#endif  // ZTK_USB_USB_H_
