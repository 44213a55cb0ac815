// SPDX-License-Identifier: MIT
//
// For the tests of all families: different buses, and the steps of a call on
// each of them.
#ifndef ZTK_TESTS_API_API_TEST_H_
#define ZTK_TESTS_API_API_TEST_H_

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/core_test.h"
#include "support/plain_text.h"

namespace ztk::test {

using fake::Device;
using fake::Held;
using testing::ElementsAreArray;

using Bus = std::vector<Device>;
using Steps = std::vector<std::string>;

// The file with the version of macOS.
inline constexpr char kSystemFile[] =
    "/System/Library/CoreServices/SystemVersion.plist";

// The value of an output before a call that must not write it.
inline constexpr std::uint32_t kUntouched = 0xA5A5A5A5;
inline constexpr std::int32_t kLowest = -2147483647 - 1;
inline const ZTKTextRef kUntouchedText = ZTK_TEXT("untouched");

// Returns a mixer that is counted but cannot be opened.
inline Device UnreachableMixer() {
  Device mixer = Mixer();
  mixer.canBeOpened = false;
  return mixer;
}

inline Device WithoutPlugIn(Device device) {
  device.plugInResult = platform::usb::kError;
  return device;
}

// Returns a mixer that refuses every request.
inline Device RefusingMixer() {
  Device mixer;
  mixer.writeResult = platform::usb::kPipeStalled;
  return mixer;
}

inline std::string Written(const std::string &file,
                           const std::string &entries) {
  return "write " + file + " {" + entries + "}";
}

inline std::string Log(int mixer, const std::string &request) {
  return "mixer " + std::to_string(mixer) + ": " + request;
}

// Returns the steps of one connection with one request.
inline Steps Visit(int mixer, const std::string &request) {
  const std::string number = std::to_string(mixer);
  return {"open " + number, Log(mixer, request), "close " + number};
}

inline Steps Join(const std::vector<Steps> &parts) {
  Steps all;
  for (const Steps &part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

class ApiTest : public CoreTest {
 protected:
  // For tests with many rows: first checks the world of the last row, then
  // starts with a new world.
  static void StartAfresh(Bus bus = {}) {
    EXPECT_THAT(CurrentWorld().misuse, IsEmpty());
    CurrentWorld() = World{};
    CurrentWorld().bus = std::move(bus);
    inputAudioInfo = outputAudioInfo = nullptr;
    boostLevelInfo = midiChannelInfo = nullptr;
  }

  // The steps of a call: the request to each mixer, the steps after it, and the
  // request of the second loop over the mixers, if there is one.
  struct Rule {
    std::string request;
    Steps then = {};
    std::string secondRequest = {};
  };

  // Makes the call with every kind of bus and compares the whole log.
  static void ExpectEveryWalk(const Rule &rule,
                              const std::function<ZTKResult()> &call) {
    const auto expect = [&](const char *bus, Bus devices, const auto &walk) {
      SCOPED_TRACE(bus);
      StartAfresh(std::move(devices));
      EXPECT_EQ(call(), 100u);
      const Steps second =
          rule.secondRequest.empty() ? Steps{} : walk(rule.secondRequest);
      EXPECT_THAT(TakeSteps(),
                  ElementsAreArray(Join(
                      {{"count"}, walk(rule.request), rule.then, second})));
    };
    const auto nothing = [](const std::string &) { return Steps{}; };
    const auto visit1 = [](const std::string &r) { return Visit(1, r); };
    const auto visit2 = [](const std::string &r) { return Visit(2, r); };

    expect("no device", {}, nothing);
    expect("other devices only", {OtherDevice(), OtherDevice()}, nothing);
    expect("one mixer", {Mixer()}, visit1);
    expect("one mixer among other devices",
           {OtherDevice(), Mixer(), OtherDevice()}, visit1);
    expect("two mixers", {Mixer(), Mixer()}, [](const std::string &r) {
      return Join({Visit(1, r), Visit(2, r)});
    });
    expect("one mixer that does not open", {UnreachableMixer()},
           [](const std::string &) { return Steps{"cannot open 1"}; });
    expect("the first of two does not open", {UnreachableMixer(), Mixer()},
           [](const std::string &r) {
             return Join({{"cannot open 1"}, Visit(2, r)});
           });
    expect("the second of two does not open", {Mixer(), UnreachableMixer()},
           [](const std::string &r) {
             return Join({Visit(1, r), {"cannot open 2"}});
           });
    // The search visits the other device last and returns its failure. So
    // nothing is sent to the mixer, and the mixer is not closed.
    expect("another device without plug-in after the mixer",
           {Mixer(), WithoutPlugIn(OtherDevice())},
           [](const std::string &) { return Steps{"open 1"}; });
    // Two mixers are counted, but the search finds only the second one, at
    // position 0.
    expect("the first of two has no plug-in", {WithoutPlugIn(Mixer()), Mixer()},
           visit2);
  }

  // The objects that remain after one count, and after a post.
  static Held OneCount(int userInfos = 0) {
    return {.ports = 1, .numbers = 2, .userInfos = userInfos};
  }
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_API_API_TEST_H_
