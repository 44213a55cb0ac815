// SPDX-License-Identifier: MIT
//
// The functions of GLib's main loop. The library is loaded when the first
// callback is registered. A program that receives callbacks runs that loop, so
// it has loaded the same library already: both use the soname.
#ifndef ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_
#define ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_

#include <glib-unix.h>
#include <glib.h>

#include "platform/linux/loaded_library.h"

// All that are used.
// clang-format off
#define ZTK_FOR_EVERY_GLIB_FUNCTION(Do)             \
  Do(g_main_context_default)                        \
  Do(g_main_context_find_source_by_funcs_user_data) \
  Do(g_main_context_find_source_by_id)              \
  Do(g_main_context_get_thread_default)             \
  Do(g_main_context_invoke_full)                    \
  Do(g_main_loop_new)                               \
  Do(g_main_loop_quit)                              \
  Do(g_main_loop_run)                               \
  Do(g_main_loop_unref)                             \
  Do(g_source_add_unix_fd)                          \
  Do(g_source_attach)                               \
  Do(g_source_destroy)                              \
  Do(g_source_modify_unix_fd)                       \
  Do(g_source_new)                                  \
  Do(g_source_remove)                               \
  Do(g_source_set_callback)                         \
  Do(g_source_set_name)                             \
  Do(g_source_unref)                                \
  Do(g_unix_fd_add)                                 \
  Do(g_unix_signal_add)
// clang-format on

namespace ztk::platform::notification_center {

struct GLibFunctions {
  ZTK_FOR_EVERY_GLIB_FUNCTION(ZTK_LOADED_POINTER)
};

// The soname that is loaded.
extern const char *const kGLibLibrary;

// All of them, or null; see LoadedLibrary.
const GLibFunctions *GLib();

// May be called only after GLib() has found them. A function that has a
// context, a source or a loop can rely on that.
#define ZTK_DEFINE(name) ZTK_LOADED_FUNCTION(GLib(), name)
ZTK_FOR_EVERY_GLIB_FUNCTION(ZTK_DEFINE)
#undef ZTK_DEFINE

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_
