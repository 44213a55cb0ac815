// SPDX-License-Identifier: MIT
//
// The devices on the bus at one moment, read from sysfs.
#ifndef ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_
#define ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ztk::platform::usb {

// The device descriptor, with which both `descriptors` and the node start.
inline constexpr std::size_t kDeviceDescriptorLength = 18;

struct DeviceIdentity {
  std::uint8_t deviceClass = 0;
  std::uint8_t deviceSubClass = 0;
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;

  bool operator==(const DeviceIdentity &) const = default;
};

// The wanted devices. 0 matches no device, because no device has that number.
struct WantedDevice {
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;

  bool IsAny() const { return vendor == 0 && product == 0; }
  bool Is(const DeviceIdentity &identity) const {
    return (vendor == 0 || identity.vendor == vendor) &&
           (product == 0 || identity.product == product);
  }
};

// Entry names are "usb2" for the root hub of bus 2, and "2-1.4" for the device
// behind port 4 of the hub at port 1.
struct DeviceFacts {
  std::string entry = {};
  std::uint64_t place = 0;
  DeviceIdentity identity = {};
};

// sysfs has the descriptor as it was sent over the bus, low byte first; a node
// has its numbers in the byte order of this machine.
enum class ByteOrder { Bus, Machine };

// False when these bytes are not a device descriptor.
bool ParseDeviceDescriptor(const std::uint8_t *bytes, ByteOrder order,
                           DeviceIdentity *identity);

// The place of a device as a number for sorting: its bus, then the ports on the
// way to it, one byte each. A root hub comes before the devices behind it.
std::uint64_t PlaceOf(const char *entry);
// The bus of a place.
int BusOf(std::uint64_t place);

// Lists the wanted devices by place: unlike the order of device numbers, this
// order stays the same when a mixer is unplugged and plugged in again. A device
// that is unplugged during the reading is left out. False when there is no USB.
bool ReadBus(const WantedDevice &wanted, std::vector<DeviceFacts> *devices);

// The number of the device's node on its bus; 0 when it is gone.
int ReadDeviceNumber(const DeviceFacts &facts);

// The path of the node with that number, which is above 0.
std::string NodeOf(const DeviceFacts &facts, int number);

}  // namespace ztk::platform::usb

#endif  // ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_
