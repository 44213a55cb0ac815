// SPDX-License-Identifier: MIT
//
// Receives notifications: each GLib main context that needs one has a
// connection to the session bus, with the registrations of the observers.
#ifndef ZTK_PLATFORM_LINUX_BUS_SOURCE_H_
#define ZTK_PLATFORM_LINUX_BUS_SOURCE_H_

#include <memory>
#include <string>

#include "platform/linux/glib_library.h"
#include "platform/linux/sd_bus_library.h"
#include "platform/notification_center.h"

namespace ztk::platform::notification_center {

// The registration of one observer for one name.
struct Registration {
  void *observer;
  void (*code)(void *observer, const UserInfo *userInfo);
  std::string name;
};

// Makes the connection call the registration for each notification of its name.
// Waits until the bus has accepted the match rule. On success the connection
// owns the registration and *registration is empty. On failure *registration is
// unchanged.
bool AddRegistration(sd_bus *bus, std::unique_ptr<Registration> *registration);

// Adds a registration to the connection of the context. The first call makes
// the connection, which the context owns. Only the thread that owns the context
// may call this function. Without a bus it does nothing.
void Register(GMainContext *context,
              std::unique_ptr<Registration> registration);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_SOURCE_H_
