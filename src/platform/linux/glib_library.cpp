// SPDX-License-Identifier: MIT
#include "platform/linux/glib_library.h"

namespace ztk::platform::notification_center {

namespace {

bool FindAll(void *library, GLibFunctions *functions) {
  ZTK_FOR_EVERY_GLIB_FUNCTION(ZTK_FIND_LOADED)
  return true;
}

ZTK_DLOPEN_NOTE(ZTK_GLIB_LIBRARY, "callbacks",
                "Calling back when another process changes a setting")

constinit LoadedLibrary<GLibFunctions> theLibrary(ZTK_GLIB_LIBRARY, FindAll);

}  // namespace

const char *const kGLibLibrary = ZTK_GLIB_LIBRARY;

const GLibFunctions *GLib() { return theLibrary.Get(); }

}  // namespace ztk::platform::notification_center
