// SPDX-License-Identifier: MIT
//
// The devices that are served over USB/IP: which can be had, who has them, and
// what they answer. Knows nothing of sockets.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/mixer_world.h"
#include "virtual-mixer/usbip/usbip_messages.h"

namespace ztk::virtual_mixer::usbip {

// A client's hold on a device. It ends when the device is unplugged, and a
// device that comes back has to be imported anew.
struct Lease {
  std::size_t device = 0;
  std::uint64_t number = 0;
};

// Safe from any thread.
class Devices {
 public:
  Devices(const std::vector<Placement> &placements, LogSink log);

  // Devices that are plugged in and that nobody has.
  std::vector<Export> Free() const;
  // Lends a device, found by its bus id or its position.
  ImportStatus Import(const std::string &busId, Lease *lease);
  ImportStatus Import(std::size_t device, Lease *lease);
  void GiveBack(const Lease &lease);
  bool Holds(const Lease &lease) const;
  // Stays as it is for the whole time of the lease.
  Export Describe(std::size_t device) const;

  // Gone once the lease has ended.
  Answer Handle(const Lease &lease, const ControlRequest &request);
  // Logs how a request to a mixer ended.
  void Observe(std::size_t device, const SetupPacket &setup, Outcome outcome,
               const Bytes &delivered);

  // Waits until whoever has it has configured the device, which is what a
  // kernel does last; false when that takes longer.
  bool WaitUntilConfigured(std::size_t device,
                           std::chrono::milliseconds longest) const;

  std::size_t Count() const { return devices_.size(); }
  int MixerCount() const { return static_cast<int>(mixers_.size()); }
  // Where a mixer stands among the devices.
  std::size_t PositionOf(int mixer) const;
  MixerStatus Status(int mixer) const;
  void WithMixer(int mixer, const std::function<void(MixerModel &)> &visit);
  // True when that changed something.
  bool PlugIn(int mixer);
  bool Unplug(int mixer);

 private:
  struct Device {
    Address address;
    Descriptors descriptors;
    // Of mixers; null for others.
    std::unique_ptr<MixerModel> model;
    int mixer = 0;
    bool pluggedIn = true;
    std::uint8_t configuration = 0;
    // The lease that holds now.
    std::optional<std::uint64_t> lease;
  };

  ImportStatus Lend(std::size_t device, Lease *lease);
  bool HoldsLocked(const Lease &lease) const;
  static void EndLease(Device *device);

  const LogSink log_;
  std::mutex logMutex_;
  // Guards the devices.
  mutable std::mutex mutex_;
  mutable std::condition_variable configured_;
  std::vector<std::unique_ptr<Device>> devices_;
  std::vector<std::size_t> mixers_;
  std::uint64_t leases_ = 0;
};

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_
