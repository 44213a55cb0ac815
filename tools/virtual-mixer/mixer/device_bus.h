// SPDX-License-Identifier: MIT
//
// The devices of a set of virtual mixers: which are plugged in, what they
// answer, and the log of the requests. It does not know how requests arrive, so
// the sandbox and the USB/IP server share it.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_BUS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_BUS_H_

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_model.h"
#include "virtual-mixer/mixer/mixer_world.h"

namespace ztk::virtual_mixer {

struct ControlRequest {
  SetupPacket setup;
  // Data stage of a write. The mixer's own writes have none.
  Bytes data;
};

// One device. The bus guards all members that change.
struct Device {
  // Constant: position among the devices, place on the bus, number of a mixer
  // (from 1; 0 for other devices).
  std::size_t position = 0;
  Address address;
  Descriptors descriptors;
  int mixer = 0;

  // Null for other devices.
  std::unique_ptr<MixerModel> model;
  bool pluggedIn = true;
  // The configuration that the system has chosen, 0 for none.
  std::uint8_t configuration = 0;
  // Number of the connection that is valid now.
  std::uint64_t connection = 0;
};

// A program's way to a device. It ends when the device is unplugged; a device
// that comes back has to be opened again.
struct Connection {
  std::size_t device = 0;
  std::uint64_t number = 0;
};

// Safe from any thread.
class DeviceBus {
 public:
  // Called after a device was plugged in or unplugged, while the bus is locked:
  // of the bus it may call Log only.
  using Listener = std::function<void(const Device &device)>;

  // Whether devices have their configuration as soon as they are plugged in, or
  // wait for a kernel that chooses it.
  enum class Configuration { AtOnce, ByKernel };

  // All devices are plugged in.
  DeviceBus(const std::vector<Placement> &placements,
            Configuration configuration, LogSink log, Listener listener);

  std::size_t Count() const { return devices_.size(); }
  int MixerCount() const { return static_cast<int>(mixers_.size()); }
  // Without root hubs.
  int OtherCount() const;
  // Position of a mixer, which counts from 1.
  std::size_t PositionOf(int mixer) const;
  // Only the constant members may be read.
  const Device &At(std::size_t device) const { return *devices_[device]; }

  // Calls `visit` while the bus is locked: it must not call the bus.
  void WithDevice(std::size_t device,
                  const std::function<void(Device &)> &visit);
  void WithMixer(int mixer, const std::function<void(MixerModel &)> &visit);

  // Both return false, and change nothing, when the mixer is in this state
  // already.
  bool PlugIn(int mixer);
  bool Unplug(int mixer);

  Connection Connect(std::size_t device) const;
  bool IsValid(const Connection &connection) const;
  // Ends the connection. The next one finds the device as if it had just been
  // plugged in. `visit` is called where the connection was still valid.
  void Disconnect(const Connection &connection,
                  const std::function<void(Device &)> &visit);

  // Answers a control request. Gone once the connection has ended.
  Answer Handle(const Connection &connection, const ControlRequest &request);
  // Logs how a request to a mixer ended.
  void Log(std::size_t device, const SetupPacket &setup, TransferStatus status,
           const Bytes &delivered);

  // Waits until a system has chosen a configuration, which is the last step of
  // a kernel that takes a device; false when that takes longer.
  bool WaitUntilConfigured(std::size_t device,
                           std::chrono::milliseconds longest) const;

 private:
  void AddDevice(const Placement &placement, int port);
  static void Replay(const RecordedMixer &recorded, Device *device);
  Device &Mixer(int mixer) { return *devices_[PositionOf(mixer)]; }
  void Reset(Device *device) const;
  void UnplugLocked(Device *device);

  const Configuration configuration_;
  const LogSink log_;
  const Listener listener_;
  std::mutex logMutex_;
  // Guards the members of devices that change.
  mutable std::mutex mutex_;
  mutable std::condition_variable configured_;
  std::vector<std::unique_ptr<Device>> devices_;
  // Positions of the mixers.
  std::vector<std::size_t> mixers_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_BUS_H_
