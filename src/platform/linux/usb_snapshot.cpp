// SPDX-License-Identifier: MIT
#include "platform/linux/usb_snapshot.h"

#include <dirent.h>
#include <endian.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace ztk::platform::usb {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr std::uint8_t kDeviceDescriptorType = 1;

// Reads the start of an attribute; the number of bytes, 0 on failure. Absolute
// paths and open(): the attributes of a device that has gone cannot be taken
// for another one's, because the entry's name says where it is plugged in.
std::size_t ReadAttribute(const char *entry, const char *attribute, void *bytes,
                          std::size_t size) {
  // No snprintf(): this runs for every device on the bus, three times a setter.
  char path[sizeof kDevices + kLongestEntry + 16];
  char *end = stpcpy(path, kDevices);
  *end++ = '/';
  end = stpcpy(end, entry);
  *end++ = '/';
  stpcpy(end, attribute);
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return 0;
  const ssize_t got = read(file, bytes, size);
  close(file);
  return got < 0 ? 0 : static_cast<std::size_t>(got);
}

std::uint16_t Number16(const std::uint8_t *bytes, ByteOrder order) {
  std::uint16_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  if (order == ByteOrder::Bus) number = le16toh(number);
  return number;
}

// Devices only: interfaces have a ':' in their name.
bool IsDeviceEntry(const char *name) {
  if (std::strlen(name) > kLongestEntry) return false;
  if (std::strncmp(name, "usb", 3) == 0) return true;
  return name[0] >= '0' && name[0] <= '9' && std::strchr(name, ':') == nullptr;
}

bool ReadIdentity(const char *entry, DeviceIdentity *identity) {
  std::uint8_t bytes[kDeviceDescriptorLength];
  const std::size_t got =
      ReadAttribute(entry, "descriptors", bytes, sizeof bytes);
  return got == sizeof bytes &&
         ParseDeviceDescriptor(bytes, ByteOrder::Bus, identity);
}

}  // namespace

bool ParseDeviceDescriptor(const std::uint8_t *bytes, ByteOrder order,
                           DeviceIdentity *identity) {
  if (bytes[0] != kDeviceDescriptorLength) return false;
  if (bytes[1] != kDeviceDescriptorType) return false;
  *identity = {.deviceClass = bytes[4],
               .deviceSubClass = bytes[5],
               .vendor = Number16(bytes + 8, order),
               .product = Number16(bytes + 10, order)};
  return true;
}

std::uint64_t PlaceOf(const char *entry) {
  constexpr int kPorts = 6;  // the deepest that USB allows
  constexpr int kPortBits = 8;
  const char *rest = std::strncmp(entry, "usb", 3) == 0 ? entry + 3 : entry;
  std::uint64_t place = 0;
  for (int i = 0; i <= kPorts; ++i) {
    std::uint64_t number = 0;
    while (*rest >= '0' && *rest <= '9') {
      number = number * 10 + static_cast<std::uint64_t>(*rest++ - '0');
    }
    place = place << kPortBits | number;
    if (*rest != '\0') ++rest;
  }
  return place;
}

int BusOf(std::uint64_t place) {
  constexpr int kBitsOfPorts = 48;
  return static_cast<int>(place >> kBitsOfPorts);
}

bool ReadBus(std::vector<DeviceFacts> *devices) {
  DIR *directory = opendir(kDevices);
  if (directory == nullptr) return false;
  constexpr std::size_t kUsualDevices = 32;
  devices->reserve(kUsualDevices);
  while (const dirent *found = readdir(directory)) {
    if (!IsDeviceEntry(found->d_name)) continue;
    DeviceFacts facts;
    std::memcpy(facts.entry, found->d_name, std::strlen(found->d_name));
    if (!ReadIdentity(facts.entry, &facts.identity)) continue;
    facts.place = PlaceOf(facts.entry);
    devices->push_back(facts);
  }
  closedir(directory);
  std::sort(devices->begin(), devices->end(),
            [](const DeviceFacts &left, const DeviceFacts &right) {
              return left.place < right.place;
            });
  return true;
}

int ReadDeviceNumber(const DeviceFacts &facts) {
  char text[16] = {};
  if (ReadAttribute(facts.entry, "devnum", text, sizeof text - 1) == 0) {
    return 0;
  }
  return std::atoi(text);
}

}  // namespace ztk::platform::usb
