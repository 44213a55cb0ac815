// SPDX-License-Identifier: MIT
//
// Announces a change of a setting to every process.
#ifndef ZTK_NOTIFY_POSTING_H_
#define ZTK_NOTIFY_POSTING_H_

#include <cstdint>

#include "notify/announced_settings.h"
#include "notify/callback_registry.h"

namespace ztk::notify {

// Releases the last record of the setting, makes a new one and posts it.
// `lastInfo` is the exported variable of the setting.
void PostIndex(const AnnouncedSetting &setting, UserInfo **lastInfo,
               std::uint32_t productId, std::uint32_t index);
void PostChannelIndex(const AnnouncedSetting &setting, UserInfo **lastInfo,
                      std::uint32_t productId, std::uint32_t channel,
                      std::uint32_t index);

}  // namespace ztk::notify

#endif  // ZTK_NOTIFY_POSTING_H_
