// SPDX-License-Identifier: MIT
#include "ztk/system/usb_devices.h"

#include <dirent.h>

#include <algorithm>
#include <memory>

#include "cli/strings.h"
#include "ztk/system/file_text.h"

namespace ztk::model {

namespace {

constexpr char kFolder[] = "/sys/bus/usb/devices/";
// The device class 00 means that each interface has its own class.
constexpr char kClassIsPerInterface[] = "00";
constexpr char kSpace[] = " \t\n\v\f\r";

// Returns the first word of a file; empty if the file is empty or unreadable.
std::string WordIn(const std::string &path) {
  const std::string text = FileText(path);
  const std::size_t begin = text.find_first_not_of(kSpace);
  if (begin == std::string::npos) return "";
  return text.substr(begin, text.find_first_of(kSpace, begin) - begin);
}

std::string LineIn(const std::string &path) {
  const std::string text = FileText(path);
  return text.substr(0, text.find('\n'));
}

std::vector<std::string> Entries() {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR *)> folder(opendir(kFolder), closedir);
  if (!folder) return names;
  while (const dirent *const entry = readdir(folder.get())) {
    names.emplace_back(entry->d_name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::vector<UsbDevice> UsbDevices() {
  const std::vector<std::string> names = Entries();
  std::vector<UsbDevice> devices;
  for (const std::string &name : names) {
    // Interfaces have a colon in their names.
    if (name[0] == '.' || name.find(':') != std::string::npos) continue;
    std::string deviceClass = WordIn(kFolder + name + "/bDeviceClass");
    if (deviceClass == kClassIsPerInterface) {
      const auto interface = std::find_if(
          names.begin(), names.end(),
          [&](const auto &other) { return other.starts_with(name + ":"); });
      if (interface != names.end()) {
        deviceClass = WordIn(kFolder + *interface + "/bInterfaceClass");
      }
    }
    devices.push_back({.place = name,
                       .deviceClass = deviceClass,
                       .speed = WordIn(kFolder + name + "/speed"),
                       .product = LineIn(kFolder + name + "/product")});
  }
  return devices;
}

std::string ProductAt(const std::string &place) {
  return cli::OneLine(LineIn(kFolder + place + "/product"));
}

}  // namespace ztk::model
