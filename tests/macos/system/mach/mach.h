// SPDX-License-Identifier: MIT
//
// The part of the kernel's port interface that the library uses.
#ifndef ZTK_TESTS_MACOS_MACH_H_
#define ZTK_TESTS_MACOS_MACH_H_
#pragma GCC system_header

#include <stdint.h>

typedef uint32_t mach_port_t;
typedef mach_port_t task_t;
typedef int kern_return_t;
#define MACH_PORT_NULL ((mach_port_t)0)
#define KERN_SUCCESS 0
#define KERN_INVALID_NAME 15

#ifdef __cplusplus
extern "C" {
#endif

task_t mach_task_self(void);
kern_return_t mach_port_deallocate(task_t task, mach_port_t name);

#ifdef __cplusplus
}
#endif

#endif  // ZTK_TESTS_MACOS_MACH_H_
