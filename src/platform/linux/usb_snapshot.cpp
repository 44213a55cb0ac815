// SPDX-License-Identifier: MIT
#include "platform/linux/usb_snapshot.h"

#include <dirent.h>
#include <endian.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

#include "platform/common/file_descriptor.h"

namespace ztk::platform::usb {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr std::uint8_t kDeviceDescriptorType = 1;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// The entry of a device is named "usb2" or begins with a digit. The entry of an
// interface contains a ':'.
bool IsDevice(std::string_view entry) {
  if (!IsDigit(entry.front()) && !entry.starts_with("usb")) return false;
  return entry.find(':') == std::string_view::npos;
}

// Reads the beginning of an attribute. Returns the number of bytes, or 0 on
// failure. The path is absolute and contains the port of the device, so the
// attribute cannot be that of another device.
std::size_t ReadAttribute(std::string_view entry, std::string_view attribute,
                          void *bytes, std::size_t size) {
  std::string path(kDevices);
  path.append("/").append(entry).append("/").append(attribute);
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.valid()) return 0;
  const ssize_t got = read(file.get(), bytes, size);
  return got < 0 ? 0 : static_cast<std::size_t>(got);
}

// Closes the folder also if an allocation fails.
struct CloseFolder {
  void operator()(DIR *folder) const { closedir(folder); }
};

std::uint16_t Number16(const std::uint8_t *bytes, ByteOrder order) {
  std::uint16_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  if (order == ByteOrder::Bus) number = le16toh(number);
  return number;
}

bool ReadIdentity(std::string_view entry, DeviceIdentity *identity) {
  std::uint8_t bytes[kDeviceDescriptorLength];
  return ReadAttribute(entry, "descriptors", bytes, sizeof bytes) ==
             sizeof bytes &&
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
  constexpr int kPorts = 6;  // the largest number of ports in a path
  constexpr int kPortBits = 8;
  const bool isRoot = !IsDigit(entry[0]) && std::strncmp(entry, "usb", 3) == 0;
  const char *rest = isRoot ? entry + 3 : entry;
  std::uint64_t place = 0;
  int left = kPorts;
  for (;; --left) {
    std::uint64_t number = 0;
    while (IsDigit(*rest)) {
      number = number * 10 + static_cast<std::uint64_t>(*rest++ - '0');
    }
    place = place << kPortBits | number;
    if (left == 0 || *rest == '\0') break;
    ++rest;
  }
  return place << kPortBits * left;
}

int BusOf(std::uint64_t place) {
  constexpr int kBitsOfPorts = 48;
  return static_cast<int>(place >> kBitsOfPorts);
}

bool ReadBus(const WantedDevice &wanted, std::vector<DeviceFacts> *devices) {
  const std::unique_ptr<DIR, CloseFolder> folder(opendir(kDevices));
  if (folder == nullptr) return false;
  constexpr std::size_t kUsualDevices = 32;
  if (wanted.IsAny()) devices->reserve(kUsualDevices);
  DeviceIdentity identity;
  while (const dirent *found = readdir(folder.get())) {
    if (!IsDevice(found->d_name)) continue;
    if (!ReadIdentity(found->d_name, &identity)) continue;
    if (!wanted.Is(identity)) continue;
    devices->push_back({.entry = found->d_name,
                        .place = PlaceOf(found->d_name),
                        .identity = identity});
  }
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

std::string NodeOf(const DeviceFacts &facts, int number) {
  char path[48];
  std::snprintf(path, sizeof path, "/dev/bus/usb/%03d/%03d", BusOf(facts.place),
                number);
  return path;
}

}  // namespace ztk::platform::usb
