// SPDX-License-Identifier: MIT
#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <utility>

#include "build_config.h"
#include "usb/USB.h"
#include "ztk/system/places.h"

namespace ztk::model {

namespace {

// Owns a service of the registry and releases it.
class Service {
 public:
  explicit Service(io_service_t name) : name_(name) {}
  Service(Service &&other) noexcept
      : name_(std::exchange(other.name_, IO_OBJECT_NULL)) {}
  ~Service() {
    if (name_ != IO_OBJECT_NULL) IOObjectRelease(name_);
  }
  Service(const Service &) = delete;
  Service &operator=(const Service &) = delete;
  Service &operator=(Service &&) = delete;
  io_service_t name() const { return name_; }

 private:
  io_service_t name_;
};

void Narrow(CFMutableDictionaryRef matching, CFStringRef key,
            std::int32_t value) {
  const CFNumberRef number =
      CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value);
  CFDictionarySetValue(matching, key, number);
  CFRelease(number);
}

// In the order of the registry, which the library uses too.
std::vector<Service> Mixers() {
  std::vector<Service> mixers;
  CFMutableDictionaryRef matching = IOServiceMatching("IOUSBDevice");
  if (matching == nullptr) return mixers;
  Narrow(matching, CFSTR("idVendor"), build::kUsbVendorId);
  Narrow(matching, CFSTR("idProduct"), usb::kMixerProductId);
  io_iterator_t iterator = IO_OBJECT_NULL;
  if (IOServiceGetMatchingServices(MACH_PORT_NULL, matching, &iterator) !=
      KERN_SUCCESS) {
    return mixers;
  }
  while (const io_service_t mixer = IOIteratorNext(iterator)) {
    mixers.emplace_back(mixer);
  }
  IOObjectRelease(iterator);
  return mixers;
}

// The location on the bus, as the system writes it, and the number of the
// connection: each time a device is plugged in, it gets a new number.
std::string PlaceOf(const Service &mixer) {
  std::uint32_t location = 0;
  const CFTypeRef number = IORegistryEntryCreateCFProperty(
      mixer.name(), CFSTR("locationID"), kCFAllocatorDefault, 0);
  if (number != nullptr) {
    if (CFGetTypeID(number) == CFNumberGetTypeID()) {
      CFNumberGetValue(static_cast<CFNumberRef>(number), kCFNumberSInt32Type,
                       &location);
    }
    CFRelease(number);
  }
  std::uint64_t entry = 0;
  IORegistryEntryGetRegistryEntryID(mixer.name(), &entry);
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "0x%08x/%llu", location,
                static_cast<unsigned long long>(entry));
  return text.data();
}

// Does what the library does before it sends a request.
IOReturn Reach(const Service &mixer) {
  IOCFPlugInInterface **plugIn = nullptr;
  SInt32 score = 0;
  const IOReturn result = IOCreatePlugInInterfaceForService(
      mixer.name(), kIOUSBDeviceUserClientTypeID, kIOCFPlugInInterfaceID,
      &plugIn, &score);
  if (result == kIOReturnSuccess && plugIn != nullptr) {
    (*plugIn)->Release(plugIn);
  }
  return result;
}

Obstacle ObstacleOf(IOReturn result) {
  switch (result) {
    case kIOReturnSuccess:
      return Obstacle::None;
    case kIOReturnNoDevice:
    case kIOReturnNotAttached:
      return Obstacle::Vanished;
    case kIOReturnNotPrivileged:
      return Obstacle::NoRight;
    case kIOReturnNotPermitted:
      return Obstacle::Forbidden;
    default:
      return Obstacle::Other;
  }
}

std::string Written(IOReturn result) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "IOKit returned 0x%08x",
                static_cast<unsigned>(result));
  return text.data();
}

}  // namespace

std::vector<std::string> MixerPlaces() {
  std::vector<std::string> places;
  for (const Service &mixer : Mixers()) places.push_back(PlaceOf(mixer));
  return places;
}

std::optional<SystemTime> AttachedSince(const std::string & /*place*/) {
  return std::nullopt;
}

// On this system every user may send requests to a mixer. TryToOpen() finds out
// whether that is possible without opening it.
bool MayBeOpened(const std::string &place) {
  return TryToOpen(place).obstacle == Obstacle::None;
}

Access TryToOpen(const std::string &place) {
  for (const Service &mixer : Mixers()) {
    if (place != PlaceOf(mixer)) continue;
    const IOReturn result = Reach(mixer);
    return {
        .obstacle = ObstacleOf(result), .node = {}, .reason = Written(result)};
  }
  return {.obstacle = Obstacle::Vanished, .node = {}, .reason = "it is gone"};
}

std::string Explained(const Access &access) {
  switch (access.obstacle) {
    case Obstacle::None:
      return "could not be opened, but can be now; try again";
    case Obstacle::Vanished:
      return "is gone: it was unplugged or switched off";
    case Obstacle::NoRight:
      return "is attached but cannot be opened: only an administrator may open "
             "it (" +
             access.reason + ")";
    case Obstacle::Forbidden:
      return "is attached but cannot be opened: the system does not let this "
             "program use it, as in an App Sandbox without the USB entitlement "
             "(" +
             access.reason + ")";
    case Obstacle::NoNode:
    case Obstacle::Other:
      break;
  }
  return "is attached but cannot be opened: " + access.reason +
         "; unplug the mixer and plug it in again";
}

// Error numbers are positive, an IOReturn is negative.
std::string SystemErrorText(std::int32_t code) {
  return code > 0 ? std::strerror(code) : Written(code);
}

}  // namespace ztk::model
