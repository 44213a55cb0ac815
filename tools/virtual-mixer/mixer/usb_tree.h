// SPDX-License-Identifier: MIT
//
// The place of a device in /sys and /dev, its udev properties, and its
// description in the text form from which umockdev builds devices.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_USB_TREE_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_USB_TREE_H_

#include <string>
#include <utility>
#include <vector>

#include "virtual-mixer/mixer/descriptors.h"

namespace ztk::virtual_mixer {

// Root hubs have 31 ports and a number of their own on the bus.
inline constexpr int kPortsOfABus = 31;

struct Address {
  int bus = 1;
  // 0 is the root hub, which all devices are plugged into.
  int port = 0;

  // Numbers follow the ports, so the order on the bus is the order of creation.
  int DeviceNumber() const { return port + 1; }
  // Of the node; the major number is 189.
  int Minor() const { return (bus - 1) * 128 + DeviceNumber() - 1; }
  std::string Name() const;  // 1-2, usb1
  // 1-2:1.0, 1-0:1.0
  std::string InterfaceName(const Interface &interface) const;
  std::string SysPath() const;  // /sys/devices/...
  std::string Node() const;     // /dev/bus/usb/001/003
};

// Names and values.
using Properties = std::vector<std::pair<std::string, std::string>>;
Properties DeviceProperties(const Address &address, const Descriptors &device);
Properties InterfaceProperties(const Descriptors &device,
                               const Interface &interface);

std::string DeviceRecord(const Address &address, const Descriptors &device);
std::string InterfaceRecord(const Address &address, const Descriptors &device,
                            const Interface &interface);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_USB_TREE_H_
