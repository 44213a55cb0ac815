// SPDX-License-Identifier: MIT
//
// What openUSB() and the ten requests of USB.h do, with the cause of a failure.
// For the library only: these names are not visible.
#ifndef ZTK_USB_CONNECTION_H_
#define ZTK_USB_CONNECTION_H_

#include <cstdint>

#include "usb/USB.h"

namespace ztk::usb {

// openUSB(). Where it does not return kSuccess, *cause tells why: kNoDevice if
// there is no mixer at this position.
Code Open(Connection *slot, std::uint32_t index, platform::usb::Result *cause);

// Asks for `length` bytes. *lengthDone is what came, also after a failure.
platform::usb::Result ReadRegister(Connection device, std::uint16_t reg,
                                   std::uint8_t *buffer, std::uint16_t length,
                                   std::uint32_t *lengthDone);

platform::usb::Result WriteRegister(Connection device, std::uint16_t reg,
                                    std::uint16_t value);

}  // namespace ztk::usb

#endif  // ZTK_USB_CONNECTION_H_
