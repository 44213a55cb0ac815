// SPDX-License-Identifier: MIT
//
// The interface of running virtual mixers, in a sandbox or served over USB/IP,
// to the programs and tests that control them.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_MIXER_WORLD_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_MIXER_WORLD_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_model.h"
#include "virtual-mixer/mixer/recorded_mixer.h"
#include "virtual-mixer/mixer/usb_tree.h"

namespace ztk::virtual_mixer {

enum class DeviceKind { Mixer, Hub, Keyboard, Storage, Sibling, RootHub };

// One device. Devices are plugged into the ports of each bus in the order in
// which they are listed.
struct Placement {
  DeviceKind kind = DeviceKind::Mixer;
  int bus = 1;
  // The mixer to be replayed; null for an ordinary virtual mixer.
  std::shared_ptr<const RecordedMixer> recorded = nullptr;
};

// Mixers, with half of the other devices before them and half after them, on
// `buses` buses in this order; on more buses when the ports do not suffice.
std::vector<Placement> SpreadDevices(int mixers, int others, int buses);

// The descriptors of a device of this kind; `number` is the number of a mixer
// or, for a root hub, of its bus.
Descriptors DescriptorsOf(DeviceKind kind, int number);

struct MixerStatus {
  Address address;
  bool pluggedIn = false;
  bool forbidden = false;
  // Only for mixers that are served: whether a kernel has the mixer at present.
  std::optional<bool> attached;
};

// Receives each request line. Called from several threads, one at a time.
using LogSink = std::function<void(const std::string &line)>;

// Safe from any thread.
class MixerWorld {
 public:
  virtual ~MixerWorld() = default;

  // Mixers count from 1, plugged in or not.
  virtual int MixerCount() const = 0;
  virtual int OtherCount() const = 0;
  virtual MixerStatus Status(int mixer) const = 0;

  // Calls `visit` with the mixer while no request can reach it.
  virtual void WithMixer(int mixer,
                         const std::function<void(MixerModel &)> &visit) = 0;

  // Both do nothing when the mixer is in this state already.
  virtual void PlugIn(int mixer) = 0;
  virtual void Unplug(int mixer) = 0;

  // Forbids opening the mixer's node for writing (EACCES), or allows it again.
  // Throws std::runtime_error for mixers that are served.
  virtual void SetForbidden(int mixer, bool forbidden) = 0;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_MIXER_WORLD_H_
