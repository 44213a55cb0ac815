// SPDX-License-Identifier: MIT
//
// The observer receives the notifications of all processes and calls the
// registered callbacks. It has no state.
#ifndef ZTK_NOTIFY_OBSERVER_H_
#define ZTK_NOTIFY_OBSERVER_H_

#include "platform/notification_center.h"

namespace ztk::notify {

using UserInfo = platform::notification_center::UserInfo;
using Method = platform::notification_center::Method;

// Makes the observer, which exists until the process ends.
void *AllocateObserver();

// Each of these functions is the body of one method of the observer. It calls
// the callback that is registered for its setting and for the product in the
// notification.
void InputAudioChanged(const UserInfo *userInfo);
void OutputAudioChanged(const UserInfo *userInfo);
void BoostLevelChanged(const UserInfo *userInfo);
void MidiChannelChanged(const UserInfo *userInfo);
void MidiKeyModeChanged(const UserInfo *userInfo);

// The methods of the observer.
extern const Method kInputAudioChanged;
extern const Method kOutputAudioChanged;
extern const Method kBoostLevelChanged;
extern const Method kMidiChannelChanged;
extern const Method kMidiKeyModeChanged;

}  // namespace ztk::notify

#endif  // ZTK_NOTIFY_OBSERVER_H_
