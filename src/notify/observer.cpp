// SPDX-License-Identifier: MIT
//
// On Linux the observer is a C++ object. On macOS it is an object of an
// Objective-C class: see observer.mm.
#include "notify/observer.h"

namespace {

class ZTKFunc {
 public:
  using UserInfo = ztk::notify::UserInfo;

  void InputAudioChanged(const UserInfo *userInfo) {
    ztk::notify::InputAudioChanged(userInfo);
  }
  void OutputAudioChanged(const UserInfo *userInfo) {
    ztk::notify::OutputAudioChanged(userInfo);
  }
  void BoostLevelChanged(const UserInfo *userInfo) {
    ztk::notify::BoostLevelChanged(userInfo);
  }
  void MidiChannelChanged(const UserInfo *userInfo) {
    ztk::notify::MidiChannelChanged(userInfo);
  }
  void MidiKeyModeChanged(const UserInfo *userInfo) {
    ztk::notify::MidiKeyModeChanged(userInfo);
  }
};

template <void (ZTKFunc::*method)(const ztk::notify::UserInfo *)>
void Call(void *observer, const ztk::notify::UserInfo *userInfo) {
  (static_cast<ZTKFunc *>(observer)->*method)(userInfo);
}

}  // namespace

namespace ztk::notify {

// The observer has no state, so one object is enough for the whole process.
void *AllocateObserver() {
  static ZTKFunc observer;
  return &observer;
}

const Method kInputAudioChanged{.selector = "inputAudioChanged:",
                                .code = Call<&ZTKFunc::InputAudioChanged>};
const Method kOutputAudioChanged{.selector = "outputAudioChanged:",
                                 .code = Call<&ZTKFunc::OutputAudioChanged>};
const Method kBoostLevelChanged{.selector = "boostLevelChanged:",
                                .code = Call<&ZTKFunc::BoostLevelChanged>};
const Method kMidiChannelChanged{.selector = "midiChannelChanged:",
                                 .code = Call<&ZTKFunc::MidiChannelChanged>};
const Method kMidiKeyModeChanged{.selector = "midiKeyModeChanged:",
                                 .code = Call<&ZTKFunc::MidiKeyModeChanged>};

}  // namespace ztk::notify
