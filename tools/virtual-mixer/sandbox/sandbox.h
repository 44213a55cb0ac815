// SPDX-License-Identifier: MIT
//
// Emulated USB devices for programs that run with umockdev's preloaded library:
// virtual mixers and other devices.
//
// The owner and the programs inside must run as the same user. A program may
// fail 50 times to open a device node; the next failure ends it (umockdev keeps
// a place for each and never gives it back). A program must not write to
// standard streams that it has closed: sockets of umockdev get their numbers,
// and umockdev aborts the owner of the sandbox when it reads such data.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_bus.h"
#include "virtual-mixer/mixer/mixer_world.h"
#include "virtual-mixer/mixer/usb_tree.h"
#include "virtual-mixer/sandbox/usbfs_front.h"
#include "virtual-mixer/temporary_folder.h"

struct _UMockdevTestbed;  // NOLINT(bugprone-reserved-identifier): fixed name

namespace ztk::virtual_mixer {

class Sandbox : public MixerWorld {
 public:
  // Builds the devices in a new folder under TMPDIR and sets UMOCKDEV_DIR.
  // TMPDIR must be at most kLongestTempDir characters: the paths of sockets
  // have to fit. Only one sandbox can exist in a process at a time. Throws
  // std::runtime_error when that fails.
  explicit Sandbox(const std::vector<Placement> &placements,
                   LogSink log = nullptr);
  ~Sandbox() override;
  Sandbox(const Sandbox &) = delete;
  Sandbox &operator=(const Sandbox &) = delete;

  static constexpr std::size_t kLongestTempDir = 60;

  // The folder that holds everything; removed with the sandbox.
  const std::string &RootDir() const { return rootDir_; }

  int MixerCount() const override { return bus_.MixerCount(); }
  int OtherCount() const override { return bus_.OtherCount(); }
  MixerStatus Status(int mixer) const override;
  void WithMixer(int mixer,
                 const std::function<void(MixerModel &)> &visit) override;

  // A mixer that is plugged in again has its old place and number.
  void PlugIn(int mixer) override { bus_.PlugIn(mixer); }
  void Unplug(int mixer) override { bus_.Unplug(mixer); }

  // Applies to the superuser too.
  void SetForbidden(int mixer, bool forbidden) override;

 private:
  // The functions below are called while the bus is locked.
  void Appear(const Device &device);
  void Disappear(const Device &device);
  void AttachIoctl(const Device &device);
  void Announce(const Device &device);
  void ShowNode(const Device &device);
  void HideNode(const Device &device);

  // Whether the node of a device may not be opened. Guarded by the bus.
  std::vector<bool> forbidden_;
  mutable DeviceBus bus_;
  // Device behind each node. Constant once the sandbox is made.
  std::map<std::string, std::size_t> positions_;
  UsbfsFront front_;
  // Constructed last and destroyed first, as its thread calls front_.
  struct TestbedDeleter {
    void operator()(_UMockdevTestbed *testbed) const;
  };
  std::unique_ptr<_UMockdevTestbed, TestbedDeleter> testbed_;
  std::string rootDir_;
  FolderMark mark_;
  std::uint64_t ueventSequence_ = 0;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_SANDBOX_H_
