// SPDX-License-Identifier: MIT
//
// The recording port. A test assigns a World, which defines how this port
// behaves. Then the World contains an ordered log of the calls that the core
// made.
#ifndef ZTK_TESTS_FAKE_WORLD_H_
#define ZTK_TESTS_FAKE_WORLD_H_

#include <cerrno>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "build_config.h"
#include "platform/notification_center.h"
#include "platform/property_list.h"
#include "platform/usb.h"

namespace ztk::fake {

using Code = platform::usb::Code;

// The answer of a device to a read: the result and the bytes. The buffer
// receives at most as many bytes as the core requests.
struct Answer {
  Code result = 0;
  std::vector<std::uint8_t> bytes;
};

// One device on the bus. With the default values it has the ids of a mixer.
struct Device {
  std::uint16_t vendor = build::kUsbVendorId;
  std::uint16_t product = 27;
  Code plugInResult = 0;
  bool hasPlugIn = true;
  bool hasInterface = true;
  Code classResult = 0;
  Code subClassResult = 0;
  Code vendorResult = 0;
  Code productResult = 0;
  bool canBeOpened = true;  // if false, MakeReady() returns null and openResult
  platform::usb::Result openResult = {.code = platform::usb::kNotPermitted,
                                      .systemCode = 13};
  std::int32_t systemCodeOfRequests = 0;    // the errno of a failed request
  std::uint32_t releaseResult = 0;          // the result of ReleaseDevice()
  std::map<std::uint16_t, Answer> answers;  // to reads, by register
  Code writeResult = 0;
};

// Returns a mixer whose input selectors are all at position 4.
Device Mixer();
// Returns such a mixer with another answer to one read.
Device MixerAnswering(std::uint16_t reg, Answer answer);
// Returns a device of another maker.
Device OtherDevice();

// A value in a settings file. monostate stands for every value that is neither
// an integer nor a text.
using Value = std::variant<std::monostate, std::int32_t, std::string>;
using Entries = std::map<std::string, Value>;

struct Bundle {
  std::string resourcePath;
  // The texts by table and key.
  std::map<std::string, std::map<std::string, std::string>> preferredTexts;
};

// The numbers of objects that the core has not released, by kind.
struct Held {
  int ports = 0;
  int matchings = 0;
  int numbers = 0;
  int iterators = 0;
  int services = 0;
  int plugIns = 0;
  int interfaces = 0;  // references on device interfaces
  int changes = 0;
  int dictionaries = 0;
  int bundles = 0;
  int userInfos = 0;

  bool operator==(const Held &) const = default;
};

struct Observation {
  std::string name;
  void *observer;
  platform::notification_center::Method method;
};

struct World {
  // USB.
  Code masterPortResult = 0;
  bool hasMatching = true;
  Code findResult = 0;
  bool hasIterator = true;
  std::vector<Device> bus;

  // The user's Library folder.
  bool hasLibraryFolder = true;
  std::string libraryFolder = "/Users/dj/Library";
  // The files that can be read as a dictionary, by path.
  std::map<std::string, Entries> files;
  // The files that exist but cannot be read, by path.
  std::map<std::string, platform::property_list::ReadResult> readFailures;
  bool canWrite = true;
  int writeError = EACCES;  // the error if canWrite is false
  std::map<std::string, Bundle> bundles;

  // The message bus.
  platform::notification_center::PostResult postResult;
  // Runs while an observer is added.
  std::function<void()> onObserve;

  // The log. `calls` contains every call of the core. `steps` contains only the
  // steps of a setter: count, open, request, close, file, post.
  std::vector<std::string> steps;
  std::vector<std::string> calls;
  Held held;
  std::vector<Observation> observations;
  // Errors of the core: an object was used or released after its last release,
  // or null was released.
  std::vector<std::string> misuse;
};

// Returns the only world. A test starts by assigning a new World to it.
World &CurrentWorld();

// Delivers a notification to all observers of its name, as if another process
// had posted it.
void Deliver(const std::string &name,
             const std::vector<std::pair<std::string, std::int32_t>> &entries);

// Append to the log.
void LogCall(std::string call);
void LogStep(std::string step);

}  // namespace ztk::fake

#endif  // ZTK_TESTS_FAKE_WORLD_H_
