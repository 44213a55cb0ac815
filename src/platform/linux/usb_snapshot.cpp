// SPDX-License-Identifier: MIT
#include "platform/linux/usb_snapshot.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
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
  char path[sizeof kDevices + kLongestEntry + 16];
  std::snprintf(path, sizeof path, "%s/%s/%s", kDevices, entry, attribute);
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return 0;
  const ssize_t got = read(file, bytes, size);
  close(file);
  return got < 0 ? 0 : static_cast<std::size_t>(got);
}

std::uint16_t LittleEndian16(const std::uint8_t *bytes) {
  return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8);
}

// The next number in a name of numbers and single separators; -1 at its end.
long NextNumber(const char **text) {
  if (**text == '\0') return -1;
  char *end = nullptr;
  const long number = std::strtol(*text, &end, 10);
  *text = *end == '\0' ? end : end + 1;
  return number;
}

// Devices only: interfaces have a ':' in their name.
bool IsDeviceEntry(const char *name) {
  if (std::strlen(name) > kLongestEntry) return false;
  if (std::strncmp(name, "usb", 3) == 0) return true;
  return name[0] >= '0' && name[0] <= '9' && std::strchr(name, ':') == nullptr;
}

// "usb2" becomes the number 2 alone, so a root hub comes before what it bears.
const char *NumbersOf(const char *entry) {
  return std::strncmp(entry, "usb", 3) == 0 ? entry + 3 : entry;
}

bool ComesBefore(const DeviceFacts &left, const DeviceFacts &right) {
  const char *leftText = NumbersOf(left.entry);
  const char *rightText = NumbersOf(right.entry);
  while (true) {
    const long leftNumber = NextNumber(&leftText);
    const long rightNumber = NextNumber(&rightText);
    if (leftNumber != rightNumber) return leftNumber < rightNumber;
    if (leftNumber < 0) return false;
  }
}

bool ReadIdentity(const char *entry, DeviceIdentity *identity) {
  std::uint8_t bytes[kDeviceDescriptorLength];
  const std::size_t got =
      ReadAttribute(entry, "descriptors", bytes, sizeof bytes);
  return got == sizeof bytes && ParseDeviceDescriptor(bytes, identity);
}

}  // namespace

bool ParseDeviceDescriptor(const std::uint8_t *bytes,
                           DeviceIdentity *identity) {
  if (bytes[0] != kDeviceDescriptorLength) return false;
  if (bytes[1] != kDeviceDescriptorType) return false;
  *identity = {.deviceClass = bytes[4],
               .deviceSubClass = bytes[5],
               .vendor = LittleEndian16(bytes + 8),
               .product = LittleEndian16(bytes + 10)};
  return true;
}

bool ReadBus(std::vector<DeviceFacts> *devices) {
  DIR *directory = opendir(kDevices);
  if (directory == nullptr) return false;
  while (const dirent *found = readdir(directory)) {
    if (!IsDeviceEntry(found->d_name)) continue;
    DeviceFacts facts;
    std::memcpy(facts.entry, found->d_name, std::strlen(found->d_name));
    if (!ReadIdentity(facts.entry, &facts.identity)) continue;
    const char *numbers = NumbersOf(facts.entry);
    facts.bus = static_cast<int>(NextNumber(&numbers));
    devices->push_back(facts);
  }
  closedir(directory);
  std::sort(devices->begin(), devices->end(), ComesBefore);
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
