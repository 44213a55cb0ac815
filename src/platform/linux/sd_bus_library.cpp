// SPDX-License-Identifier: MIT
#include "platform/linux/sd_bus_library.h"

namespace ztk::platform::notification_center {

namespace {

bool FindAll(void *library, SdBusFunctions *functions) {
  ZTK_FOR_EVERY_SD_BUS_FUNCTION(ZTK_FIND_LOADED)
  return true;
}

ZTK_DLOPEN_NOTE(ZTK_SD_BUS_LIBRARY, "announcements",
                "Announcing changed settings on the session bus")

constinit LoadedLibrary<SdBusFunctions> theLibrary(ZTK_SD_BUS_LIBRARY, FindAll);

}  // namespace

const char *const kSdBusLibrary = ZTK_SD_BUS_LIBRARY;

const SdBusFunctions *SdBus() { return theLibrary.Get(); }

}  // namespace ztk::platform::notification_center
