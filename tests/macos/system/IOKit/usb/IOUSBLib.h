// SPDX-License-Identifier: MIT
//
// The first version of the USB device interface. A port that uses functions of
// later versions cannot be built with this header.
#ifndef ZTK_TESTS_MACOS_IOUSBLIB_H_
#define ZTK_TESTS_MACOS_IOUSBLIB_H_
#pragma GCC system_header

#include <IOKit/IOKitLib.h>

#define kIOUSBDeviceUserClientTypeID                                          \
  CFUUIDGetConstantUUIDWithBytes(kCFAllocatorDefault, 0x9D, 0xC7, 0xB7, 0x80, \
                                 0x9E, 0xC0, 0x11, 0xD4, 0xA5, 0x4F, 0x00,    \
                                 0x0A, 0x27, 0x05, 0x28, 0x61)
#define kIOUSBDeviceInterfaceID                                               \
  CFUUIDGetConstantUUIDWithBytes(kCFAllocatorDefault, 0x5C, 0x81, 0x87, 0xD0, \
                                 0x9E, 0xF3, 0x11, 0xD4, 0x8B, 0x45, 0x00,    \
                                 0x0A, 0x27, 0x05, 0x28, 0x61)

typedef struct {
  UInt8 bmRequestType;
  UInt8 bRequest;
  UInt16 wValue;
  UInt16 wIndex;
  UInt16 wLength;
  void *pData;
  UInt32 wLenDone;
} IOUSBDevRequest;

// Functions that the library does not use are declared too, so that the offsets
// are correct.
typedef struct {
  IUNKNOWN_C_GUTS;
  IOReturn (*CreateDeviceAsyncEventSource)(void *self,
                                           CFRunLoopSourceRef *source);
  CFRunLoopSourceRef (*GetDeviceAsyncEventSource)(void *self);
  IOReturn (*CreateDeviceAsyncPort)(void *self, mach_port_t *port);
  mach_port_t (*GetDeviceAsyncPort)(void *self);
  IOReturn (*USBDeviceOpen)(void *self);
  IOReturn (*USBDeviceClose)(void *self);
  IOReturn (*GetDeviceClass)(void *self, UInt8 *deviceClass);
  IOReturn (*GetDeviceSubClass)(void *self, UInt8 *deviceSubClass);
  IOReturn (*GetDeviceProtocol)(void *self, UInt8 *deviceProtocol);
  IOReturn (*GetDeviceVendor)(void *self, UInt16 *vendor);
  IOReturn (*GetDeviceProduct)(void *self, UInt16 *product);
  IOReturn (*GetDeviceReleaseNumber)(void *self, UInt16 *release);
  IOReturn (*GetDeviceAddress)(void *self, UInt16 *address);
  IOReturn (*GetDeviceBusPowerAvailable)(void *self, UInt32 *power);
  IOReturn (*GetDeviceSpeed)(void *self, UInt8 *speed);
  IOReturn (*GetNumberOfConfigurations)(void *self, UInt8 *count);
  IOReturn (*GetLocationID)(void *self, UInt32 *location);
  IOReturn (*GetConfigurationDescriptorPtr)(void *self, UInt8 index,
                                            void **descriptor);
  IOReturn (*GetConfiguration)(void *self, UInt8 *number);
  IOReturn (*SetConfiguration)(void *self, UInt8 number);
  IOReturn (*GetBusFrameNumber)(void *self, UInt64 *frame, void *atTime);
  IOReturn (*ResetDevice)(void *self);
  IOReturn (*DeviceRequest)(void *self, IOUSBDevRequest *request);
  IOReturn (*DeviceRequestAsync)(void *self, IOUSBDevRequest *request,
                                 void (*callback)(void), void *context);
  IOReturn (*CreateInterfaceIterator)(void *self, void *request,
                                      io_iterator_t *iterator);
} IOUSBDeviceInterface;

#endif  // ZTK_TESTS_MACOS_IOUSBLIB_H_
