// SPDX-License-Identifier: MIT
//
// The connection to a mixer and its ten requests. The functions are exported by
// the library, but this header is not installed.
//
// The library uses each connection for exactly one request. These functions
// keep no state between calls, so any thread may call them. The slot belongs to
// the caller.
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

// The register is in the index field of a request. Two numbers are used for a
// read and for an unrelated write.
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

// Counts the attached mixers without opening them. Returns 0 also if the bus
// cannot be read. `productId` is ignored.
ZTK_EXPORT std::int32_t CheckUSBAudio(std::uint32_t productId);

// Sets the slot to null, then opens the mixer at position `index` and stores
// the connection in the slot. Positions are counted from 0 in registry order.
// Returns 0 if the caller may send its request. For any other result the caller
// sends nothing and does not close the connection. The result is kError if
// `slot` is null or there is no such mixer.
ZTK_EXPORT ztk::usb::Code open_pipes(ztk::usb::Connection *slot,
                                     std::uint32_t index);

// Does the same as open_pipes(), but does not set the slot to null first.
// `slot` must not be null. If the slot contains a connection, it is not
// changed, and the result is kError if there is a mixer at this position.
// Callers use open_pipes().
ZTK_EXPORT ztk::usb::Code openUSB(ztk::usb::Connection *slot,
                                  std::uint32_t index);

// Closes the connection and sets the slot to null. Does nothing if the slot
// contains null. `slot` must not be null.
ZTK_EXPORT void closeUSB(ztk::usb::Connection *slot);

// Sends one control request. Before the call *length is the length of the data
// stage. After the call it is the number of transferred bytes, even if the
// request failed.
ZTK_EXPORT ztk::usb::Code DeviceRequest(ztk::usb::Connection device,
                                        std::uint8_t requestType,
                                        std::uint8_t request,
                                        std::uint16_t value,
                                        std::uint16_t index, void *data,
                                        std::uint16_t *length);

// The five reads. They request `length` bytes and do not return how many bytes
// the mixer sent, so the caller presets `buffer`.
ZTK_EXPORT ztk::usb::Code GetFirmwareVersionNumber(ztk::usb::Connection device,
                                                   std::uint8_t *buffer,
                                                   std::uint16_t length);
// Byte 0 is not used. Byte channel + 1 is the position of the input selector.
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

// The five writes. The value field of the request contains the new setting.
// There is no data stage.
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
