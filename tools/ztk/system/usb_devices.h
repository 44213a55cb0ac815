// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_SYSTEM_USB_DEVICES_H_
#define ZTK_TOOLS_ZTK_SYSTEM_USB_DEVICES_H_

#include <string>
#include <vector>

namespace ztk::model {

// A device on the bus, without data that identifies its user. A text is empty
// when the system does not report it.
struct UsbDevice {
  std::string place;  // as MixerPlaces() names places
  // Two hexadecimal digits. When the interfaces have classes of their own, the
  // class of the first interface.
  std::string deviceClass;
  std::string speed;  // in Mbit/s
  // The name that the device gives itself, if the system reports it.
  std::string product = {};
};

// All devices, hubs and mixers included, in the order of their places. Opens
// none of them.
std::vector<UsbDevice> UsbDevices();

// The name that the device at the place gives itself, on one line. Empty if the
// system does not report it, and on macOS, where ztk does not look for it.
std::string ProductAt(const std::string &place);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_USB_DEVICES_H_
