// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_world.h"

#include <sys/socket.h>

#include <array>
#include <stdexcept>
#include <utility>

namespace ztk::virtual_mixer {
namespace {

// A kernel needs half a second for each device, an emulated kernel several
// seconds.
constexpr std::chrono::seconds kPatience{30};

}  // namespace

UsbipWorld::UsbipWorld(const std::vector<Placement> &placements, LogSink log)
    : devices_(placements, std::move(log)), server_(&devices_) {}

std::string UsbipWorld::Listen(const std::string &address) {
  return server_.Listen(usbip::ParseListenAddress(address));
}

void UsbipWorld::Attach(const std::string &vhciFolder) {
  vhciFolder_ = vhciFolder;
  for (std::size_t i = 0; i < devices_.Bus().Count(); ++i) AttachDevice(i);
  for (std::size_t i = 0; i < devices_.Bus().Count(); ++i) WaitUntilTaken(i);
}

void UsbipWorld::AttachDevice(std::size_t device) {
  usbip::Lease lease;
  if (devices_.Import(device, &lease) != usbip::ImportStatus::Ok) return;
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    throw std::runtime_error("cannot make a pair of sockets");
  }
  const platform::FileDescriptor kernels(ends[1]);
  server_.Adopt(platform::FileDescriptor(ends[0]), lease);
  usbip::AttachToKernel(vhciFolder_, devices_.Describe(device), kernels.get());
}

void UsbipWorld::WaitUntilTaken(std::size_t device) const {
  if (devices_.Bus().WaitUntilConfigured(device, kPatience)) return;
  throw std::runtime_error("the kernel has not taken device " +
                           std::to_string(device + 1) +
                           " within 30 s; see what it says with: sudo dmesg");
}

MixerStatus UsbipWorld::Status(int mixer) const {
  return devices_.Status(mixer);
}

void UsbipWorld::WithMixer(int mixer,
                           const std::function<void(MixerModel &)> &visit) {
  devices_.Bus().WithMixer(mixer, visit);
}

void UsbipWorld::PlugIn(int mixer) {
  if (!devices_.Bus().PlugIn(mixer) || vhciFolder_.empty()) return;
  const std::size_t device = devices_.Bus().PositionOf(mixer);
  AttachDevice(device);
  WaitUntilTaken(device);
}

void UsbipWorld::Unplug(int mixer) {
  if (devices_.Bus().Unplug(mixer)) server_.Wake();
}

void UsbipWorld::SetForbidden(int /*mixer*/, bool /*forbidden*/) {
  throw std::runtime_error(
      "a served mixer's node belongs to the kernel that has it; change its "
      "mode there, as in: sudo chmod 600 /dev/bus/usb/001/002");
}

}  // namespace ztk::virtual_mixer
