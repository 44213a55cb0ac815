// SPDX-License-Identifier: MIT
//
// Checks the offsets of the members of IOKit's structures that the port uses.
// This file is compiled with the declarations in this folder and, if possible,
// with a macOS SDK. So the test double has the same binary interface as the
// system.
#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>

#include <cstddef>

static_assert(sizeof(void *) == 8);

static_assert(offsetof(IOCFPlugInInterface, QueryInterface) == 8);
static_assert(offsetof(IOCFPlugInInterface, Release) == 24);

static_assert(offsetof(IOUSBDeviceInterface, QueryInterface) == 8);
static_assert(offsetof(IOUSBDeviceInterface, AddRef) == 16);
static_assert(offsetof(IOUSBDeviceInterface, Release) == 24);
static_assert(offsetof(IOUSBDeviceInterface, USBDeviceOpen) == 64);
static_assert(offsetof(IOUSBDeviceInterface, USBDeviceClose) == 72);
static_assert(offsetof(IOUSBDeviceInterface, GetDeviceClass) == 80);
static_assert(offsetof(IOUSBDeviceInterface, GetDeviceSubClass) == 88);
static_assert(offsetof(IOUSBDeviceInterface, GetDeviceVendor) == 104);
static_assert(offsetof(IOUSBDeviceInterface, GetDeviceProduct) == 112);
static_assert(offsetof(IOUSBDeviceInterface, DeviceRequest) == 208);
static_assert(offsetof(IOUSBDeviceInterface, CreateInterfaceIterator) == 224);

static_assert(sizeof(IOUSBDevRequest) == 24);
static_assert(offsetof(IOUSBDevRequest, wValue) == 2);
static_assert(offsetof(IOUSBDevRequest, wIndex) == 4);
static_assert(offsetof(IOUSBDevRequest, wLength) == 6);
static_assert(offsetof(IOUSBDevRequest, pData) == 8);
static_assert(offsetof(IOUSBDevRequest, wLenDone) == 16);

static_assert(kCFNumberSInt32Type == 3);
static_assert(kCFStringEncodingASCII == 0x0600);
static_assert(static_cast<unsigned>(kIOReturnError) == 0xE00002BC);
static_assert(static_cast<unsigned>(kIOReturnNoResources) == 0xE00002BE);
static_assert(static_cast<unsigned>(kIOReturnNoDevice) == 0xE00002C0);
static_assert(static_cast<unsigned>(kIOReturnBadArgument) == 0xE00002C2);
static_assert(static_cast<unsigned>(kIOReturnExclusiveAccess) == 0xE00002C5);
static_assert(static_cast<unsigned>(kIOReturnNotOpen) == 0xE00002CD);
static_assert(static_cast<unsigned>(kIOReturnNotResponding) == 0xE00002ED);
