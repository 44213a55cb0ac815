// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/vhci.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "platform/common/file_descriptor.h"

namespace ztk::virtual_mixer::usbip {
namespace {

constexpr char kOtherWay[] =
    "; or serve with --listen and attach with the usbip tool on a machine that "
    "can";
// A line of the kernel's table with this hub and this state is a free port for
// devices up to high speed.
constexpr char kHighSpeedHub[] = "hs";
constexpr int kUnused = 4;

// The first free port in a table with the lines
//   hub port sta spd dev sockfd local_busid
std::optional<int> FreePort(const std::filesystem::path &table) {
  std::ifstream lines(table);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string hub;
    std::string port;
    int state = 0;
    if (!(words >> hub >> port >> state)) continue;  // the headings
    if (hub == kHighSpeedHub && state == kUnused) {
      return std::atoi(port.c_str());
    }
  }
  return std::nullopt;
}

// Each controller has a table of its own; the first one's has no number.
std::optional<int> FreePortOfAny(const std::filesystem::path &folder) {
  std::optional<int> port = FreePort(folder / "status");
  for (int table = 1; !port; ++table) {
    const auto path = folder / ("status." + std::to_string(table));
    if (!std::filesystem::exists(path)) break;
    port = FreePort(path);
  }
  return port;
}

}  // namespace

void AttachToKernel(const std::string &vhciFolder, const Export &device,
                    int socket) {
  const std::filesystem::path folder = vhciFolder;
  if (!std::filesystem::exists(folder)) {
    throw std::runtime_error(
        "this kernel has no virtual host controller (" + vhciFolder +
        " is missing); load it with: sudo modprobe vhci-hcd" + kOtherWay);
  }
  const platform::FileDescriptor attach(
      open((folder / "attach").c_str(), O_WRONLY | O_CLOEXEC));
  if (attach.get() < 0 && (errno == EACCES || errno == EPERM)) {
    throw std::runtime_error(
        std::string("only root may attach devices to this kernel; start this "
                    "with sudo") +
        kOtherWay);
  }
  if (attach.get() < 0) {
    throw std::runtime_error("cannot open " + vhciFolder +
                             "/attach: " + std::strerror(errno));
  }
  const std::optional<int> port = FreePortOfAny(folder);
  if (!port) {
    throw std::runtime_error(
        "every port of the kernel's virtual host controller is in use; serve "
        "fewer devices, or detach some with: sudo usbip detach");
  }
  const std::string line = std::to_string(*port) + " " +
                           std::to_string(socket) + " " +
                           std::to_string(DeviceId(device.address)) + " " +
                           std::to_string(SpeedNumber(*device.descriptors));
  if (write(attach.get(), line.data(), line.size()) < 0) {
    throw std::runtime_error("the kernel does not take the device at port " +
                             std::to_string(*port) + ": " +
                             std::strerror(errno));
  }
}

}  // namespace ztk::virtual_mixer::usbip
