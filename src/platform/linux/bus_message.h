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

// Holds are counted without a lock: a record is used by one thread only.
struct UserInfo {
  struct Number {
    std::string key;
    std::int32_t value;
  };
  std::size_t holds = 1;
  std::vector<Number> numbers;
};

// Makes the unsent signal of a notification; the caller owns it. Null when the
// bus cannot transport it, for example a name that is not UTF-8.
sd_bus_message *MakeMessage(sd_bus *bus, ZTKTextRef name,
                            const UserInfo *userInfo, Delivery delivery);

// Reads the record of a signal, from its start; the caller owns one hold. Null
// when the signal does not come from this library or has another name.
UserInfo *ReadMessage(sd_bus_message *message, ZTKTextRef name);

// The match rule with which the bus delivers the notifications of a name. It
// may match other names too.
std::string MatchRule(ZTKTextRef name);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_MESSAGE_H_
