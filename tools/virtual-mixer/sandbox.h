// SPDX-License-Identifier: MIT
//
// A world of USB devices for programs that run with umockdev's preloaded
// library: virtual mixers and, before and behind them, strangers.
//
// The owner and the programs inside must run as the same user. A program may
// fail 50 times to open a device node; the next failure ends it (umockdev keeps
// a place for each and never gives it back). A program must not write to
// standard streams that it has closed: umockdev's sockets get their numbers,
// and it aborts the owner of the sandbox for what it then reads.
#ifndef ZTK_VIRTUAL_MIXER_SANDBOX_H_
#define ZTK_VIRTUAL_MIXER_SANDBOX_H_

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "device_model.h"
#include "usb_tree.h"
#include "usbfs_front.h"

struct _UMockdevTestbed;  // NOLINT(bugprone-reserved-identifier): fixed name

namespace ztk::virtual_mixer {

enum class DeviceKind { Mixer, Hub, Keyboard, Storage, Sibling };

// One device of the world. Devices are numbered along each bus in the order
// in which they are listed.
struct Placement {
  DeviceKind kind = DeviceKind::Mixer;
  int bus = 1;
};

// Mixers with half of the strangers before them and half behind, filling
// `buses` buses in this order; more buses when the ports do not suffice.
std::vector<Placement> SpreadDevices(int mixers, int others, int buses);

struct MixerStatus {
  Address address;
  bool pluggedIn = false;
  bool forbidden = false;
};

class Sandbox {
 public:
  // Gets each request line; called from several threads, one at a time.
  using LogSink = std::function<void(const std::string &line)>;

  // Builds the world in a new folder under TMPDIR and sets UMOCKDEV_DIR.
  // TMPDIR must be at most kLongestTempDir characters: the paths of sockets
  // have to fit. Only one sandbox can exist in a process at a time. Throws
  // std::runtime_error when the world cannot be built.
  explicit Sandbox(const std::vector<Placement> &placements,
                   LogSink log = nullptr);
  ~Sandbox();
  Sandbox(const Sandbox &) = delete;
  Sandbox &operator=(const Sandbox &) = delete;

  static constexpr std::size_t kLongestTempDir = 60;

  // The folder that holds everything; removed with the sandbox.
  const std::string &RootDir() const { return rootDir_; }

  // Mixers count from 1, plugged in or not.
  int MixerCount() const { return static_cast<int>(mixers_.size()); }
  int OtherCount() const;
  MixerStatus Status(int mixer) const;

  // Calls `visit` with the mixer while no request can reach it.
  void WithMixer(int mixer, const std::function<void(MixerModel &)> &visit);

  // Both do nothing when it is so already. A mixer that comes back has the
  // place and number that it had.
  void PlugIn(int mixer);
  void Unplug(int mixer);

  // Forbids opening the mixer's node for writing (EACCES), or allows it again.
  // Holds for the superuser too. Throws std::runtime_error where this system
  // cannot do that.
  void SetForbidden(int mixer, bool forbidden);

 private:
  struct Device {
    Address address;
    Descriptors descriptors;
    // Of mixers; null for others.
    std::unique_ptr<MixerModel> model;
    int mixer = 0;
    bool present = false;
    bool forbidden = false;
    bool answersIoctls = false;
  };

  void AddDevice(const Placement &placement, int port);
  void AddRootHub(int bus);
  void Appear(Device *device);
  void Disappear(Device *device);
  void AttachIoctl(Device *device);
  void ShowNode(const Device &device);
  void HideNode(const Device &device);
  Device *Find(const std::string &node);
  Device &Mixer(int mixer) const { return *mixers_.at(Index(mixer)); }
  static std::size_t Index(int mixer) {
    return static_cast<std::size_t>(mixer - 1);
  }
  Answer Handle(const std::string &node, const ControlRequest &request);
  void Observe(const std::string &node, const SetupPacket &setup,
               Outcome outcome, const Bytes &delivered);

  const LogSink log_;
  std::mutex logMutex_;
  // Guards the devices and the tree.
  mutable std::mutex mutex_;
  std::vector<std::unique_ptr<Device>> devices_;
  std::vector<Device *> mixers_;
  UsbfsFront front_;
  // Made last and ended first: its thread calls into the front.
  struct TestbedDeleter {
    void operator()(_UMockdevTestbed *testbed) const;
  };
  std::unique_ptr<_UMockdevTestbed, TestbedDeleter> testbed_;
  std::string rootDir_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_VIRTUAL_MIXER_SANDBOX_H_
