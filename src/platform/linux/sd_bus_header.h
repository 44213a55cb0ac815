// SPDX-License-Identifier: MIT
//
// Includes the header of sd-bus. The three libraries that contain sd-bus
// install it in different folders.
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
