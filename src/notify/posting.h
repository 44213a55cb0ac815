// SPDX-License-Identifier: MIT
//
// The announcement of a change, the last step of each setter that announces.
#ifndef ZTK_NOTIFY_POSTING_H_
#define ZTK_NOTIFY_POSTING_H_

#include <cstdint>

#include "notify/announced_settings.h"
#include "notify/callback_registry.h"

namespace ztk::notify {

// Releases the last record of the setting, makes a new one and sends it to
// every process. `lastInfo` is the exported variable of the setting.
void PostIndex(const AnnouncedSetting &family, UserInfo **lastInfo,
               std::uint32_t productId, std::uint32_t index);
void PostChannelIndex(const AnnouncedSetting &family, UserInfo **lastInfo,
                      std::uint32_t productId, std::uint32_t channel,
                      std::uint32_t index);

}  // namespace ztk::notify

#endif  // ZTK_NOTIFY_POSTING_H_
