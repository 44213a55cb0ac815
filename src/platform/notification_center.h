// SPDX-License-Identifier: MIT
//
// Named notifications with a small dictionary of integers, delivered to every
// process of the user's session. Without such a service, observing and posting
// do nothing and return at once.
#ifndef ZTK_PLATFORM_NOTIFICATION_CENTER_H_
#define ZTK_PLATFORM_NOTIFICATION_CENTER_H_

#include <cstddef>
#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::platform::notification_center {

// The record of a notification. It is immutable.
struct UserInfo;
struct Entry {
  ZTKTextRef key;
  std::int32_t value;
};

// Makes a record of these entries in this order; the caller owns one hold.
UserInfo *MakeUserInfo(const Entry *entries, std::size_t count);
// Null is allowed.
void Release(UserInfo *userInfo);
// The number under a key; 0 when the key is absent or the record null.
std::int32_t ReadNumber(const UserInfo *userInfo, ZTKTextRef key);

enum class Delivery {
  Default,     // the center may hold it back while the receiver is suspended
  Immediately  // asks for delivery even then
};

// Whether the center accepted a notification. A center that does not report
// this counts as accepting it.
enum class Handover { Sent, NoCenter, Failed };
struct PostResult {
  Handover handover = Handover::Sent;
  std::int32_t systemCode = 0;  // errno of a failure; 0 if there is none
};

// Sends to every observer of the name, with no sender object. The port takes
// its own hold of the record for as long as it needs it.
PostResult Post(ZTKTextRef name, const UserInfo *userInfo, Delivery delivery);

// A method of the observer: its name, for centers that call by name, and its
// code, for those that call directly.
struct Method {
  const char *selector;
  void (*code)(void *observer, const UserInfo *userInfo);
};

// Makes the center call the method for each notification of the name, from any
// process, on the event loop of the calling thread. Every call adds a
// registration, and each registration delivers; nothing is ever removed.
// `observer` must exist as long as the process.
void AddObserver(void *observer, const Method &method, ZTKTextRef name);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_NOTIFICATION_CENTER_H_
