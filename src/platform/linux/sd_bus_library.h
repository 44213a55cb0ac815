// SPDX-License-Identifier: MIT
//
// The functions of sd-bus. Their library is loaded when a process posts or
// observes for the first time. It loads six other libraries, which would take a
// third of the start-up time of a program that only queries a mixer.
#ifndef ZTK_PLATFORM_LINUX_SD_BUS_LIBRARY_H_
#define ZTK_PLATFORM_LINUX_SD_BUS_LIBRARY_H_

#include "platform/linux/loaded_library.h"
#include "platform/linux/sd_bus_header.h"

// The functions that this project uses.
// clang-format off
#define ZTK_FOR_EVERY_SD_BUS_FUNCTION(Do) \
  Do(sd_bus_add_match)                    \
  Do(sd_bus_call_method)                  \
  Do(sd_bus_close)                        \
  Do(sd_bus_error_free)                   \
  Do(sd_bus_get_events)                   \
  Do(sd_bus_get_fd)                       \
  Do(sd_bus_get_n_queued_write)           \
  Do(sd_bus_get_timeout)                  \
  Do(sd_bus_is_open)                      \
  Do(sd_bus_is_ready)                     \
  Do(sd_bus_message_append)               \
  Do(sd_bus_message_append_basic)         \
  Do(sd_bus_message_close_container)      \
  Do(sd_bus_message_enter_container)      \
  Do(sd_bus_message_exit_container)       \
  Do(sd_bus_message_has_signature)        \
  Do(sd_bus_message_new_signal)           \
  Do(sd_bus_message_open_container)       \
  Do(sd_bus_message_read)                 \
  Do(sd_bus_message_read_basic)           \
  Do(sd_bus_message_rewind)               \
  Do(sd_bus_message_unref)                \
  Do(sd_bus_open_user)                    \
  Do(sd_bus_process)                      \
  Do(sd_bus_send)                         \
  Do(sd_bus_set_exit_on_disconnect)       \
  Do(sd_bus_set_method_call_timeout)      \
  Do(sd_bus_slot_set_destroy_callback)    \
  Do(sd_bus_slot_set_floating)            \
  Do(sd_bus_slot_unref)                   \
  Do(sd_bus_unref)                        \
  Do(sd_bus_wait)
// clang-format on

namespace ztk::platform::notification_center {

struct SdBusFunctions {
  ZTK_FOR_EVERY_SD_BUS_FUNCTION(ZTK_LOADED_POINTER)
};

// The soname of the library.
extern const char *const kSdBusLibrary;

// Returns all functions, or null if they cannot be loaded: see LoadedLibrary.
const SdBusFunctions *SdBus();

// Each function under its own name. It may be called only after SdBus() has
// returned the functions. This is certain for code that has a connection or a
// message.
#define ZTK_DEFINE(name) ZTK_LOADED_FUNCTION(SdBus(), name)
ZTK_FOR_EVERY_SD_BUS_FUNCTION(ZTK_DEFINE)
#undef ZTK_DEFINE

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_SD_BUS_LIBRARY_H_
