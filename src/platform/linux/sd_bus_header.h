// SPDX-License-Identifier: MIT
//
// The three libraries with the sd-bus interface install its header in different
// folders.
#ifndef ZTK_PLATFORM_LINUX_SD_BUS_HEADER_H_
#define ZTK_PLATFORM_LINUX_SD_BUS_HEADER_H_

#if __has_include(<systemd/sd-bus.h>)
#include <systemd/sd-bus.h>
#elif __has_include(<elogind/systemd/sd-bus.h>)
#include <elogind/systemd/sd-bus.h>
#else
#include <basu/sd-bus.h>
#endif

#endif  // ZTK_PLATFORM_LINUX_SD_BUS_HEADER_H_
