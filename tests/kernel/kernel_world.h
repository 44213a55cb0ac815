// SPDX-License-Identifier: MIT
//
// Virtual mixers on the bus of the running kernel: this process serves them
// over USB/IP and attaches them to vhci-hcd. For the guest that guest-run
// boots; needs root.
#ifndef ZTK_TESTS_KERNEL_KERNEL_WORLD_H_
#define ZTK_TESTS_KERNEL_KERNEL_WORLD_H_

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "virtual-mixer/usbip/usbip_world.h"

namespace ztk::test {

// Waits for the condition; reports a failure when it does not become true in
// time.
bool WaitFor(const std::string &what, const std::function<bool()> &condition);

// The devices on the bus of the kernel, without root hubs: names in sysfs, such
// as "1-2".
std::vector<std::string> DevicesOnTheBus();
// The whole of an attribute, without its line end; empty when there is none.
std::string Attribute(const std::string &device, const std::string &name);
void SetAttribute(const std::string &device, const std::string &name,
                  const std::string &value);
// "/dev/bus/usb/001/002"
std::string NodeOf(const std::string &device);

// Plug and Unplug return when the kernel has noticed the change.
class KernelWorld : public virtual_mixer::MixerWorld {
 public:
  // `log` receives the vendor requests; requests that the kernel itself makes
  // are left out.
  KernelWorld(const std::vector<virtual_mixer::Placement> &placements,
              const virtual_mixer::LogSink &log);
  ~KernelWorld() override;
  KernelWorld(const KernelWorld &) = delete;
  KernelWorld &operator=(const KernelWorld &) = delete;

  // Its name in sysfs; empty while it is unplugged.
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
