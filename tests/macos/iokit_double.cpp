// SPDX-License-Identifier: MIT
//
// The registry of the test double: the master port, matching, iterators and
// services.
#include "iokit_double.h"

#include <IOKit/IOCFPlugIn.h>
#include <IOKit/usb/IOUSBLib.h>

#include <cstddef>
#include <map>
#include <utility>

#include "iokit_double_objects.h"

namespace ztk::iokit {
namespace {

// An object that the kernel identifies by a number.
struct Named {
  References references;
  std::vector<std::size_t> found;  // in an iterator: the remaining devices
  std::size_t position = 0;        // in a service: the device
};

constexpr mach_port_t kTask = 0x103;
constexpr mach_port_t kMasterPort = 0x707;
constexpr mach_port_t kFirstName = 0x1003;

std::map<mach_port_t, Named> &Names() {
  static std::map<mach_port_t, Named> names;
  return names;
}

mach_port_t Name(Named named) {
  static mach_port_t next = kFirstName;
  const mach_port_t name = next;
  next += 4;
  Names().emplace(name, std::move(named));
  return name;
}

// Returns the object of a name. If the object is not of this kind, records
// misuse and returns null.
Named *At(mach_port_t name, const char *call, const Kind &kind) {
  const auto found = Names().find(name);
  if (found == Names().end() || &found->second.references.kind() != &kind) {
    LogMisuse(std::string(call) + " on what is no " + kind.name);
    return nullptr;
  }
  return found->second.references.Use(call) ? &found->second : nullptr;
}

bool Matches(const Device &device, const Matching &wanted) {
  return wanted.className == "IOUSBDevice" &&
         wanted.vendor.value_or(device.vendor) == device.vendor &&
         wanted.product.value_or(device.product) == device.product;
}

}  // namespace

void References::Add() {
  ++count_;
  ++(CurrentWorld().held.*kind_->held);
}

bool References::Remove() {
  if (count_ <= 0) {
    LogMisuse(std::string("released too often: ") + kind_->name);
    return false;
  }
  --count_;
  --(CurrentWorld().held.*kind_->held);
  return count_ == 0;
}

bool References::Use(const char *call) const {
  if (count_ > 0) return true;
  LogMisuse(std::string(call) + " after the last release of a " + kind_->name);
  return false;
}

Device Mixer() {
  Device mixer;
  mixer.replies[0x8001] = {.bytes = {0x36, 0x04}};
  mixer.replies[0x8002] = {.bytes = {0, 4, 4, 4, 4}};
  mixer.replies[0x8004] = {.bytes = {0, 0}};
  mixer.replies[0x8006] = {.bytes = {0, 0}};
  mixer.replies[0x8007] = {.bytes = {0, 0, 0, 1}};
  return mixer;
}

Device Hub() { return {.vendor = 0x1D6B, .product = 2, .replies = {}}; }

World &CurrentWorld() {
  static World world;
  return world;
}

void StartAfresh() {
  CurrentWorld() = World{};
  Names().clear();
  ForgetObjects();
}

void LogCall(std::string call) {
  CurrentWorld().calls.push_back(std::move(call));
}

void LogMisuse(std::string what) {
  CurrentWorld().misuse.push_back(std::move(what));
}

}  // namespace ztk::iokit

using namespace ztk::iokit;

// On macOS this name is a macro for a variable.
#ifndef mach_task_self
task_t mach_task_self() { return kTask; }
#endif

// Each call returns the same name and adds one reference.
kern_return_t IOMasterPort(mach_port_t /*bootstrapPort*/,
                           mach_port_t *masterPort) {
  LogCall("IOMasterPort");
  // After a failure the output may have any value.
  *masterPort = kMasterPort;
  if (CurrentWorld().masterPortResult != kIOReturnSuccess) {
    return CurrentWorld().masterPortResult;
  }
  const auto port = Names().find(kMasterPort);
  if (port == Names().end()) {
    Names().emplace(kMasterPort,
                    Named{.references = References(kPort), .found = {}});
  } else {
    port->second.references.Add();
  }
  return KERN_SUCCESS;
}

kern_return_t mach_port_deallocate(task_t task, mach_port_t name) {
  LogCall("mach_port_deallocate");
  if (task != mach_task_self())
    LogMisuse("mach_port_deallocate in another task");
  Named *port = At(name, "mach_port_deallocate", kPort);
  if (port == nullptr) return KERN_INVALID_NAME;
  port->references.Remove();
  return KERN_SUCCESS;
}

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  LogCall(std::string("IOServiceMatching ") + name);
  return CurrentWorld().hasMatching ? MakeMatching(name) : nullptr;
}

kern_return_t IOServiceGetMatchingServices(mach_port_t masterPort,
                                           CFDictionaryRef matching,
                                           io_iterator_t *existing) {
  LogCall("IOServiceGetMatchingServices");
  const auto wanted = ConsumeMatching(matching);
  // The null port stands for the default one, as it does in the system.
  if (masterPort != MACH_PORT_NULL) {
    At(masterPort, "IOServiceGetMatchingServices", kPort);
  }
  if (CurrentWorld().findResult != kIOReturnSuccess) {
    // After a failure the output may have any value.
    *existing = kMasterPort;
    return CurrentWorld().findResult;
  }
  if (!wanted) return kIOReturnBadArgument;

  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < CurrentWorld().bus.size(); ++i) {
    if (Matches(CurrentWorld().bus[i], *wanted)) found.push_back(i);
  }
  *existing = IO_OBJECT_NULL;
  if (!found.empty() || CurrentWorld().hasEmptyIterator) {
    *existing =
        Name({.references = References(kIterator), .found = std::move(found)});
  }
  return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t iterator) {
  LogCall("IOIteratorNext");
  Named *walk = At(iterator, "IOIteratorNext", kIterator);
  if (walk == nullptr || walk->found.empty()) return IO_OBJECT_NULL;
  const std::size_t position = walk->found.front();
  walk->found.erase(walk->found.begin());
  return Name(
      {.references = References(kService), .found = {}, .position = position});
}

kern_return_t IOObjectRelease(io_object_t object) {
  const auto found = Names().find(object);
  const bool isPort =
      found != Names().end() && &found->second.references.kind() == &kPort;
  if (found == Names().end() || isPort) {
    LogCall("IOObjectRelease");
    LogMisuse("IOObjectRelease on what is no object of the registry");
    return kIOReturnBadArgument;
  }
  References &references = found->second.references;
  LogCall(std::string("IOObjectRelease ") + references.kind().name);
  references.Remove();
  return KERN_SUCCESS;
}

kern_return_t IOCreatePlugInInterfaceForService(io_service_t service,
                                                CFUUIDRef pluginType,
                                                CFUUIDRef interfaceType,
                                                IOCFPlugInInterface ***plugIn,
                                                SInt32 *score) {
  constexpr char kCall[] = "IOCreatePlugInInterfaceForService";
  LogCall(kCall);
  *plugIn = nullptr;
  const Named *known = At(service, kCall, kService);
  if (known == nullptr) return kIOReturnBadArgument;
  if (pluginType != kIOUSBDeviceUserClientTypeID ||
      interfaceType != kIOCFPlugInInterfaceID) {
    LogMisuse(std::string(kCall) + " for what is no USB device");
    return kIOReturnNoResources;
  }
  const Device &device = CurrentWorld().bus.at(known->position);
  if (device.plugInResult != kIOReturnSuccess) return device.plugInResult;
  *score = 0;
  *plugIn = MakePlugIn(known->position);
  return KERN_SUCCESS;
}
