// SPDX-License-Identifier: MIT
#include "kernel_world.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/library_world.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

constexpr char kDevices[] = "/sys/bus/usb/devices";
constexpr char kVhci[] = "/sys/devices/platform/vhci_hcd.0";

// Returns true for "mixer 1: c0 ..." and "mixer 1: 40 ...". These are the
// request types of vendor requests.
bool IsVendorRequest(const std::string &line) {
  const std::size_t type = line.find(": ");
  return line.compare(type + 2, 2, "c0") == 0 ||
         line.compare(type + 2, 2, "40") == 0;
}

}  // namespace

bool WaitFor(const std::string &what, const std::function<bool()> &condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) {
      ADD_FAILURE() << "this did not happen in time: " << what;
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

std::vector<std::string> DevicesOnTheBus() {
  std::vector<std::string> names;
  for (const auto &entry : fs::directory_iterator(kDevices)) {
    const std::string name = entry.path().filename();
    if (name.starts_with("usb") || name.find(':') != std::string::npos) {
      continue;
    }
    names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string Attribute(const std::string &device, const std::string &name) {
  std::ifstream file(fs::path(kDevices) / device / name);
  std::string text;
  std::getline(file, text);
  return text;
}

void SetAttribute(const std::string &device, const std::string &name,
                  const std::string &value) {
  std::ofstream file(fs::path(kDevices) / device / name);
  EXPECT_TRUE(file << value << std::flush) << device << " " << name;
}

std::string NodeOf(const std::string &device) {
  std::array<char, 32> node{};
  std::snprintf(node.data(), node.size(), "/dev/bus/usb/%03d/%03d",
                std::atoi(Attribute(device, "busnum").c_str()),
                std::atoi(Attribute(device, "devnum").c_str()));
  return node.data();
}

KernelWorld::KernelWorld(
    const std::vector<virtual_mixer::Placement> &placements,
    const virtual_mixer::LogSink &log)
    : served_(std::make_unique<virtual_mixer::UsbipWorld>(
          placements, [log](const std::string &line) {
            if (log && IsVendorRequest(line)) log(line);
          })) {
  served_->Attach();
}

KernelWorld::~KernelWorld() {
  served_.reset();
  WaitFor("the bus is empty", [] { return DevicesOnTheBus().empty(); });
}

std::string KernelWorld::DeviceOf(int mixer) {
  std::array<char, 16> serial{};
  std::snprintf(serial.data(), serial.size(), "VIRTUAL%04d", mixer);
  for (const std::string &device : DevicesOnTheBus()) {
    if (Attribute(device, "serial") == serial.data()) return device;
  }
  return "";
}

void KernelWorld::Unplug(int mixer) {
  served_->Unplug(mixer);
  WaitFor("the mixer is off the bus",
          [mixer] { return DeviceOf(mixer).empty(); });
}

std::unique_ptr<MixerWorld> MakeWorld(const std::vector<Placement> &placements,
                                      LogSink log) {
  return std::make_unique<KernelWorld>(placements, log);
}

std::string WhyNoWorld() {
  if (!fs::exists(kVhci)) {
    return "this kernel has no vhci-hcd; guest-run boots one that has";
  }
  return geteuid() == 0 ? "" : "only root may attach devices to the kernel";
}

}  // namespace ztk::test
