// SPDX-License-Identifier: MIT
//
// USB access with the device interface of IOKit. Each function of usb.h is one
// call of IOKit. Vendor requests use the default pipe, for which the device
// need not be opened, so other programs can use the device at the same time.
#include "platform/usb.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>
#include <mach/mach.h>

#include <cstdint>

namespace ztk::platform::usb {
namespace {

static_assert(kError == static_cast<Code>(kIOReturnError));
static_assert(kExclusiveAccess == static_cast<Code>(kIOReturnExclusiveAccess));

// The kernel identifies ports, iterators and services by numbers. A handle
// contains the number itself; the null handle is the number 0.
template <typename Handle>
Handle HandleOf(mach_port_t name) {
  return reinterpret_cast<Handle>(static_cast<std::uintptr_t>(name));
}

template <typename Handle>
mach_port_t NameOf(Handle handle) {
  return static_cast<mach_port_t>(reinterpret_cast<std::uintptr_t>(handle));
}

// QueryDevice() asks for the first version of the device interface, so only
// functions of that version may be called. Later versions only add functions.
IOUSBDeviceInterface **InterfaceOf(Device *device) {
  return reinterpret_cast<IOUSBDeviceInterface **>(device);
}

IOCFPlugInInterface **InterfaceOf(PlugIn *plugIn) {
  return reinterpret_cast<IOCFPlugInInterface **>(plugIn);
}

Code CodeOf(IOReturn result) { return static_cast<Code>(result); }

}  // namespace

Code GetMasterPort(Port *port) {
  mach_port_t name = MACH_PORT_NULL;
  const Code result = CodeOf(IOMasterPort(MACH_PORT_NULL, &name));
  *port = HandleOf<Port>(result == kSuccess ? name : MACH_PORT_NULL);
  return result;
}

void ReleaseMasterPort(Port port) {
  mach_port_deallocate(mach_task_self(), NameOf(port));
}

Matching *CreateMatching(const char *className) {
  return reinterpret_cast<Matching *>(IOServiceMatching(className));
}

Number *MakeNumber(std::int32_t value) {
  const CFNumberRef number =
      CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value);
  return reinterpret_cast<Number *>(const_cast<__CFNumber *>(number));
}

void SetMatchingValue(Matching *matching, const char *key, Number *number) {
  const CFStringRef name = CFStringCreateWithCString(kCFAllocatorDefault, key,
                                                     kCFStringEncodingASCII);
  CFDictionarySetValue(reinterpret_cast<CFMutableDictionaryRef>(matching), name,
                       number);
  CFRelease(name);
}

Code FindServices(Port port, Matching *matching, Iterator *iterator) {
  io_iterator_t found = IO_OBJECT_NULL;
  const Code result = CodeOf(IOServiceGetMatchingServices(
      NameOf(port), reinterpret_cast<CFMutableDictionaryRef>(matching),
      &found));
  *iterator = HandleOf<Iterator>(result == kSuccess ? found : IO_OBJECT_NULL);
  return result;
}

Service NextService(Iterator iterator) {
  return HandleOf<Service>(IOIteratorNext(NameOf(iterator)));
}

void ReleaseService(Service service) { IOObjectRelease(NameOf(service)); }

void ReleaseIterator(Iterator iterator) { IOObjectRelease(NameOf(iterator)); }

Code CreatePlugIn(Service service, PlugIn **plugIn) {
  IOCFPlugInInterface **made = nullptr;
  SInt32 score = 0;  // not used, because there is only one plug-in
  const Code result = CodeOf(IOCreatePlugInInterfaceForService(
      NameOf(service), kIOUSBDeviceUserClientTypeID, kIOCFPlugInInterfaceID,
      &made, &score));
  *plugIn = result == kSuccess ? reinterpret_cast<PlugIn *>(made) : nullptr;
  return result;
}

Device *QueryDevice(PlugIn *plugIn) {
  IOCFPlugInInterface **loader = InterfaceOf(plugIn);
  LPVOID device = nullptr;
  (*loader)->QueryInterface(loader, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID),
                            &device);
  return static_cast<Device *>(device);
}

void ReleasePlugIn(PlugIn *plugIn) {
  IOCFPlugInInterface **loader = InterfaceOf(plugIn);
  (*loader)->Release(loader);
}

Code GetDeviceClass(Device *device, std::uint8_t *deviceClass) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return CodeOf((*interface)->GetDeviceClass(interface, deviceClass));
}

Code GetDeviceSubClass(Device *device, std::uint8_t *deviceSubClass) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return CodeOf((*interface)->GetDeviceSubClass(interface, deviceSubClass));
}

Code GetDeviceVendor(Device *device, std::uint16_t *vendor) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return CodeOf((*interface)->GetDeviceVendor(interface, vendor));
}

Code GetDeviceProduct(Device *device, std::uint16_t *product) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return CodeOf((*interface)->GetDeviceProduct(interface, product));
}

// IOKit needs no preparation: requests can be sent to every device.
Device *MakeReady(Device *device, Result *result) {
  *result = {};
  return device;
}

Code Request(Device *device, ControlRequest *request) {
  IOUSBDevRequest record{.bmRequestType = request->requestType,
                         .bRequest = request->request,
                         .wValue = request->value,
                         .wIndex = request->index,
                         .wLength = request->length,
                         .pData = request->data,
                         .wLenDone = 0};
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  const Code result = CodeOf((*interface)->DeviceRequest(interface, &record));
  request->lengthDone = record.wLenDone;
  request->systemCode = static_cast<std::int32_t>(result);
  return result;
}

Code CloseDevice(Device *device) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return CodeOf((*interface)->USBDeviceClose(interface));
}

std::uint32_t ReleaseDevice(Device *device) {
  IOUSBDeviceInterface **interface = InterfaceOf(device);
  return (*interface)->Release(interface);
}

}  // namespace ztk::platform::usb
