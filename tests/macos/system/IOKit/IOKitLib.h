// SPDX-License-Identifier: MIT
//
// The part of IOKit's registry interface that the library uses.
#ifndef ZTK_TESTS_MACOS_IOKITLIB_H_
#define ZTK_TESTS_MACOS_IOKITLIB_H_
#pragma GCC system_header

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

typedef kern_return_t IOReturn;
typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_service_t;
#define IO_OBJECT_NULL ((io_object_t)0)

#define kIOReturnSuccess 0
#define kIOReturnError ((IOReturn)0xE00002BC)
#define kIOReturnNoResources ((IOReturn)0xE00002BE)
#define kIOReturnNoDevice ((IOReturn)0xE00002C0)
#define kIOReturnBadArgument ((IOReturn)0xE00002C2)
#define kIOReturnExclusiveAccess ((IOReturn)0xE00002C5)
#define kIOReturnNotOpen ((IOReturn)0xE00002CD)
#define kIOReturnNotResponding ((IOReturn)0xE00002ED)

#ifdef __cplusplus
extern "C" {
#endif

kern_return_t IOMasterPort(mach_port_t bootstrapPort, mach_port_t *masterPort);
CFMutableDictionaryRef IOServiceMatching(const char *name);
// Releases one reference to the dictionary.
kern_return_t IOServiceGetMatchingServices(mach_port_t masterPort,
                                           CFDictionaryRef matching,
                                           io_iterator_t *existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);

#ifdef __cplusplus
}
#endif

#endif  // ZTK_TESTS_MACOS_IOKITLIB_H_
