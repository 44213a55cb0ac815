// SPDX-License-Identifier: MIT
//
// The recording port: a world that a test sets up as a value, changes in one
// place, and reads back as one ordered log of what the core asked for.
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

// The answer of a device to a read: the result, and the bytes that it delivers
// (the buffer receives at most as many as were asked for).
struct Answer {
  Code result = 0;
  std::vector<std::uint8_t> bytes;
};

// One device on the bus. It answers as a mixer unless a test changes that.
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
  bool canBeReached = true;  // else MakeReady() yields nothing
  // Why it cannot be reached, and the error number of the system for a failed
  // request.
  platform::usb::Result openResult = {.code = platform::usb::kNotPermitted,
                                      .systemCode = 13};
  std::int32_t systemCodeOfRequests = 0;
  std::uint32_t referencesOfOthers = 0;     // what a release returns
  std::map<std::uint16_t, Answer> answers;  // to reads, by register
  Code writeResult = 0;
};

// A mixer whose selectors all stand at position 4.
Device Mixer();
// The same with another answer to one read.
Device MixerAnswering(std::uint16_t reg, Answer answer);
// A device of another maker.
Device OtherDevice();

// A value in a settings file; monostate is any value that is neither an integer
// nor a text.
using Value = std::variant<std::monostate, std::int32_t, std::string>;
using Entries = std::map<std::string, Value>;

struct Bundle {
  std::string resourcePath;
  // By table and key.
  std::map<std::string, std::map<std::string, std::string>> preferredTexts;
};

// The objects that the core holds, by kind; a test checks how many are left.
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

  // Files, by path: those that can be read as a dictionary.
  bool hasLibraryFolder = true;
  std::string library = "/Users/dj/Library";
  std::map<std::string, Entries> files;
  // By path: files that exist but cannot be read.
  std::map<std::string, platform::property_list::ReadResult> readFailures;
  bool canWrite = true;
  int writeError = EACCES;  // the reason where canWrite is false
  std::map<std::string, Bundle> bundles;

  // The message bus.
  platform::notification_center::PostResult postResult;
  // Runs while an observer is added.
  std::function<void()> onObserve;

  // The results. `steps` is the log as steps of a setter: count, open, request,
  // close, file, post. `calls` has every call.
  std::vector<std::string> steps;
  std::vector<std::string> calls;
  Held held;
  std::vector<Observation> observations;
  // Uses of an object after its last release, and releases of nothing.
  std::vector<std::string> misuse;
};

// The one world. Assigning to it starts afresh.
World &CurrentWorld();

// Delivers a notification to all observers of its name, as if another process
// had posted it.
void Deliver(const std::string &name,
             const std::vector<std::pair<std::string, std::int32_t>> &entries);

// Shared by the services of this port.
void LogCall(std::string call);
void LogStep(std::string step);

}  // namespace ztk::fake

#endif  // ZTK_TESTS_FAKE_WORLD_H_
