// SPDX-License-Identifier: MIT
//
// The registered callbacks of the process. The library exports the tables, but
// this header is not installed. The functions that register and unregister
// callbacks and the setters that announce changes write these variables on the
// thread of the caller, without a lock.
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
// Never written: no function registers callbacks for the key mode.
ZTK_EXPORT extern ZTKIndexCallback
    MidiKeyModeChangedCallback[ztk::notify::kSlots];

// The context of each callback. Unregistering does not clear it.
ZTK_EXPORT extern void *InputAudioChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *OutputAudioChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *BoostLevelChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *MidiChannelChangedContext[ztk::notify::kSlots];
ZTK_EXPORT extern void *MidiKeyModeChangedContext[ztk::notify::kSlots];

// The record of a setting's last announcement. The library owns it until the
// next announcement.
ZTK_EXPORT extern ztk::notify::UserInfo *inputAudioInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *outputAudioInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *boostLevelInfo;
ZTK_EXPORT extern ztk::notify::UserInfo *midiChannelInfo;
// Exported like the others, but neither written nor read.
ZTK_EXPORT extern ztk::notify::UserInfo *midiKeyModeInfo;

// The only observer. It is null until the first callback is registered, and
// then exists until the process ends.
// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
ZTK_EXPORT extern void *_ZTKFunc;

}  // extern "C"

#endif  // ZTK_NOTIFY_CALLBACK_REGISTRY_H_
