// SPDX-License-Identifier: MIT
//
// The settings whose changes are announced, and the differences between their
// announcements.
#ifndef ZTK_NOTIFY_ANNOUNCED_SETTINGS_H_
#define ZTK_NOTIFY_ANNOUNCED_SETTINGS_H_

#include "ZTKFunc.h"
#include "platform/notification_center.h"

namespace ztk::notify {

using platform::notification_center::Delivery;

inline const ZTKTextRef kProductKey = ZTK_TEXT("ProductID");
inline const ZTKTextRef kChannelKey = ZTK_TEXT("Channel");
inline const ZTKTextRef kIndexKey = ZTK_TEXT("Index");

struct AnnouncedSetting {
  ZTKTextRef nameFormat;
  ZTKTextRef postedModel;
  ZTKTextRef observedModel;
  Delivery delivery;
};

// clang-format off
inline const AnnouncedSetting kInputAudio{
    .nameFormat = ZTK_TEXT("%@ InputAudio Change"),
    .postedModel = ZTK_TEXT("VRM-D6"),
    .observedModel = ZTK_TEXT("VRM-D6"),
    .delivery = Delivery::Immediately};

// Deliberate: this setting is posted under one model and observed under another
// one. So a callback that is registered for this setting never receives a
// change that the library announces.
inline const AnnouncedSetting kOutputAudio{
    .nameFormat = ZTK_TEXT("%@ OutputAudio Change"),
    .postedModel = ZTK_TEXT("VRM-B5"),
    .observedModel = ZTK_TEXT("VRM-D6"),
    .delivery = Delivery::Immediately};

// Deliberate: the notification center decides when it delivers the changes of
// these two settings.
inline const AnnouncedSetting kBoostLevel{
    .nameFormat = ZTK_TEXT("%@ BoostLevel Change"),
    .postedModel = ZTK_TEXT("VRM-D6"),
    .observedModel = ZTK_TEXT("VRM-D6"),
    .delivery = Delivery::Default};

inline const AnnouncedSetting kMidiChannel{
    .nameFormat = ZTK_TEXT("%@ MidiChannel Change"),
    .postedModel = ZTK_TEXT("VRM-K2"),
    .observedModel = ZTK_TEXT("VRM-K2"),
    .delivery = Delivery::Default};
// clang-format on

}  // namespace ztk::notify

#endif  // ZTK_NOTIFY_ANNOUNCED_SETTINGS_H_
