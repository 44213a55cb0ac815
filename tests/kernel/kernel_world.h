// SPDX-License-Identifier: MIT
//
// Virtual mixers on the USB bus of the running kernel. This process serves the
// mixers over USB/IP and attaches them to vhci-hcd. It needs root and runs in
// the guest that guest-run boots.
#ifndef ZTK_TESTS_KERNEL_KERNEL_WORLD_H_
#define ZTK_TESTS_KERNEL_KERNEL_WORLD_H_

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "virtual-mixer/usbip/usbip_world.h"

namespace ztk::test {

// Waits until the condition is true. The test fails if this takes more than 30
// seconds.
bool WaitFor(const std::string &what, const std::function<bool()> &condition);

// Returns the sysfs names of the kernel's USB devices, such as "1-2", without
// root hubs.
std::vector<std::string> DevicesOnTheBus();
// Returns the first line of an attribute, or an empty text if there is none.
std::string Attribute(const std::string &device, const std::string &name);
void SetAttribute(const std::string &device, const std::string &name,
                  const std::string &value);
// Returns the path of the device node, such as "/dev/bus/usb/001/002".
std::string NodeOf(const std::string &device);

// PlugIn() and Unplug() return when the kernel has noticed the change.
class KernelWorld : public virtual_mixer::MixerWorld {
 public:
  // `log` receives only the vendor requests, not the requests of the kernel.
  KernelWorld(const std::vector<virtual_mixer::Placement> &placements,
              const virtual_mixer::LogSink &log);
  ~KernelWorld() override;
  KernelWorld(const KernelWorld &) = delete;
  KernelWorld &operator=(const KernelWorld &) = delete;

  // Returns the sysfs name of a mixer, or an empty text while it is unplugged.
  static std::string DeviceOf(int mixer);

  int MixerCount() const override { return served_->MixerCount(); }
  int OtherCount() const override { return served_->OtherCount(); }
  virtual_mixer::MixerStatus Status(int mixer) const override {
    return served_->Status(mixer);
  }
  void WithMixer(
      int mixer,
      const std::function<void(virtual_mixer::MixerModel &)> &visit) override {
    served_->WithMixer(mixer, visit);
  }
  void PlugIn(int mixer) override { served_->PlugIn(mixer); }
  void Unplug(int mixer) override;
  void SetForbidden(int mixer, bool forbidden) override {
    served_->SetForbidden(mixer, forbidden);
  }

 private:
  std::unique_ptr<virtual_mixer::UsbipWorld> served_;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_KERNEL_KERNEL_WORLD_H_
