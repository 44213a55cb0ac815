// SPDX-License-Identifier: MIT
#include "notify/posting.h"

#include <iterator>

#include "platform/text.h"

namespace ztk::notify {
namespace {

namespace center = platform::notification_center;
using center::Entry;

Entry Number(ZTKTextRef key, std::uint32_t value) {
  return {.key = key, .value = static_cast<std::int32_t>(value)};
}

void Post(const AnnouncedSetting &family, UserInfo **lastInfo,
          const Entry *entries, std::size_t count) {
  center::Release(*lastInfo);
  *lastInfo = center::MakeUserInfo(entries, count);

  const platform::text::Made name(
      platform::text::Format(family.nameFormat, family.postedModel));
  center::Post(name.get(), *lastInfo, family.delivery);
}

}  // namespace

void PostIndex(const AnnouncedSetting &family, UserInfo **lastInfo,
               std::uint32_t productId, std::uint32_t index) {
  const Entry entries[] = {Number(kProductKey, productId),
                           Number(kIndexKey, index)};
  Post(family, lastInfo, entries, std::size(entries));
}

void PostChannelIndex(const AnnouncedSetting &family, UserInfo **lastInfo,
                      std::uint32_t productId, std::uint32_t channel,
                      std::uint32_t index) {
  const Entry entries[] = {Number(kProductKey, productId),
                           Number(kChannelKey, channel),
                           Number(kIndexKey, index)};
  Post(family, lastInfo, entries, std::size(entries));
}

}  // namespace ztk::notify
