// SPDX-License-Identifier: MIT
#include "notify/posting.h"

#include <iterator>

#include "outcome/outcome.h"
#include "platform/text.h"

namespace ztk::notify {
namespace {

namespace center = platform::notification_center;
using center::Entry;

Entry Number(ZTKTextRef key, std::uint32_t value) {
  return {.key = key, .value = static_cast<std::int32_t>(value)};
}

std::uint32_t ResultOf(center::Handover handover) {
  switch (handover) {
    case center::Handover::Sent:
      return ZTK_ANNOUNCEMENT_SENT;
    case center::Handover::NoCenter:
      return ZTK_ANNOUNCEMENT_NO_BUS;
    case center::Handover::Failed:
      break;
  }
  return ZTK_ANNOUNCEMENT_FAILED;
}

void Post(const AnnouncedSetting &setting, UserInfo **lastInfo,
          const Entry *entries, std::size_t count) {
  center::Release(*lastInfo);
  *lastInfo = center::MakeUserInfo(entries, count);

  const platform::text::OwnedText name(
      platform::text::Format(setting.nameFormat, setting.postedModel));
  const center::PostResult result =
      center::Post(name.get(), *lastInfo, setting.delivery);
  outcome::RecordAnnouncement(ResultOf(result.handover), result.systemCode);
}

}  // namespace

void PostIndex(const AnnouncedSetting &setting, UserInfo **lastInfo,
               std::uint32_t productId, std::uint32_t index) {
  const Entry entries[] = {Number(kProductKey, productId),
                           Number(kIndexKey, index)};
  Post(setting, lastInfo, entries, std::size(entries));
}

void PostChannelIndex(const AnnouncedSetting &setting, UserInfo **lastInfo,
                      std::uint32_t productId, std::uint32_t channel,
                      std::uint32_t index) {
  const Entry entries[] = {Number(kProductKey, productId),
                           Number(kChannelKey, channel),
                           Number(kIndexKey, index)};
  Post(setting, lastInfo, entries, std::size(entries));
}

}  // namespace ztk::notify
