// SPDX-License-Identifier: MIT
//
// The USB devices that are attached at one moment, read from sysfs.
#ifndef ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_
#define ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ztk::platform::usb {

// The length of the device descriptor. The attribute `descriptors` and the
// content of the device node begin with this descriptor.
inline constexpr std::size_t kDeviceDescriptorLength = 18;

struct DeviceIdentity {
  std::uint8_t deviceClass = 0;
  std::uint8_t deviceSubClass = 0;
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;

  bool operator==(const DeviceIdentity &) const = default;
};

// The devices to be listed. The number 0 is used by no device: a vendor or
// product of 0 means that any number is accepted.
struct WantedDevice {
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;

  bool IsAny() const { return vendor == 0 && product == 0; }
  bool Is(const DeviceIdentity &identity) const {
    return (vendor == 0 || identity.vendor == vendor) &&
           (product == 0 || identity.product == product);
  }
};

// A device in sysfs. `entry` is the name of its folder: "usb2" is the root hub
// of bus 2, "2-1.4" is the device at port 4 of the hub at port 1 of bus 2.
// `place` is PlaceOf(entry).
struct DeviceFacts {
  std::string entry = {};
  std::uint64_t place = 0;
  DeviceIdentity identity = {};
};

// The byte order of the numbers in a device descriptor. In sysfs it is the
// order of USB, low byte first. In a device node it is the order of this
// machine.
enum class ByteOrder { Bus, Machine };

// Returns false if the bytes are not a device descriptor.
bool ParseDeviceDescriptor(const std::uint8_t *bytes, ByteOrder order,
                           DeviceIdentity *identity);

// Returns the place of a device as a number for sorting: its bus, then the
// ports on the path to the device, one byte each. A root hub comes before the
// devices that are connected to it.
std::uint64_t PlaceOf(const char *entry);
// Returns the number of the bus in a place.
int BusOf(std::uint64_t place);

// Lists the wanted devices, sorted by place. This order stays the same when a
// mixer is unplugged and plugged in again; the order of device numbers does
// not. A device that is unplugged during the reading is omitted. Returns false
// if the system has no USB.
bool ReadBus(const WantedDevice &wanted, std::vector<DeviceFacts> *devices);

// Returns the number of the device on its bus, or 0 if the device is no longer
// attached.
int ReadDeviceNumber(const DeviceFacts &facts);

// Returns the path of the device node. `number` is from ReadDeviceNumber() and
// not 0.
std::string NodeOf(const DeviceFacts &facts, int number);

}  // namespace ztk::platform::usb

#endif  // ZTK_PLATFORM_LINUX_USB_SNAPSHOT_H_
