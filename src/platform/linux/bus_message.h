// SPDX-License-Identifier: MIT
//
// A notification as a D-Bus signal: path, interface, name and body.
#ifndef ZTK_PLATFORM_LINUX_BUS_MESSAGE_H_
#define ZTK_PLATFORM_LINUX_BUS_MESSAGE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/linux/sd_bus_library.h"
#include "platform/notification_center.h"

namespace ztk::platform::notification_center {

inline constexpr char kBusPath[] = "/com/tarvix/DistributedNotificationCenter";
inline constexpr char kBusInterface[] =
    "com.tarvix.DistributedNotificationCenter";
inline constexpr char kBusMember[] = "Notification";

// The references are counted without a lock, because only one thread uses a
// record.
struct UserInfo {
  struct Number {
    std::string key;
    std::int32_t value;
  };
  std::size_t holds = 1;
  std::vector<Number> numbers;
};

// Makes the signal of a notification but does not send it. The caller owns the
// signal. Returns null if a signal cannot contain the notification, for example
// because the name is not UTF-8.
sd_bus_message *MakeMessage(sd_bus *bus, ZTKTextRef name,
                            const UserInfo *userInfo, Delivery delivery);

// Reads the record of a signal. The caller owns one reference to the record.
// Returns null if the signal has another form or another name.
UserInfo *ReadMessage(sd_bus_message *message, ZTKTextRef name);

// Returns the match rule for the notifications of a name. The rule may match
// other names too, so ReadMessage() compares the name.
std::string MatchRule(ZTKTextRef name);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_MESSAGE_H_
