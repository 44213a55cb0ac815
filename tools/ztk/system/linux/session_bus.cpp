// SPDX-License-Identifier: MIT
#include "ztk/system/session_bus.h"

#include "platform/linux/bus_connection.h"
#include "platform/linux/glib_library.h"
#include "platform/linux/sd_bus_library.h"

namespace ztk::model {

namespace center = platform::notification_center;

bool SessionBusAnswers() {
  return center::ConnectToSessionBus(center::WaitDeadline()) != nullptr;
}

const char *MissingBusLibrary() {
  return center::SdBus() == nullptr ? center::kSdBusLibrary : nullptr;
}

const char *MissingLoopLibrary() {
  return center::GLib() == nullptr ? center::kGLibLibrary : nullptr;
}

}  // namespace ztk::model
