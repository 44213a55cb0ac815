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
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_model.h"
#include "virtual-mixer/mixer/mixer_world.h"
#include "virtual-mixer/mixer/usb_tree.h"
#include "virtual-mixer/sandbox/usbfs_front.h"

struct _UMockdevTestbed;  // NOLINT(bugprone-reserved-identifier): fixed name

namespace ztk::virtual_mixer {

class Sandbox : public MixerWorld {
 public:
  // Builds the world in a new folder under TMPDIR and sets UMOCKDEV_DIR.
  // TMPDIR must be at most kLongestTempDir characters: the paths of sockets
  // have to fit. Only one sandbox can exist in a process at a time. Throws
  // std::runtime_error when the world cannot be built.
  explicit Sandbox(const std::vector<Placement> &placements,
                   LogSink log = nullptr);
  ~Sandbox() override;
  Sandbox(const Sandbox &) = delete;
  Sandbox &operator=(const Sandbox &) = delete;

  static constexpr std::size_t kLongestTempDir = 60;

  // The folder that holds everything; removed with the sandbox.
  const std::string &RootDir() const { return rootDir_; }

  int MixerCount() const override { return static_cast<int>(mixers_.size()); }
  int OtherCount() const override;
  MixerStatus Status(int mixer) const override;
  void WithMixer(int mixer,
                 const std::function<void(MixerModel &)> &visit) override;

  // A mixer that comes back has the place and number that it had.
  void PlugIn(int mixer) override;
  void Unplug(int mixer) override;

  // Holds for the superuser too.
  void SetForbidden(int mixer, bool forbidden) override;

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

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_
