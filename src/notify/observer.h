// SPDX-License-Identifier: MIT
//
// The observer that receives the notifications of all processes and calls the
// registered callbacks. It has no state.
#ifndef ZTK_NOTIFY_OBSERVER_H_
#define ZTK_NOTIFY_OBSERVER_H_

#include "platform/notification_center.h"

namespace ztk::notify {

using UserInfo = platform::notification_center::UserInfo;
using Method = platform::notification_center::Method;

// Makes the observer; it exists until the process ends.
void *AllocateObserver();

// What the five methods of the observer do with the record of a notification:
// each calls the callbacks that are registered for its setting.
void InputAudioChanged(const UserInfo *userInfo);
void OutputAudioChanged(const UserInfo *userInfo);
void BoostLevelChanged(const UserInfo *userInfo);
void MidiChannelChanged(const UserInfo *userInfo);
void MidiKeyModeChanged(const UserInfo *userInfo);

// The methods by name and by code, in the observer's order.
extern const Method kInputAudioChanged;
extern const Method kOutputAudioChanged;
extern const Method kBoostLevelChanged;
extern const Method kMidiChannelChanged;
extern const Method kMidiKeyModeChanged;

}  // namespace ztk::notify

#endif  // ZTK_NOTIFY_OBSERVER_H_
