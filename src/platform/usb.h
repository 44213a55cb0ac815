// SPDX-License-Identifier: MIT
//
// USB access. Each function is one operation of the system. src/usb/USB.cpp
// decides which devices are counted, chosen or released; a port only executes
// the operations.
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
  // The port writes the number of transferred bytes. After a failure this is
  // the number before the failure, or 0 if it is not known.
  std::uint32_t lengthDone;
  // The port writes the system's number of a failure, as in Result.
  std::int32_t systemCode;
};

// Gets the port for access to the registry. On failure *port is null.
Code GetMasterPort(Port *port);
void ReleaseMasterPort(Port port);

// Makes a description that matches every service of a class; null on failure.
Matching *CreateMatching(const char *className);
// Makes a signed 32-bit number object; the caller owns it.
Number *MakeNumber(std::int32_t value);
// Restricts the matching to services whose property `key` equals the number.
// The matching takes its own reference to the number.
void SetMatchingValue(Matching *matching, const char *key, Number *number);

// Finds the matching services. Always releases `matching`. On success *iterator
// is null if no service matches.
Code FindServices(Port port, Matching *matching, Iterator *iterator);
// Returns the next service in registry order, or null at the end. The caller
// owns the service.
Service NextService(Iterator iterator);
void ReleaseService(Service service);
void ReleaseIterator(Iterator iterator);

// Makes the plug-in that loads the device interface of a service. The caller
// owns the plug-in. *plugIn is null on failure, and may be null on success too.
Code CreatePlugIn(Service service, PlugIn **plugIn);
// Returns the device interface with one reference, which the caller owns; or
// null.
Device *QueryDevice(PlugIn *plugIn);
void ReleasePlugIn(PlugIn *plugIn);

// Read a field of the device descriptor. The output is written only on success.
Code GetDeviceClass(Device *device, std::uint8_t *deviceClass);
Code GetDeviceSubClass(Device *device, std::uint8_t *deviceSubClass);
Code GetDeviceVendor(Device *device, std::uint16_t *vendor);
Code GetDeviceProduct(Device *device, std::uint16_t *product);

// Prepares a device for requests. Takes the caller's reference to `device` and
// returns the interface for the requests, with one reference: the same
// interface or another one. Returns null if the device cannot be accessed. Then
// nothing remains to be released, and *result is the reason.
Device *MakeReady(Device *device, Result *result);

// Sends the request and waits until it has ended.
Code Request(Device *device, ControlRequest *request);

Code CloseDevice(Device *device);
// Releases one reference. Returns the number of remaining references.
std::uint32_t ReleaseDevice(Device *device);

}  // namespace ztk::platform::usb

#endif  // ZTK_PLATFORM_USB_H_
