// SPDX-License-Identifier: MIT
//
// USB access; each function is one operation of the system. src/usb/USB.cpp
// decides what is counted, chosen, released or not released; a port only
// executes it.
//
// No function keeps state between calls and any thread may call it. The caller
// owns a handle until it passes the handle to the function that releases it.
#ifndef ZTK_PLATFORM_USB_H_
#define ZTK_PLATFORM_USB_H_

#include <cstdint>

namespace ztk::platform::usb {

// The platform's result of a USB call; a port that has other error numbers
// maps them to these.
using Code = std::uint32_t;
inline constexpr Code kSuccess = 0;
inline constexpr Code kError = 0xE00002BC;
inline constexpr Code kNoDevice = 0xE00002C0;
inline constexpr Code kExclusiveAccess = 0xE00002C5;
inline constexpr Code kBusy = 0xE00002D5;
inline constexpr Code kTimeout = 0xE00002D6;
inline constexpr Code kNotAttached = 0xE00002D9;
inline constexpr Code kNotPermitted = 0xE00002E2;
inline constexpr Code kNotResponding = 0xE00002ED;
inline constexpr Code kPipeStalled = 0xE000404F;
inline constexpr Code kTransactionTimeout = 0xE0004051;

// A result together with the number that the system itself gave for a failure:
// an errno value or an IOReturn; 0 if there is none.
struct Result {
  Code code = kSuccess;
  std::int32_t systemCode = 0;
};

// Registry objects; null means none.
struct PortObject;
struct IteratorObject;
struct ServiceObject;
using Port = PortObject *;
using Iterator = IteratorObject *;
using Service = ServiceObject *;

// Opaque, reference-counted by the port.
struct Matching;
struct Number;
struct PlugIn;
struct Device;

// A control request on the default pipe. Numbers are in host order; the port
// lays out the setup packet. The caller owns `data`; the port writes only the
// bytes that the data stage delivers.
struct ControlRequest {
  std::uint8_t requestType;
  std::uint8_t request;
  std::uint16_t value;
  std::uint16_t index;
  std::uint16_t length;
  void *data;
  std::uint32_t lengthDone;  // filled in by the port; after a failure the
                             // bytes before it, 0 if that is not known
  std::int32_t systemCode;   // filled in by the port, as in Result
};

// Gets the port for access to the registry. On failure *port is null.
Code GetMasterPort(Port *port);
void ReleaseMasterPort(Port port);

// Makes a description that matches every service of a class; null on failure.
Matching *CreateMatching(const char *className);
// Makes a signed 32-bit number object; the caller owns it.
Number *MakeNumber(std::int32_t value);
// Narrows the matching to services whose property `key` equals the number.
// The matching takes its own hold of the number.
void SetMatchingValue(Matching *matching, const char *key, Number *number);

// Finds the matching services and consumes `matching`, whatever the result. On
// success *iterator may be null: no service matches.
Code FindServices(Port port, Matching *matching, Iterator *iterator);
// The next service in registry order, owned by the caller; null at the end.
Service NextService(Iterator iterator);
void ReleaseService(Service service);
void ReleaseIterator(Iterator iterator);

// Makes the loader of a service's device interface, owned by the caller.
// On failure *plugIn is null, and it may be null on success as well.
Code CreatePlugIn(Service service, PlugIn **plugIn);
// The device interface with one reference, which the caller owns; or null.
Device *QueryDevice(PlugIn *plugIn);
void ReleasePlugIn(PlugIn *plugIn);

// Facts of the device descriptor. Outputs are written on success only.
Code GetDeviceClass(Device *device, std::uint8_t *deviceClass);
Code GetDeviceSubClass(Device *device, std::uint8_t *deviceSubClass);
Code GetDeviceVendor(Device *device, std::uint16_t *vendor);
Code GetDeviceProduct(Device *device, std::uint16_t *product);

// Makes a found device ready for requests and returns the interface to use from
// now on: the same one or another one. Takes the caller's reference; the
// returned interface has one. Null when the device cannot be reached; then
// there is no reference, and *result is the reason.
Device *MakeReady(Device *device, Result *result);

// Sends the request and waits for its end.
Code Request(Device *device, ControlRequest *request);

Code CloseDevice(Device *device);
// Releases one reference; returns the number of those that remain.
std::uint32_t ReleaseDevice(Device *device);

}  // namespace ztk::platform::usb

#endif  // ZTK_PLATFORM_USB_H_
