// SPDX-License-Identifier: MIT
//
// Tests the announcements of the setters, and when their records are released.
#include "notify/posting.h"

#include <functional>

#include "support/core_test.h"

namespace ztk::test {
namespace {

using fake::Held;
using notify::UserInfo;

struct Poster {
  const char *name;
  UserInfo **lastInfo;
  std::function<ZTKResult()> set;
  const char *post;    // as a step
  const char *record;  // as it is made and released
  std::function<ZTKResult()> registerAgain;
};

const Poster kPosters[] = {
    {.name = "input audio",
     .lastInfo = &inputAudioInfo,
     .set = [] { return ZTK_SetUSBInputAudio(10, 3, 6); },
     .post = "post VRM-D6 InputAudio Change "
             "{ProductID=10, Channel=3, Index=6} immediately",
     .record = "{ProductID=10, Channel=3, Index=6}",
     .registerAgain =
         [] {
           return ZTK_RegisterInputAudioChangedCallback(10, OnChannel, nullptr);
         }},
    {.name = "output audio",
     .lastInfo = &outputAudioInfo,
     .set = [] { return ZTK_SetUSBOutputAudio(8, 4, 2); },
     .post = "post VRM-B5 OutputAudio Change "
             "{ProductID=8, Channel=4, Index=2} immediately",
     .record = "{ProductID=8, Channel=4, Index=2}",
     .registerAgain =
         [] {
           return ZTK_RegisterOutputAudioChangedCallback(10, OnChannel,
                                                         nullptr);
         }},
    {.name = "boost level",
     .lastInfo = &boostLevelInfo,
     .set = [] { return ZTK_SetBoostLevelIndex(10, 2); },
     .post = "post VRM-D6 BoostLevel Change {ProductID=10, Index=2} with "
             "default delivery",
     .record = "{ProductID=10, Index=2}",
     .registerAgain =
         [] {
           return ZTK_RegisterBoostLevelChangedCallback(10, OnIndex, nullptr);
         }},
    {.name = "MIDI channel",
     .lastInfo = &midiChannelInfo,
     .set = [] { return ZTK_SetMidiChannelIndex(1, 15); },
     .post = "post VRM-K2 MidiChannel Change {ProductID=1, Index=15} with "
             "default delivery",
     .record = "{ProductID=1, Index=15}",
     .registerAgain =
         [] {
           return ZTK_RegisterMidiChannelChangedCallback(1, OnIndex, nullptr);
         }},
};

class Post : public CoreTest {
 protected:
  // Returns the calls for records and posts.
  static std::vector<std::string> TakeRecordCalls() {
    std::vector<std::string> calls;
    for (const std::string &call : TakeCalls()) {
      if (call.find("info") != std::string::npos || call.starts_with("post")) {
        calls.push_back(call);
      }
    }
    return calls;
  }
};

TEST_F(Post, HasTheNameRecordAndDeliveryOfItsFamily) {
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    EXPECT_EQ(poster.set(), 100u);
    EXPECT_EQ(TakeSteps().back(), poster.post);
  }
}

TEST_F(Post, ReleasesTheLastRecordBeforeItMakesTheNext) {
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    const std::string name(poster.post, std::string(poster.post).find(" {"));
    poster.set();
    EXPECT_THAT(TakeRecordCalls(),
                ElementsAre("release no info",
                            std::string("make info ") + poster.record, name));
    poster.set();
    EXPECT_THAT(TakeRecordCalls(),
                ElementsAre(std::string("release info ") + poster.record,
                            std::string("make info ") + poster.record, name));
  }
}

TEST_F(Post, KeepsOneRecordOfEachFamily) {
  for (int round = 0; round < 3; ++round) {
    for (const Poster &poster : kPosters) poster.set();
  }
  EXPECT_EQ(CurrentWorld().held.userInfos, 4);
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    EXPECT_NE(*poster.lastInfo, nullptr);
  }
  EXPECT_EQ(midiKeyModeInfo, nullptr);
}

TEST_F(Post, ReplacesOnlyTheRecordOfItsFamily) {
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    for (const Poster &other : kPosters) *other.lastInfo = nullptr;
    poster.set();
    for (const Poster &other : kPosters) {
      EXPECT_EQ(*other.lastInfo != nullptr, &other == &poster);
    }
  }
}

TEST_F(Post, HappensWithoutAMixerAndAfterEveryFailure) {
  const struct {
    const char *name;
    void (*change)(World *world);
  } kRows[] = {
      {"no mixer", [](World *world) { world->bus.clear(); }},
      {"request refused",
       [](World *world) { world->bus[0].writeResult = 0xE000404F; }},
      {"mixer out of reach",
       [](World *world) { world->bus[0].canBeOpened = false; }},
      {"file not written", [](World *world) { world->canWrite = false; }},
      {"no library directory",
       [](World *world) { world->hasLibraryFolder = false; }},
  };
  for (const auto &row : kRows) {
    for (const Poster &poster : kPosters) {
      SCOPED_TRACE(row.name);
      SCOPED_TRACE(poster.name);
      CurrentWorld() = World{};
      CurrentWorld().bus = {Mixer()};
      row.change(&CurrentWorld());
      *poster.lastInfo = nullptr;
      EXPECT_EQ(poster.set(), 100u);
      EXPECT_THAT(TakeSteps(), testing::Contains(poster.post).Times(1));
    }
  }
}

TEST_F(Post, OfADefaultOutputRoutingContainsTheDefaultIndex) {
  const char *const kExpected[] = {
      "post VRM-B5 OutputAudio Change "
      "{ProductID=8, Channel=0, Index=0} immediately",
      "post VRM-B5 OutputAudio Change "
      "{ProductID=8, Channel=1, Index=1} immediately",
      "post VRM-B5 OutputAudio Change "
      "{ProductID=8, Channel=2, Index=2} immediately",
      "post VRM-B5 OutputAudio Change "
      "{ProductID=8, Channel=3, Index=3} immediately",
      "post VRM-B5 OutputAudio Change "
      "{ProductID=8, Channel=4, Index=4} immediately",
  };
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    SCOPED_TRACE(channel);
    EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, channel), 100u);
    EXPECT_THAT(TakeSteps(), ElementsAre("count", kExpected[channel]));
  }
  EXPECT_EQ(CurrentWorld().held.userInfos, 1);
}

TEST_F(Post, IsNotMadeByTheOtherSetters) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 1, 6), 100u);
  EXPECT_EQ(ZTK_SetMidiKeyModeIndex(1, 0), 102u);
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 100u);
  EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, 0), 100u);
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
  EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), 100u);
  EXPECT_EQ(ZTK_SetCurrentMidiKeyModeIndex(1), 102u);
  EXPECT_THAT(TakeRecordCalls(), IsEmpty());
}

TEST_F(Post, ContainsLargeNumbersAsSignedNumbers) {
  notify::PostChannelIndex(notify::kInputAudio, &inputAudioInfo, 0xFFFFFFFF,
                           0x80000000, 0xFFFFFFF9);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("post VRM-D6 InputAudio Change {ProductID=-1, "
                          "Channel=-2147483648, Index=-7} immediately"));
}

// Deliberate: a registration clears the pointer to the record, which is then
// never released.
class RegisterOverARecord : public Post {};

TEST_F(RegisterOverARecord, ClearsThePointerWithoutReleasingTheRecord) {
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    CurrentWorld().held = Held{};
    poster.set();
    TakeCalls();
    EXPECT_EQ(poster.registerAgain(), 100u);
    EXPECT_EQ(*poster.lastInfo, nullptr);
    EXPECT_THAT(TakeRecordCalls(), IsEmpty());
    EXPECT_EQ(CurrentWorld().held.userInfos, 1);

    poster.set();
    EXPECT_EQ(TakeRecordCalls().front(), "release no info");
    EXPECT_EQ(CurrentWorld().held.userInfos, 2);
  }
}

TEST_F(RegisterOverARecord, LeaksOneRecordForEachRegistrationAfterAPost) {
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    CurrentWorld().held = Held{};
    poster.registerAgain();
    poster.registerAgain();
    EXPECT_EQ(CurrentWorld().held.userInfos, 0);
    for (int round = 0; round < 5; ++round) {
      poster.set();
      poster.set();
      poster.registerAgain();
      poster.registerAgain();
    }
    EXPECT_EQ(CurrentWorld().held.userInfos, 5);
  }
}

TEST_F(RegisterOverARecord, KeepsTheRecordsOfTheOtherFamilies) {
  for (const Poster &poster : kPosters) poster.set();
  kPosters[2].registerAgain();
  EXPECT_EQ(boostLevelInfo, nullptr);
  EXPECT_NE(inputAudioInfo, nullptr);
  EXPECT_NE(outputAudioInfo, nullptr);
  EXPECT_NE(midiChannelInfo, nullptr);
}

TEST_F(RegisterOverARecord, KeepsItWhenTheProductIsRejected) {
  for (const Poster &poster : kPosters) poster.set();
  ZTK_RegisterInputAudioChangedCallback(8, OnChannel, nullptr);
  ZTK_RegisterOutputAudioChangedCallback(8, OnChannel, nullptr);
  ZTK_RegisterBoostLevelChangedCallback(1, OnIndex, nullptr);
  ZTK_RegisterMidiChannelChangedCallback(10, OnIndex, nullptr);
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    EXPECT_NE(*poster.lastInfo, nullptr);
  }
}

TEST_F(RegisterOverARecord, UnregisterKeepsIt) {
  for (const Poster &poster : kPosters) poster.set();
  ZTK_UnregisterInputAudioChangedCallback(10, nullptr);
  ZTK_UnregisterOutputAudioChangedCallback(10, nullptr);
  ZTK_UnregisterBoostLevelChangedCallback(10, nullptr);
  ZTK_UnregisterMidiChannelChangedCallback(1, nullptr);
  for (const Poster &poster : kPosters) {
    SCOPED_TRACE(poster.name);
    EXPECT_NE(*poster.lastInfo, nullptr);
  }
}

}  // namespace
}  // namespace ztk::test
