// SPDX-License-Identifier: MIT
#include "platform/linux/bus_message.h"

#include <cstring>
#include <memory>
#include <new>

namespace ztk::platform::notification_center {

namespace {

// The body has three parts: the name, the record, and whether the notification
// has to be delivered immediately. The third part is for receivers that can be
// suspended. The observer of this library ignores it.
constexpr char kSignature[] = "sa{si}b";
constexpr char kRecord[] = "{si}";
constexpr char kEntry[] = "si";

bool AppendBody(sd_bus_message *message, ZTKTextRef name,
                const UserInfo *userInfo, Delivery delivery) {
  if (sd_bus_message_append_basic(message, 's', name) < 0) return false;
  if (sd_bus_message_open_container(message, 'a', kRecord) < 0) return false;
  if (userInfo != nullptr) {
    for (const UserInfo::Number &number : userInfo->numbers) {
      if (sd_bus_message_append(message, kRecord, number.key.c_str(),
                                number.value) < 0) {
        return false;
      }
    }
  }
  if (sd_bus_message_close_container(message) < 0) return false;
  const int immediately = delivery == Delivery::Immediately ? 1 : 0;
  return sd_bus_message_append_basic(message, 'b', &immediately) >= 0;
}

bool ReadRecord(sd_bus_message *message, UserInfo *userInfo) {
  if (sd_bus_message_enter_container(message, 'a', kRecord) < 0) return false;
  int more = 0;
  while ((more = sd_bus_message_enter_container(message, 'e', kEntry)) > 0) {
    const char *key = nullptr;
    std::int32_t value = 0;
    if (sd_bus_message_read(message, kEntry, &key, &value) < 0) return false;
    userInfo->numbers.push_back({.key = key, .value = value});
    if (sd_bus_message_exit_container(message) < 0) return false;
  }
  return more == 0 && sd_bus_message_exit_container(message) >= 0;
}

// Returns true if the text can be written between apostrophes without escapes.
// The bus and sd-bus escape apostrophes and backslashes differently.
bool CanBeQuoted(ZTKTextRef text) {
  return std::strpbrk(text, "'\\") == nullptr;
}

}  // namespace

sd_bus_message *MakeMessage(sd_bus *bus, ZTKTextRef name,
                            const UserInfo *userInfo, Delivery delivery) {
  sd_bus_message *message = nullptr;
  if (sd_bus_message_new_signal(bus, &message, kBusPath, kBusInterface,
                                kBusMember) < 0) {
    return nullptr;
  }
  if (AppendBody(message, name, userInfo, delivery)) return message;
  sd_bus_message_unref(message);
  return nullptr;
}

UserInfo *ReadMessage(sd_bus_message *message, ZTKTextRef name) try {
  // Several registrations read the same message, one after the other.
  if (sd_bus_message_rewind(message, 1) < 0) return nullptr;
  if (sd_bus_message_has_signature(message, kSignature) <= 0) return nullptr;
  const char *sent = nullptr;
  if (sd_bus_message_read_basic(message, 's', &sent) <= 0) return nullptr;
  if (std::strcmp(sent, name) != 0) return nullptr;

  auto userInfo = std::make_unique<UserInfo>();
  int immediately = 0;
  if (!ReadRecord(message, userInfo.get())) return nullptr;
  if (sd_bus_message_read_basic(message, 'b', &immediately) <= 0) {
    return nullptr;
  }
  return userInfo.release();
} catch (const std::bad_alloc &) {
  return nullptr;
}

std::string MatchRule(ZTKTextRef name) {
  std::string rule = "type='signal'";
  rule.append(",path='").append(kBusPath);
  rule.append("',interface='").append(kBusInterface);
  rule.append("',member='").append(kBusMember).append("'");
  if (CanBeQuoted(name)) rule.append(",arg0='").append(name).append("'");
  return rule;
}

}  // namespace ztk::platform::notification_center
