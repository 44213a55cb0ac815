// SPDX-License-Identifier: MIT
//
// A small IOKit: the registry, the USB device interface and the few objects of
// CoreFoundation that go with them, for a bus that a test describes. Every
// call is recorded, every reference counted by kind, and what a real system
// would answer with a crash or with nothing at all is recorded as misuse.
#ifndef ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_
#define ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_

#include <IOKit/IOKitLib.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ztk::iokit {

// What a device answers to a read: the result, and the bytes that it delivers
// before that (no more than are asked for reach the buffer).
struct Reply {
  IOReturn result = kIOReturnSuccess;
  std::vector<std::uint8_t> bytes;
};

// One device on the bus. It behaves as a mixer does unless a test says so.
struct Device {
  std::uint16_t vendor = 0x6666;
  std::uint16_t product = 27;
  IOReturn plugInResult = kIOReturnSuccess;
  bool hasInterface = true;  // of the first version
  IOReturn classResult = kIOReturnSuccess;
  IOReturn subClassResult = kIOReturnSuccess;
  IOReturn vendorResult = kIOReturnSuccess;
  IOReturn productResult = kIOReturnSuccess;
  std::map<std::uint16_t, Reply> replies;  // to reads, by register
  IOReturn writeResult = kIOReturnSuccess;
  std::uint32_t releaseResult = 0;  // on each of its interfaces
};

Device Mixer();
Device Hub();

// References that are out, by the kind of what they are on.
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
  // When nothing matches, there may be an empty iterator or none.
  bool hasEmptyIterator = true;
  std::vector<Device> bus;

  // What came of it.
  std::vector<std::string> calls;
  std::vector<std::string>
      requests;  // as virtual_mixer::RequestLine() has them
  Held held;
  std::vector<std::string> misuse;
};

World &CurrentWorld();
// A new world, to which no object of the last one is known.
void StartAfresh();

// Shared by the parts of the double.
void LogCall(std::string call);
void LogMisuse(std::string what);

}  // namespace ztk::iokit

#endif  // ZTK_TESTS_MACOS_IOKIT_DOUBLE_H_
