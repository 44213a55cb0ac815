// SPDX-License-Identifier: MIT
//
// The plug-in that loads the interface of a service.
#ifndef ZTK_TESTS_MACOS_IOCFPLUGIN_H_
#define ZTK_TESTS_MACOS_IOCFPLUGIN_H_
#pragma GCC system_header

#include <IOKit/IOKitLib.h>

#define kIOCFPlugInInterfaceID                                                \
  CFUUIDGetConstantUUIDWithBytes(kCFAllocatorDefault, 0xC2, 0x44, 0xE8, 0x58, \
                                 0x10, 0x9C, 0x11, 0xD4, 0x91, 0xD4, 0x00,    \
                                 0x50, 0xE4, 0xC6, 0x42, 0x6F)

typedef struct {
  IUNKNOWN_C_GUTS;
  UInt16 version;
  UInt16 revision;
  IOReturn (*Probe)(void *self, CFDictionaryRef properties,
                    io_service_t service, SInt32 *order);
  IOReturn (*Start)(void *self, CFDictionaryRef properties,
                    io_service_t service);
  IOReturn (*Stop)(void *self);
} IOCFPlugInInterface;

#ifdef __cplusplus
extern "C" {
#endif

kern_return_t IOCreatePlugInInterfaceForService(io_service_t service,
                                                CFUUIDRef pluginType,
                                                CFUUIDRef interfaceType,
                                                IOCFPlugInInterface ***plugIn,
                                                SInt32 *score);

#ifdef __cplusplus
}
#endif

#endif  // ZTK_TESTS_MACOS_IOCFPLUGIN_H_
