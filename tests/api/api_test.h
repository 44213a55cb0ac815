// SPDX-License-Identifier: MIT
//
// What the tests of the families share: buses worth walking, and the steps of
// a call on each of them.
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

// Where the version of macOS is read.
inline constexpr char kSystemFile[] =
    "/System/Library/CoreServices/SystemVersion.plist";

// What outputs hold before a call that must not write them.
inline constexpr std::uint32_t kUntouched = 0xA5A5A5A5;
inline constexpr std::int32_t kLowest = -2147483647 - 1;
inline const ZTKTextRef kUntouchedText = ZTK_TEXT("untouched");

// A mixer that is counted and does not open.
inline Device UnreachableMixer() {
  Device mixer = Mixer();
  mixer.canBeOpened = false;
  return mixer;
}

inline Device WithoutPlugIn(Device device) {
  device.plugInResult = platform::usb::kError;
  return device;
}

// A mixer that receives every write and refuses it, and answers no read.
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

// One connection with one request.
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
  // For tests of many rows: as the fixture starts, and what the row before did
  // wrong is reported first.
  static void StartAfresh(Bus bus = {}) {
    EXPECT_THAT(CurrentWorld().misuse, IsEmpty());
    CurrentWorld() = World{};
    CurrentWorld().bus = std::move(bus);
    inputAudioInfo = outputAudioInfo = nullptr;
    boostLevelInfo = midiChannelInfo = nullptr;
  }

  // What one call does: the request that each mixer gets, what follows, and
  // the request of the second walk where there is one.
  struct Rule {
    std::string request;
    Steps then = {};
    std::string secondRequest = {};
  };

  // Makes the call on every kind of bus and compares the whole log.
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
    // The search meets the other device last and answers its failure, so
    // nothing is sent to the mixer and it is not closed.
    expect("another device without plug-in behind the mixer",
           {Mixer(), WithoutPlugIn(OtherDevice())},
           [](const std::string &) { return Steps{"open 1"}; });
    // Two are counted; the search sees the second one only, as its first.
    expect("the first of two has no plug-in", {WithoutPlugIn(Mixer()), Mixer()},
           visit2);
  }

  // One count, and the record of the post where the call makes one.
  static Held OneCount(int userInfos = 0) {
    return {.ports = 1, .numbers = 2, .userInfos = userInfos};
  }
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_API_API_TEST_H_
