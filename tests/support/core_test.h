// SPDX-License-Identifier: MIT
//
// The fixture of every test that runs the core on the recording port. Each test
// has a new world, and the global variables of the core have their initial
// values.
#ifndef ZTK_TESTS_SUPPORT_CORE_TEST_H_
#define ZTK_TESTS_SUPPORT_CORE_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "fake/world.h"
#include "notify/callback_registry.h"

namespace ztk::fake {

// Prints the counts of held objects when a comparison fails.
inline void PrintTo(const Held &held, std::ostream *out) {
  *out << "{ports " << held.ports << ", matchings " << held.matchings
       << ", numbers " << held.numbers << ", iterators " << held.iterators
       << ", services " << held.services << ", plug-ins " << held.plugIns
       << ", interfaces " << held.interfaces << ", dictionaries "
       << held.dictionaries << ", bundles " << held.bundles << ", user infos "
       << held.userInfos << "}";
}

}  // namespace ztk::fake

namespace ztk::test {

using fake::CurrentWorld;
using fake::Mixer;
using fake::MixerAnswering;
using fake::OtherDevice;
using fake::World;
using testing::ElementsAre;
using testing::IsEmpty;

// The settings files of the models on the recording port.
inline constexpr char kD6File[] =
    "/Users/dj/Library/Preferences/com.tarvix.VRM-D6autosetup.plist";
inline constexpr char kB5File[] =
    "/Users/dj/Library/Preferences/com.tarvix.VRM-B5autosetup.plist";
inline constexpr char kK2File[] =
    "/Users/dj/Library/Preferences/com.tarvix.VRM-K2autosetup.plist";

// Callbacks that do nothing.
inline void OnChannel(std::int32_t, std::int32_t, void *) {}
inline void OnIndex(std::int32_t, void *) {}

class CoreTest : public testing::Test {
 protected:
  CoreTest() {
    CurrentWorld() = World{};
    for (int i = 0; i < notify::kSlots; ++i) {
      InputAudioChangedCallback[i] = nullptr;
      OutputAudioChangedCallback[i] = nullptr;
      BoostLevelChangedCallback[i] = nullptr;
      MidiChannelChangedCallback[i] = nullptr;
      MidiKeyModeChangedCallback[i] = nullptr;
      InputAudioChangedContext[i] = nullptr;
      OutputAudioChangedContext[i] = nullptr;
      BoostLevelChangedContext[i] = nullptr;
      MidiChannelChangedContext[i] = nullptr;
      MidiKeyModeChangedContext[i] = nullptr;
    }
    inputAudioInfo = outputAudioInfo = boostLevelInfo = nullptr;
    midiChannelInfo = midiKeyModeInfo = nullptr;
    // The core never frees its observer. A test process makes many observers,
    // and keeps pointers to them so that the leak sanitizer does not report
    // them.
    static auto &observers = *new std::vector<void *>;
    observers.push_back(_ZTKFunc);
    _ZTKFunc = nullptr;
  }

  ~CoreTest() override { EXPECT_THAT(CurrentWorld().misuse, IsEmpty()); }

  // Returns the steps of the core since the last call of this function.
  static std::vector<std::string> TakeSteps() {
    return std::exchange(CurrentWorld().steps, {});
  }
  static std::vector<std::string> TakeCalls() {
    return std::exchange(CurrentWorld().calls, {});
  }
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_CORE_TEST_H_
