// SPDX-License-Identifier: MIT
#include "ztk/system/announcement.h"

#import <Foundation/Foundation.h>

#include "platform/notification_center.h"
#include "platform/text.h"

namespace {
namespace center = ztk::platform::notification_center;
using ztk::model::Announcement;
}  // namespace

// Keeps what came in of one name.
@interface ZTKInbox : NSObject {
 @public
  const ztk::notify::AnnouncedSetting *setting;
  std::vector<Announcement> heard;
}
- (void)keep:(NSNotification *)notification;
@end

@implementation ZTKInbox

- (void)keep:(NSNotification *)notification {
  const auto *info = (const center::UserInfo *)[notification userInfo];
  const auto number = [info](ZTKTextRef key) {
    return static_cast<std::uint32_t>(center::ReadNumber(info, key));
  };
  heard.push_back({.setting = setting,
                   .product = number(ztk::notify::kProductKey),
                   .channel = number(ztk::notify::kChannelKey),
                   .index = number(ztk::notify::kIndexKey)});
}

@end

namespace ztk::model {

namespace {

constexpr CFTimeInterval kPatience = 1;  // second

bool Has(const ZTKInbox *inbox, const Announcement &wanted) {
  if (inbox->setting != wanted.setting) return false;
  for (const Announcement &one : inbox->heard) {
    // A number that was not sent reads as 0.
    if (one.product == wanted.product && one.index == wanted.index &&
        one.channel == wanted.channel.value_or(0)) {
      return true;
    }
  }
  return false;
}

}  // namespace

struct BusWitness::Ear {
  std::vector<ZTKInbox *> inboxes;

  bool Has(const Announcement &wanted) const {
    for (const ZTKInbox *inbox : inboxes) {
      if (program::Has(inbox, wanted)) return true;
    }
    return false;
  }
};

// There is a center whenever the user is logged in, and no telling when there
// is none; a witness that hears nothing tells it.
bool SessionBusAnswers() { return true; }

BusWitness::BusWitness(
    const std::vector<const notify::AnnouncedSetting *> &settings)
    : ear_(std::make_unique<Ear>()) {
  for (const notify::AnnouncedSetting *setting : settings) {
    ZTKInbox *inbox = [[ZTKInbox alloc] init];
    inbox->setting = setting;
    ear_->inboxes.push_back(inbox);
    const platform::text::Made name(
        platform::text::Format(setting->nameFormat, setting->postedModel));
    center::AddObserver(inbox, {.selector = "keep:", .code = nullptr},
                        name.get());
  }
}

BusWitness::~BusWitness() {
  for (ZTKInbox *inbox : ear_->inboxes) {
    [[NSDistributedNotificationCenter defaultCenter] removeObserver:inbox];
    [inbox release];
  }
}

bool BusWitness::Heard(const Announcement &announcement) {
  const CFAbsoluteTime deadline = CFAbsoluteTimeGetCurrent() + kPatience;
  while (!ear_->Has(announcement)) {
    const CFTimeInterval left = deadline - CFAbsoluteTimeGetCurrent();
    if (left <= 0) return false;
    // Without a source to wait for, the loop would end at once each time.
    if (CFRunLoopRunInMode(kCFRunLoopDefaultMode, left, true) ==
        kCFRunLoopRunFinished) {
      return ear_->Has(announcement);
    }
  }
  return true;
}

}  // namespace ztk::model
