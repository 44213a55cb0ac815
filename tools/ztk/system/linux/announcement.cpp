// SPDX-License-Identifier: MIT
#include "ztk/system/announcement.h"

#include <algorithm>
#include <deque>

#include "platform/linux/bus_connection.h"
#include "platform/linux/bus_source.h"
#include "platform/linux/glib_library.h"
#include "platform/linux/sd_bus_library.h"
#include "platform/text.h"

namespace ztk::model {

namespace {

namespace center = platform::notification_center;

// What came in, of one name.
struct Inbox {
  const notify::AnnouncedSetting *setting;
  std::vector<Announcement> heard;
};

void Keep(void *observer, const center::UserInfo *userInfo) {
  auto *inbox = static_cast<Inbox *>(observer);
  const auto number = [userInfo](ZTKTextRef key) {
    return static_cast<std::uint32_t>(center::ReadNumber(userInfo, key));
  };
  inbox->heard.push_back({.setting = inbox->setting,
                          .product = number(notify::kProductKey),
                          .channel = number(notify::kChannelKey),
                          .index = number(notify::kIndexKey)});
}

}  // namespace

struct BusWitness::Ear {
  center::OwnedBus bus;
  std::deque<Inbox> inboxes;  // which the registrations point to

  void ListenTo(const notify::AnnouncedSetting *setting) {
    Inbox &inbox = inboxes.emplace_back(Inbox{.setting = setting, .heard = {}});
    const platform::text::Made name(
        platform::text::Format(setting->nameFormat, setting->postedModel));
    auto registration =
        std::make_unique<center::Registration>(center::Registration{
            .observer = &inbox, .code = Keep, .name = name.get()});
    center::AddRegistration(bus.get(), &registration);
  }

  bool Has(const Announcement &wanted) const {
    for (const Inbox &inbox : inboxes) {
      if (inbox.setting != wanted.setting) continue;
      for (const Announcement &one : inbox.heard) {
        // A number that was not sent reads as 0.
        if (one.product == wanted.product && one.index == wanted.index &&
            one.channel == wanted.channel.value_or(0)) {
          return true;
        }
      }
    }
    return false;
  }
};

bool SessionBusAnswers() {
  return center::ConnectToSessionBus(center::PatienceEnds()) != nullptr;
}

const char *MissingBusLibrary() {
  return center::SdBus() == nullptr ? center::kSdBusLibrary : nullptr;
}

const char *MissingLoopLibrary() {
  return center::GLib() == nullptr ? center::kGLibLibrary : nullptr;
}

BusWitness::BusWitness(
    const std::vector<const notify::AnnouncedSetting *> &settings)
    : ear_(std::make_unique<Ear>()) {
  ear_->bus = center::ConnectToSessionBus(center::PatienceEnds());
  if (ear_->bus == nullptr) return;
  for (const notify::AnnouncedSetting *setting : settings)
    ear_->ListenTo(setting);
}

BusWitness::~BusWitness() {
  // Before the inboxes that it writes to.
  ear_->bus.reset();
}

bool BusWitness::Heard(const Announcement &announcement) {
  sd_bus *bus = ear_->bus.get();
  if (bus == nullptr) return false;
  const std::uint64_t deadline = center::PatienceEnds();
  while (!ear_->Has(announcement)) {
    const int progress = center::sd_bus_process(bus, nullptr);
    if (progress < 0) return false;
    if (progress > 0) continue;
    const std::uint64_t now = center::Now();
    if (now >= deadline) return false;
    if (center::sd_bus_wait(bus, deadline - now) < 0) return false;
  }
  return true;
}

}  // namespace ztk::model
