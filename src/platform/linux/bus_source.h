// SPDX-License-Identifier: MIT
//
// Receiving: a connection to the session bus that a GLib main context works
// on, and the registrations on it.
#ifndef ZTK_PLATFORM_LINUX_BUS_SOURCE_H_
#define ZTK_PLATFORM_LINUX_BUS_SOURCE_H_

#include <memory>
#include <string>

#include "platform/linux/glib_library.h"
#include "platform/linux/sd_bus_library.h"
#include "platform/notification_center.h"

namespace ztk::platform::notification_center {

// One observer of one name.
struct Registration {
  void *observer;
  void (*code)(void *observer, const UserInfo *userInfo);
  std::string name;
};

// Makes the connection call the registration for each notification of its name.
// Waits until the bus accepts. On success the connection owns the registration
// and leaves it empty; on failure it is untouched.
bool AddRegistration(sd_bus *bus, std::unique_ptr<Registration> *registration);

// Adds a registration to the context's connection, which is made on the first
// call and belongs to the context. Only the thread that owns the context may
// call it. Without a bus it does nothing.
void Register(GMainContext *context,
              std::unique_ptr<Registration> registration);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_SOURCE_H_
