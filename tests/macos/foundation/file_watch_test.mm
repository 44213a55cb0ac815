// SPDX-License-Identifier: MIT
//
// Another program overwrites the settings file and stops in the middle for some
// time. Pause() is replaced: it does not wait, but continues the copy.
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "foundation_test.h"
#include "platform/common/pause.h"
#include "platform/property_list.h"
#include "support/temp_home.h"

namespace {

// If this function is set, Pause() calls it instead of waiting.
std::function<void()> duringPause;

}  // namespace

void ztk::platform::Pause(std::chrono::microseconds time) {
  if (duringPause) {
    duringPause();
  } else {
    std::this_thread::sleep_for(time);
  }
}

namespace ztk::test {
namespace {

namespace plist = platform::property_list;
using plist::ReadResult;
using plist::ReadState;

class MacFileWatch : public FoundationTest {
 protected:
  ~MacFileWatch() override { duringPause = nullptr; }

  static std::string File() { return Preferences() + "/test.plist"; }

  // Reads the file and returns the result. `hook` is called in each pause with
  // the number of the pause.
  ReadResult ReadWhile(const std::function<void(int)> &hook) {
    duringPause = [this, hook] { hook(++pauses_); };
    plist::Dictionary *list = nullptr;
    const ReadResult result = plist::Read(TextOf(File()), &list);
    plist::Release(list);
    return result;
  }

  int pauses_ = 0;
};

TEST_F(MacFileWatch, WaitsForACopyThatStops) {
  const std::string whole = PropertyList("<key>a</key><integer>7</integer>");
  WriteAll(File(), whole.substr(0, 60));
  const ReadResult result = ReadWhile([&whole](int pause) {
    if (pause == 20) WriteAll(File(), whole);
  });
  EXPECT_EQ(result, (ReadResult{.state = ReadState::Read}));
  EXPECT_EQ(pauses_, 20);
}

TEST_F(MacFileWatch, DoesNotReplaceAFileThatChangesAllTheTime) {
  WriteAll(File(), "<");
  const ReadResult result =
      ReadWhile([](int /*pause*/) { WriteAll(File(), ReadAll(File()) + "<"); });
  EXPECT_EQ(result,
            (ReadResult{.state = ReadState::Unavailable, .error = EBUSY}));
  EXPECT_EQ(pauses_, 50);
}

}  // namespace
}  // namespace ztk::test
