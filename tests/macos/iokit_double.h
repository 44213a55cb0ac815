// SPDX-License-Identifier: MIT
//
// A test double of IOKit: the registry, the USB device interface and the
// objects of CoreFoundation that they need, for a bus that a test describes.
// Every call is recorded, and the references of each kind are counted. Errors
// that a real system does not report, or that would crash the process, are
// recorded as misuse.
#ifndef ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_
#define ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_

#include <IOKit/IOKitLib.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ztk::iokit {

// The answer of a device to a read: the result and the bytes. The buffer
// receives at most as many bytes as the library requests.
struct Reply {
  IOReturn result = kIOReturnSuccess;
  std::vector<std::uint8_t> bytes;
};

// One device on the bus. With the default values it is a mixer.
struct Device {
  std::uint16_t vendor = 0x6666;
  std::uint16_t product = 27;
  IOReturn plugInResult = kIOReturnSuccess;
  bool hasInterface = true;  // the first version of the device interface
  IOReturn classResult = kIOReturnSuccess;
  IOReturn subClassResult = kIOReturnSuccess;
  IOReturn vendorResult = kIOReturnSuccess;
  IOReturn productResult = kIOReturnSuccess;
  std::map<std::uint16_t, Reply> replies;  // to reads, by register
  IOReturn writeResult = kIOReturnSuccess;
  std::uint32_t releaseResult = 0;  // the result of releasing an interface
};

Device Mixer();
Device Hub();

// The numbers of references that are not released, by the kind of the object.
struct Held {
  int ports = 0;
  int dictionaries = 0;
  int numbers = 0;
  int strings = 0;
  int iterators = 0;
  int services = 0;
  int plugIns = 0;
  int interfaces = 0;

  bool operator==(const Held &) const = default;
};

struct World {
  IOReturn masterPortResult = kIOReturnSuccess;
  bool hasMatching = true;
  IOReturn findResult = kIOReturnSuccess;
  // If nothing matches, the result may be an empty iterator or none.
  bool hasEmptyIterator = true;
  std::vector<Device> bus;

  // The results.
  std::vector<std::string> calls;
  std::vector<std::string>
      requests;  // as virtual_mixer::RequestLine() writes them
  Held held;
  std::vector<std::string> misuse;
};

World &CurrentWorld();
// Starts a new world. The objects of the last world are not valid in it.
void StartAfresh();

// For all sources of the test double.
void LogCall(std::string call);
void LogMisuse(std::string what);

}  // namespace ztk::iokit

#endif  // ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_
