// SPDX-License-Identifier: MIT
//
// The plug-in of a service and its USB device interface. Each of these objects
// starts with a pointer to its table of functions.
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/usb/IOUSBLib.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "iokit_double_objects.h"
#include "virtual-mixer/mixer/request_line.h"

namespace ztk::iokit {
namespace {

template <typename Table>
struct Object {
  const Table *functions;
  References references;
  std::size_t position;
};
using PlugIn = Object<IOCFPlugInInterface>;
using Interface = Object<IOUSBDeviceInterface>;

Interface *InterfaceAt(void *self) { return static_cast<Interface *>(self); }

Device &DeviceOf(const Interface &interface) {
  return CurrentWorld().bus.at(interface.position);
}

// Returns the number of the mixer, from 1. Only mixers are counted.
int MixerNumber(std::size_t position) {
  const auto &bus = CurrentWorld().bus;
  return static_cast<int>(std::count_if(
      bus.begin(), bus.begin() + static_cast<std::ptrdiff_t>(position) + 1,
      [](const Device &device) {
        return device.vendor == 0x6666 && device.product == 27;
      }));
}

// Records a call on an interface. Returns false if the interface was released.
bool Enter(void *self, const char *call) {
  LogCall(call);
  return InterfaceAt(self)->references.Use(call);
}

template <typename Number>
IOReturn Tell(void *self, const char *call, IOReturn result, Number fact,
              Number *out) {
  if (!Enter(self, call)) return kIOReturnNoDevice;
  if (result == kIOReturnSuccess) *out = fact;
  return result;
}

IOReturn GetClass(void *self, UInt8 *out) {
  return Tell<UInt8>(self, "GetDeviceClass",
                     DeviceOf(*InterfaceAt(self)).classResult, 0, out);
}

IOReturn GetSubClass(void *self, UInt8 *out) {
  return Tell<UInt8>(self, "GetDeviceSubClass",
                     DeviceOf(*InterfaceAt(self)).subClassResult, 0, out);
}

IOReturn GetVendor(void *self, UInt16 *out) {
  const Device &device = DeviceOf(*InterfaceAt(self));
  return Tell(self, "GetDeviceVendor", device.vendorResult, device.vendor, out);
}

IOReturn GetProduct(void *self, UInt16 *out) {
  const Device &device = DeviceOf(*InterfaceAt(self));
  return Tell(self, "GetDeviceProduct", device.productResult, device.product,
              out);
}

// The library must not open a device.
IOReturn Open(void *self) {
  Enter(self, "USBDeviceOpen");
  LogMisuse("a device was opened");
  return kIOReturnExclusiveAccess;
}

// The result of closing a device that was not opened.
IOReturn Close(void *self) {
  return Enter(self, "USBDeviceClose") ? kIOReturnNotOpen : kIOReturnNoDevice;
}

virtual_mixer::TransferStatus TransferStatusOf(IOReturn result) {
  return result == kIOReturnSuccess ? virtual_mixer::TransferStatus::Ok
                                    : virtual_mixer::TransferStatus::Stall;
}

IOReturn Request(void *self, IOUSBDevRequest *request) {
  if (!Enter(self, "DeviceRequest")) return kIOReturnNoDevice;
  // A write without bytes also has an address.
  if (request->pData == nullptr) LogMisuse("DeviceRequest without a buffer");
  const Interface &interface = *InterfaceAt(self);
  const Device &device = DeviceOf(interface);
  Reply reply{.result = device.writeResult, .bytes = {}};
  if ((request->bmRequestType & 0x80) != 0) {
    const auto known = device.replies.find(request->wIndex);
    reply = known != device.replies.end()
                ? known->second
                : Reply{.result = kIOReturnNotResponding, .bytes = {}};
  }
  reply.bytes.resize(
      std::min<std::size_t>(reply.bytes.size(), request->wLength));
  if (!reply.bytes.empty()) {
    std::memcpy(request->pData, reply.bytes.data(), reply.bytes.size());
  }
  request->wLenDone = static_cast<UInt32>(reply.bytes.size());
  CurrentWorld().requests.push_back(virtual_mixer::RequestLine(
      MixerNumber(interface.position),
      {.requestType = request->bmRequestType,
       .request = request->bRequest,
       .value = request->wValue,
       .index = request->wIndex,
       .length = request->wLength},
      TransferStatusOf(reply.result), reply.bytes.data(), reply.bytes.size()));
  return reply.result;
}

ULONG AddInterfaceReference(void *self) {
  LogCall("AddRef interface");
  InterfaceAt(self)->references.Add();
  return static_cast<ULONG>(InterfaceAt(self)->references.count());
}

ULONG ReleaseInterface(void *self) {
  LogCall("Release interface");
  Interface *interface = InterfaceAt(self);
  interface->references.Remove();
  return static_cast<ULONG>(interface->references.count()) +
         DeviceOf(*interface).releaseResult;
}

const IOUSBDeviceInterface *FirstVersion() {
  static const IOUSBDeviceInterface table = [] {
    IOUSBDeviceInterface functions{};
    functions.AddRef = AddInterfaceReference;
    functions.Release = ReleaseInterface;
    functions.USBDeviceOpen = Open;
    functions.USBDeviceClose = Close;
    functions.GetDeviceClass = GetClass;
    functions.GetDeviceSubClass = GetSubClass;
    functions.GetDeviceVendor = GetVendor;
    functions.GetDeviceProduct = GetProduct;
    functions.DeviceRequest = Request;
    return functions;
  }();
  return &table;
}

HRESULT QueryPlugIn(void *self, REFIID iid, LPVOID *out) {
  LogCall("QueryInterface");
  *out = nullptr;
  const auto *plugIn = static_cast<PlugIn *>(self);
  if (!plugIn->references.Use("QueryInterface")) return E_NOINTERFACE;
  const Device &device = CurrentWorld().bus.at(plugIn->position);
  if (!SameUuid(iid, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID))) {
    LogMisuse("QueryInterface for another interface");
    return E_NOINTERFACE;
  }
  if (!device.hasInterface) return E_NOINTERFACE;
  *out = Keep(Interface{.functions = FirstVersion(),
                        .references = References(kInterface),
                        .position = plugIn->position});
  return S_OK;
}

ULONG ReleasePlugIn(void *self) {
  LogCall("Release plug-in");
  auto *plugIn = static_cast<PlugIn *>(self);
  plugIn->references.Remove();
  return static_cast<ULONG>(plugIn->references.count());
}

}  // namespace

IOCFPlugInInterface **MakePlugIn(std::size_t position) {
  static const IOCFPlugInInterface table = [] {
    IOCFPlugInInterface functions{};
    functions.QueryInterface = QueryPlugIn;
    functions.Release = ReleasePlugIn;
    return functions;
  }();
  PlugIn *made = Keep(PlugIn{.functions = &table,
                             .references = References(kPlugIn),
                             .position = position});
  return reinterpret_cast<IOCFPlugInInterface **>(made);
}

}  // namespace ztk::iokit
