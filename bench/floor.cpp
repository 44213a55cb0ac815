// SPDX-License-Identifier: MIT
#include "floor.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstring>

#include "build_config.h"
#include "floor_parts.h"

namespace ztk::bench::floor {
namespace {

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr std::size_t kDescriptorLength = 18;
constexpr std::uint16_t kMixerProductId = 27;
constexpr unsigned kTimeoutMs = 5000;
constexpr std::uint16_t kRoutingRegister = 0x8002;
constexpr std::uint16_t kSelectorLength = 5;

// Joins the three parts of a path. snprintf() is not used because it takes
// longer than a system call.
class AttributePath {
 public:
  AttributePath() {
    std::memcpy(text_, kDevices, sizeof kDevices);
    text_[sizeof kDevices - 1] = '/';
  }
  const char *Of(const char *entry, const char *attribute) {
    char *end = stpcpy(text_ + sizeof kDevices, entry);
    *end++ = '/';
    stpcpy(end, attribute);
    return text_;
  }

 private:
  char text_[sizeof kDevices + NAME_MAX + 16];
};

ssize_t ReadAttribute(AttributePath *path, const char *entry,
                      const char *attribute, void *bytes, std::size_t size) {
  const int file = open(path->Of(entry, attribute), O_RDONLY | O_CLOEXEC);
  if (file < 0) return -1;
  const ssize_t got = read(file, bytes, size);
  close(file);
  return got;
}

bool IsDevice(const char *entry) {
  return entry[0] == 'u' ||
         (entry[0] != '.' && std::strchr(entry, ':') == nullptr);
}

bool IsMixer(const unsigned char *descriptor) {
  return descriptor[8] == (build::kUsbVendorId & 0xFF) &&
         descriptor[9] == build::kUsbVendorId >> 8 &&
         descriptor[10] == kMixerProductId && descriptor[11] == 0;
}

// The entry of a mixer, and its bus, which is the first number of the entry.
struct Mixer {
  char entry[32];
};

// Reads the identity of every device and stores the mixer at `position`,
// counted in the order of the folder. Returns the number of mixers.
int Walk(int position, Mixer *mixer) {
  DIR *directory = opendir(kDevices);
  if (directory == nullptr) return 0;
  AttributePath path;
  int mixers = 0;
  while (const dirent *found = readdir(directory)) {
    if (!IsDevice(found->d_name)) continue;
    unsigned char descriptor[kDescriptorLength];
    if (ReadAttribute(&path, found->d_name, "descriptors", descriptor,
                      sizeof descriptor) != sizeof descriptor) {
      continue;
    }
    if (!IsMixer(descriptor)) continue;
    if (mixers++ == position) stpcpy(mixer->entry, found->d_name);
  }
  closedir(directory);
  return mixers;
}

// Writes the number before `end` with three digits.
void WriteThreeDigits(char *to, const char *begin, const char *end) {
  std::memset(to, '0', 3);
  std::memcpy(to + 3 - (end - begin), begin,
              static_cast<std::size_t>(end - begin));
}

int OpenNode(const Mixer &mixer) {
  AttributePath attribute;
  char number[16];
  const ssize_t length =
      ReadAttribute(&attribute, mixer.entry, "devnum", number, 15);
  if (length < 2 || length > 4) return -1;  // up to three digits and a line end
  char path[] = "/dev/bus/usb/000/000";
  WriteThreeDigits(path + 13, mixer.entry, std::strchr(mixer.entry, '-'));
  WriteThreeDigits(path + 17, number, number + length - 1);
  const int node = open(path, O_RDWR | O_CLOEXEC);
  if (node < 0) return -1;
  unsigned char descriptor[kDescriptorLength];
  if (read(node, descriptor, sizeof descriptor) == sizeof descriptor) {
    return node;
  }
  close(node);
  return -1;
}

// Finds the mixer at a position and sends it one request. Returns false if the
// mixer cannot be opened.
bool Ask(int position, std::uint8_t type, std::uint8_t request,
         std::uint16_t value, std::uint16_t length, void *data) {
  Mixer mixer;
  if (Walk(position, &mixer) <= position) return false;
  const int node = OpenNode(mixer);
  if (node < 0) return false;
  usbdevfs_ctrltransfer transfer = {};
  transfer.bRequestType = type;
  transfer.bRequest = request;
  transfer.wValue = value;
  transfer.wIndex = kRoutingRegister;
  transfer.wLength = length;
  transfer.timeout = kTimeoutMs;
  transfer.data = data;
  ioctl(node, USBDEVFS_CONTROL, &transfer);
  close(node);
  return true;
}

void SendToEach(int mixers, std::uint16_t value) {
  std::uint16_t unused = 0;
  for (int i = 0; i < mixers; ++i) Ask(i, 0x40, 3, value, 0, &unused);
}

int ReadSelectors(int mixers, std::uint32_t channel) {
  int last = -1;
  for (int i = 0; i < mixers; ++i) {
    unsigned char positions[kSelectorLength] = {};
    if (Ask(i, 0xC0, 0, 0, kSelectorLength, positions)) {
      last = channel + 1 < kSelectorLength ? positions[channel + 1] : 0;
    }
  }
  return last;
}

}  // namespace

const char *Prepare() {
  const char *problem = PrepareSettings();
  return problem != nullptr ? problem : PrepareBus();
}

int Count() { return Walk(-1, nullptr); }

int Set(std::uint32_t channel, std::uint32_t index, std::uint16_t value) {
  const int mixers = Count();
  SendToEach(mixers, value);
  StoreIndex(channel, index);
  AnnounceIndex(channel, index);
  ReadSelectors(mixers, channel);
  return mixers;
}

int Query(std::uint32_t channel) { return ReadSelectors(Count(), channel); }

int Apply(std::uint16_t value) {
  ReadSettings();
  const int mixers = Count();
  SendToEach(mixers, value);
  return mixers;
}

}  // namespace ztk::bench::floor
