// SPDX-License-Identifier: MIT
//
// Named notifications with a small dictionary of integers, which are delivered
// to every process of the user's session. If the session has no notification
// center, observing and posting do nothing and return at once.
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

// Makes a record of these entries in this order. Records are reference-counted;
// the caller owns one reference.
UserInfo *MakeUserInfo(const Entry *entries, std::size_t count);
// Releases one reference. Null is allowed.
void Release(UserInfo *userInfo);
// Returns the number of a key. Returns 0 if the key is absent or the record is
// null.
std::int32_t ReadNumber(const UserInfo *userInfo, ZTKTextRef key);

enum class Delivery {
  Default,     // may be delayed while the receiver is suspended
  Immediately  // is delivered even while the receiver is suspended
};

// Whether the center accepted a notification. If a center does not report this,
// the notification counts as sent.
enum class Handover { Sent, NoCenter, Failed };
struct PostResult {
  Handover handover = Handover::Sent;
  std::int32_t systemCode = 0;  // errno of a failure; 0 if there is none
};

// Sends a notification, without a sender object, to every observer of the name.
// The caller keeps its reference to the record.
PostResult Post(ZTKTextRef name, const UserInfo *userInfo, Delivery delivery);

// A method of the observer. Some centers call it by its name, others call the
// function `code`.
struct Method {
  const char *selector;
  void (*code)(void *observer, const UserInfo *userInfo);
};

// Makes the center call the method for each notification of the name that any
// process posts. The method runs on the event loop of the calling thread. Every
// call of AddObserver() adds one more registration, and the method runs once
// for each registration. A registration is never removed, so `observer` must
// exist until the process ends.
void AddObserver(void *observer, const Method &method, ZTKTextRef name);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_NOTIFICATION_CENTER_H_
