// SPDX-License-Identifier: MIT
//
// The functions of GLib's main loop. GLib is loaded when the first callback is
// registered. A program that receives callbacks runs this main loop, so it has
// usually loaded GLib already. dlopen() then returns the same library, because
// it is loaded by its soname.
#ifndef ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_
#define ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_

#include <glib-unix.h>
#include <glib.h>

#include "platform/linux/loaded_library.h"

// The functions that this project uses.
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

// The soname of the library.
extern const char *const kGLibLibrary;

// Returns all functions, or null if they cannot be loaded: see LoadedLibrary.
const GLibFunctions *GLib();

// Each function under its own name. It may be called only after GLib() has
// returned the functions. This is certain for code that has a context, a source
// or a loop.
#define ZTK_DEFINE(name) ZTK_LOADED_FUNCTION(GLib(), name)
ZTK_FOR_EVERY_GLIB_FUNCTION(ZTK_DEFINE)
#undef ZTK_DEFINE

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_GLIB_LIBRARY_H_
