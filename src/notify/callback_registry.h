// SPDX-License-Identifier: MIT
//
// Who wants to be called, process-wide. The names are visible in the library,
// but this header is not installed. Written by Register, Unregister and the
// posting setters on the caller's thread, without a lock.
#ifndef ZTK_NOTIFY_CALLBACK_REGISTRY_H_
#define ZTK_NOTIFY_CALLBACK_REGISTRY_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "platform/notification_center.h"

namespace ztk::notify {

// One slot for each product id, 0 to 10.
inline constexpr std::int32_t kSlots = 11;

using UserInfo = platform::notification_center::UserInfo;

}  // namespace ztk::notify

extern "C" {

ZTK_EXPORT extern ZTKChannelCallback
    InputAudioChangedCallback[ztk::notify::kSlots];
ZTK_EXPORT extern ZTKChannelCallback
    OutputAudioChangedCallback[ztk::notify::kSlots];
ZTK_EXPORT extern ZTKIndexCallback
    BoostLevelChangedCallback[ztk::notify::kSlots];
ZTK_EXPORT extern ZTKIndexCallback
    MidiChannelChangedCallback[ztk::notify::kSlots];
// Only ever read: nothing registers for the key mode.
ZTK_EXPORT extern ZTKIndexCallback
    MidiKeyModeChangedCallback[ztk::notify::kSlots];

// What the caller gave along; kept after Unregister.
ZTK_EXPORT extern void *InputAudioChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *OutputAudioChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *BoostLevelChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *MidiChannelChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *MidiKeyModeChangedContext[ztk::notify::kSlots];

// The record of a family's last post, owned until its next post.
ZTK_EXPORT extern ztk::notify::UserInfo *inputAudioInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *outputAudioInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *boostLevelInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *midiChannelInfo;
// There for symmetry: never written or read.
ZTK_EXPORT extern ztk::notify::UserInfo *midiKeyModeInfo;

// The one observer; null until the first successful Register of any family,
// then alive until the process ends.
// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
ZTK_EXPORT extern void *_ZTKFunc;

}  // extern "C"

#endif  // ZTK_NOTIFY_CALLBACK_REGISTRY_H_
