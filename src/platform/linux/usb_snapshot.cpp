// SPDX-License-Identifier: MIT
#include "platform/linux/usb_snapshot.h"

#include <dirent.h>
#include <endian.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>

namespace ztk::platform::usb {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr std::uint8_t kDeviceDescriptorType = 1;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// The path of an entry's attributes, changed in place from entry to entry: no
// snprintf(), as this runs for every device on the bus, three times a setter.
class AttributePath {
 public:
  AttributePath() {
    std::memcpy(text_, kDevices, sizeof kDevices);
    text_[kPrefix - 1] = '/';
  }

  // Takes a name and is true when it is that of a device: interfaces have a ':'
  // in theirs.
  bool SetEntry(const char *name) {
    if (!IsDigit(name[0]) && std::strncmp(name, "usb", 3) != 0) return false;
    length_ = 0;
    for (; name[length_] != '\0'; ++length_) {
      if (name[length_] == ':' || length_ == kLongestEntry) return false;
      text_[kPrefix + length_] = name[length_];
    }
    return true;
  }

  const char *entry() const { return text_ + kPrefix; }
  std::size_t length() const { return length_; }

  // Reads the start of an attribute; the number of bytes, 0 on failure.
  // Absolute paths and open(): the attributes of a device that has gone cannot
  // be taken for another one's, because the entry's name says where it is
  // plugged in.
  template <std::size_t kNameSize>
  std::size_t Read(const char (&attribute)[kNameSize], void *bytes,
                   std::size_t size) {
    static_assert(kNameSize <= kLongestAttribute);
    std::memcpy(text_ + kPrefix + length_, attribute, kNameSize);
    const int file = open(text_, O_RDONLY | O_CLOEXEC);
    if (file < 0) return 0;
    const ssize_t got = read(file, bytes, size);
    close(file);
    return got < 0 ? 0 : static_cast<std::size_t>(got);
  }

 private:
  static constexpr std::size_t kPrefix = sizeof kDevices;  // and the '/'
  static constexpr std::size_t kLongestAttribute = 16;

  char text_[kPrefix + kLongestEntry + kLongestAttribute];
  std::size_t length_ = 0;
};

std::uint16_t Number16(const std::uint8_t *bytes, ByteOrder order) {
  std::uint16_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  if (order == ByteOrder::Bus) number = le16toh(number);
  return number;
}

// Three digits or more, as "%03d" has them; answers their end.
char *WriteThreeDigits(int number, char *to) {
  constexpr int kMostDigits = 10;
  for (int least = 100; least > 1 && number < least; least /= 10) *to++ = '0';
  return std::to_chars(to, to + kMostDigits, number).ptr;
}

bool ReadIdentity(AttributePath *path, DeviceIdentity *identity) {
  std::uint8_t bytes[kDeviceDescriptorLength];
  return path->Read("/descriptors", bytes, sizeof bytes) == sizeof bytes &&
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
  DIR *directory = opendir(kDevices);
  if (directory == nullptr) return false;
  constexpr std::size_t kUsualDevices = 32;
  if (wanted.IsAny()) devices->reserve(kUsualDevices);
  AttributePath path;
  DeviceIdentity identity;
  while (const dirent *found = readdir(directory)) {
    if (!path.SetEntry(found->d_name)) continue;
    if (!ReadIdentity(&path, &identity) || !wanted.Is(identity)) continue;
    DeviceFacts &facts = devices->emplace_back();
    std::memcpy(facts.entry, path.entry(), path.length());
    facts.place = PlaceOf(facts.entry);
    facts.identity = identity;
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
  AttributePath path;
  if (!path.SetEntry(facts.entry)) return 0;
  if (path.Read("/devnum", text, sizeof text - 1) == 0) return 0;
  return std::atoi(text);
}

NodePath NodeOf(const DeviceFacts &facts, int number) {
  NodePath path;
  char *end = stpcpy(path.text, "/dev/bus/usb/");
  end = WriteThreeDigits(BusOf(facts.place), end);
  *end++ = '/';
  *WriteThreeDigits(number, end) = '\0';
  return path;
}

}  // namespace ztk::platform::usb
