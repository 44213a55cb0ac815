// SPDX-License-Identifier: MIT
//
// Devices that are served over USB/IP, to clients on the network or to the
// kernel of this machine.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_WORLD_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_WORLD_H_

#include <functional>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/mixer_world.h"
#include "virtual-mixer/usbip/usbip_devices.h"
#include "virtual-mixer/usbip/usbip_server.h"
#include "virtual-mixer/usbip/vhci.h"

namespace ztk::virtual_mixer {

class UsbipWorld : public MixerWorld {
 public:
  // The devices can be reached only after Listen or Attach.
  explicit UsbipWorld(const std::vector<Placement> &placements,
                      LogSink log = nullptr);

  // Returns the address with the real port in place of 0.
  std::string Listen(const std::string &address);

  // Attaches every device to this machine's kernel, in order, and waits until
  // it has configured them; so does plugging in from now on. Throws
  // std::runtime_error when it cannot.
  void Attach(const std::string &vhciFolder = usbip::kVhciFolder);

  int MixerCount() const override { return devices_.Bus().MixerCount(); }
  int OtherCount() const override { return devices_.Bus().OtherCount(); }
  MixerStatus Status(int mixer) const override;
  void WithMixer(int mixer,
                 const std::function<void(MixerModel &)> &visit) override;
  void PlugIn(int mixer) override;
  void Unplug(int mixer) override;
  // Always throws: nodes belong to the kernel that has the mixer.
  void SetForbidden(int mixer, bool forbidden) override;

 private:
  void AttachDevice(std::size_t device);
  void WaitUntilTaken(std::size_t device) const;

  mutable usbip::Devices devices_;
  usbip::Server server_;
  // Empty while nothing is attached.
  std::string vhciFolder_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_WORLD_H_
