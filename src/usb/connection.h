// SPDX-License-Identifier: MIT
//
// The functions of USB.h that also return the cause of a failure. The library
// does not export them.
#ifndef ZTK_USB_CONNECTION_H_
#define ZTK_USB_CONNECTION_H_

#include <cstdint>

#include "usb/USB.h"

namespace ztk::usb {

// Does what openUSB() does. If the result is not kSuccess, *cause is the
// reason: kNoDevice if there is no mixer at this position.
Code Open(Connection *slot, std::uint32_t index, platform::usb::Result *cause);

// Requests `length` bytes. *lengthDone is the number of bytes that the mixer
// sent, even after a failure.
platform::usb::Result ReadRegister(Connection device, std::uint16_t reg,
                                   std::uint8_t *buffer, std::uint16_t length,
                                   std::uint32_t *lengthDone);

platform::usb::Result WriteRegister(Connection device, std::uint16_t reg,
                                    std::uint16_t value);

}  // namespace ztk::usb

#endif  // ZTK_USB_CONNECTION_H_
