// SPDX-License-Identifier: MIT
//
// A program that finds mixers with system calls on /sys and /dev, without a
// library. Prints the results, and failures by the name of their error number.
//
//   probe list                            every device, in bus order
//   probe read MIXER REGISTER LENGTH [TIMEOUT]
//   probe write MIXER REGISTER VALUE [TIMEOUT]
//   probe raw MIXER TYPE REQUEST VALUE INDEX LENGTH
//   probe hold MIXER    opens it, prints "open", waits for a line, reads once
//
// Numbers are hexadecimal but for MIXER, LENGTH and TIMEOUT.
#include <dirent.h>
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr char kFolder[] = "/sys/bus/usb/devices";
constexpr std::size_t kDescriptor = 18;
constexpr int kMixerProduct = 27;

struct Device {
  int bus = 0;
  int number = 0;
  std::string name;
  int vendor = 0;
  int product = 0;
};

std::string ErrorName(int number) {
  const char *const name = strerrorname_np(number);
  return name == nullptr ? std::to_string(number) : name;
}

// The result of one read; empty on failure.
std::string ReadOnce(const std::string &path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return "";
  std::array<char, 256> text{};
  const ssize_t got = read(file, text.data(), text.size());
  close(file);
  return got <= 0 ? "" : std::string(text.data(), static_cast<size_t>(got));
}

int Word(const std::string &bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes[at]) |
         static_cast<std::uint8_t>(bytes[at + 1]) << 8;
}

std::vector<Device> Devices() {
  std::vector<Device> devices;
  DIR *const folder = opendir(kFolder);
  if (folder == nullptr) return devices;
  while (const dirent *const entry = readdir(folder)) {
    Device device;
    device.name = entry->d_name;
    if (device.name[0] == '.') continue;
    if (device.name.find(':') != std::string::npos) continue;
    const std::string path = std::string(kFolder) + "/" + device.name;
    const std::string descriptor = ReadOnce(path + "/descriptors");
    if (descriptor.size() < kDescriptor) continue;
    device.bus = std::atoi(device.name.c_str() +
                           (device.name.compare(0, 3, "usb") == 0 ? 3 : 0));
    device.number = std::atoi(ReadOnce(path + "/devnum").c_str());
    device.vendor = Word(descriptor, 8);
    device.product = Word(descriptor, 10);
    devices.push_back(device);
  }
  closedir(folder);
  std::sort(devices.begin(), devices.end(), [](const auto &a, const auto &b) {
    return a.bus != b.bus ? a.bus < b.bus : a.number < b.number;
  });
  return devices;
}

int List() {
  for (const Device &device : Devices()) {
    std::printf("%03d/%03d %s %04x:%04x\n", device.bus, device.number,
                device.name.c_str(), static_cast<unsigned>(device.vendor),
                static_cast<unsigned>(device.product));
  }
  return 0;
}

// Opens the n-th mixer, counted from 1; prints the reason when it cannot.
int OpenMixer(int mixer) {
  for (const Device &device : Devices()) {
    if (device.product != kMixerProduct || --mixer != 0) continue;
    std::array<char, 64> path{};
    std::snprintf(path.data(), path.size(), "/dev/bus/usb/%03d/%03d",
                  device.bus, device.number);
    const int node = open(path.data(), O_RDWR | O_CLOEXEC);
    if (node < 0) {
      std::printf("open %s\n", ErrorName(errno).c_str());
      return -1;
    }
    std::array<char, kDescriptor> bytes{};
    const ssize_t got = read(node, bytes.data(), bytes.size());
    const std::string descriptor(bytes.begin(), bytes.end());
    if (got == static_cast<ssize_t>(kDescriptor) &&
        Word(descriptor, 10) == kMixerProduct) {
      return node;
    }
    std::printf("the node does not hold the mixer's descriptor\n");
    close(node);
    return -1;
  }
  std::printf("no such mixer\n");
  return -1;
}

// Prints the result and the whole buffer, which starts as ee ee ee.
void Request(int node, usbdevfs_ctrltransfer transfer) {
  std::vector<std::uint8_t> buffer(transfer.wLength, 0xEE);
  transfer.data = buffer.data();
  errno = 0;
  const int result = ioctl(node, USBDEVFS_CONTROL, &transfer);
  if (result < 0) {
    std::printf("%s", ErrorName(errno).c_str());
  } else {
    std::printf("%d", result);
  }
  if (!buffer.empty()) std::printf(":");
  for (const std::uint8_t byte : buffer) {
    std::printf(" %02x", static_cast<unsigned>(byte));
  }
  std::printf("\n");
  std::fflush(stdout);
}

long Number(const char *text, int base) {
  return std::strtol(text, nullptr, base);
}
std::uint16_t Hex(const char *text) {
  return static_cast<std::uint16_t>(Number(text, 16));
}

usbdevfs_ctrltransfer Transfer(int type, int request, std::uint16_t value,
                               std::uint16_t index, long length, long timeout) {
  usbdevfs_ctrltransfer transfer{};
  transfer.bRequestType = static_cast<std::uint8_t>(type);
  transfer.bRequest = static_cast<std::uint8_t>(request);
  transfer.wValue = value;
  transfer.wIndex = index;
  transfer.wLength = static_cast<std::uint16_t>(length);
  transfer.timeout = static_cast<std::uint32_t>(timeout);
  return transfer;
}

int Run(const std::vector<const char *> &words) {
  const std::string what = words[0];
  const int node = OpenMixer(static_cast<int>(Number(words[1], 10)));
  if (node < 0) return 1;
  if (what == "read" && words.size() >= 4) {
    const long timeout = words.size() > 4 ? Number(words[4], 10) : 5000;
    Request(node,
            Transfer(0xC0, 0, 0, Hex(words[2]), Number(words[3], 10), timeout));
  } else if (what == "write" && words.size() >= 4) {
    const long timeout = words.size() > 4 ? Number(words[4], 10) : 5000;
    Request(node, Transfer(0x40, 3, Hex(words[3]), Hex(words[2]), 0, timeout));
  } else if (what == "raw" && words.size() == 7) {
    Request(node, Transfer(Hex(words[2]), Hex(words[3]), Hex(words[4]),
                           Hex(words[5]), Number(words[6], 10), 5000));
  } else if (what == "hold") {
    std::printf("open\n");
    std::fflush(stdout);
    while (std::getchar() != '\n' && std::feof(stdin) == 0) {
    }
    Request(node, Transfer(0xC0, 0, 0, 0x8001, 2, 5000));
  }
  close(node);
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  const std::vector<const char *> words(argv + 1, argv + argc);
  if (words.size() == 1 && std::strcmp(words[0], "list") == 0) return List();
  if (words.size() >= 2) return Run(words);
  std::fprintf(stderr, "probe: see the head of its source\n");
  return 2;
}
