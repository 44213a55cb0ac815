// SPDX-License-Identifier: MIT
//
// Tests how a notification of any process reaches the registered callback.
#include <limits>

#include "notify/observer.h"
#include "support/core_test.h"

namespace ztk::test {
namespace {

using fake::Deliver;
using Entries = std::vector<std::pair<std::string, std::int32_t>>;

constexpr char kInputAudio[] = "VRM-D6 InputAudio Change";
constexpr char kOutputAudio[] = "VRM-D6 OutputAudio Change";
constexpr char kBoostLevel[] = "VRM-D6 BoostLevel Change";
constexpr char kMidiChannel[] = "VRM-K2 MidiChannel Change";

// The callbacks below store their arguments here. The context points to it.
struct ReceivedCalls {
  std::vector<std::string> calls;
};

void NoteChannel(std::int32_t channel, std::int32_t index, void *context) {
  static_cast<ReceivedCalls *>(context)->calls.push_back(
      "channel " + std::to_string(channel) + " index " + std::to_string(index));
}

void NoteIndex(std::int32_t index, void *context) {
  static_cast<ReceivedCalls *>(context)->calls.push_back("index " +
                                                         std::to_string(index));
}

class Observer : public CoreTest {
 protected:
  std::vector<std::string> TakeNotes() {
    return std::exchange(diary_.calls, {});
  }

  ReceivedCalls diary_;
};

TEST_F(Observer, CallsInputAudioWithChannelIndexAndContext) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 2 index 5"));
}

TEST_F(Observer, CallsOutputAudioWithChannelIndexAndContext) {
  ZTK_RegisterOutputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kOutputAudio, {{"ProductID", 10}, {"Channel", 1}, {"Index", 2}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 1 index 2"));
}

TEST_F(Observer, CallsTheBoostLevelWithIndexAndContextOnly) {
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &diary_);
  Deliver(kBoostLevel, {{"ProductID", 10}, {"Index", 3}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 3"));
}

TEST_F(Observer, CallsTheMidiChannelWithIndexAndContextOnly) {
  ZTK_RegisterMidiChannelChangedCallback(1, NoteIndex, &diary_);
  Deliver(kMidiChannel, {{"ProductID", 1}, {"Index", 15}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 15"));
}

TEST_F(Observer, ReadsTheRecordByKeyAndNotByOrder) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kInputAudio,
          {{"Index", 5}, {"Other", 9}, {"ProductID", 10}, {"Channel", 2}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 2 index 5"));
}

TEST_F(Observer, PassesAnyNumberToTheCallback) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10},
                        {"Channel", -1},
                        {"Index", std::numeric_limits<std::int32_t>::max()}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel -1 index 2147483647"));
}

TEST_F(Observer, ReadsAMissingKeyAsZero) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}});
  Deliver(kInputAudio, {{"ProductID", 10}, {"Index", 4}});
  Deliver(kBoostLevel, {{"ProductID", 10}});
  EXPECT_THAT(TakeNotes(),
              ElementsAre("channel 0 index 0", "channel 0 index 4", "index 0"));
}

TEST_F(Observer, ReadsAMissingProductAsProductZero) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kInputAudio, {{"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), IsEmpty());
  InputAudioChangedCallback[0] = NoteChannel;
  InputAudioChangedContext[0] = &diary_;
  Deliver(kInputAudio, {{"Channel", 2}, {"Index", 5}});
  notify::kInputAudioChanged.code(_ZTKFunc, nullptr);
  EXPECT_THAT(TakeNotes(),
              ElementsAre("channel 2 index 5", "channel 0 index 0"));
}

TEST_F(Observer, UsesTheSlotOfTheProductInTheRecord) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ReceivedCalls others[10];
  for (int id = 0; id < 10; ++id) {
    InputAudioChangedCallback[id] = NoteChannel;
    InputAudioChangedContext[id] = &others[id];
  }
  for (int id = 0; id < 10; ++id) {
    Deliver(kInputAudio, {{"ProductID", id}, {"Channel", 1}, {"Index", id}});
    SCOPED_TRACE(id);
    EXPECT_THAT(others[id].calls,
                ElementsAre("channel 1 index " + std::to_string(id)));
  }
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

// Every slot has a callback. So an access after the end of a table is detected
// by its value or by the address sanitizer.
TEST_F(Observer, IgnoresProductsWithoutASlot) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_RegisterOutputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &diary_);
  ZTK_RegisterMidiChannelChangedCallback(1, NoteIndex, &diary_);
  for (int id = 0; id < 11; ++id) {
    InputAudioChangedCallback[id] = OutputAudioChangedCallback[id] =
        NoteChannel;
    BoostLevelChangedCallback[id] = MidiChannelChangedCallback[id] = NoteIndex;
    InputAudioChangedContext[id] = OutputAudioChangedContext[id] = &diary_;
    BoostLevelChangedContext[id] = MidiChannelChangedContext[id] = &diary_;
  }
  for (const std::int32_t id :
       {-1, 11, 12, 99, 266, 65546, INT32_MAX, INT32_MIN, INT32_MIN + 10}) {
    SCOPED_TRACE(id);
    const Entries entries = {{"ProductID", id}, {"Channel", 0}, {"Index", 0}};
    for (const char *name :
         {kInputAudio, kOutputAudio, kBoostLevel, kMidiChannel}) {
      Deliver(name, entries);
    }
  }
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(Observer, SkipsASlotWithoutACallback) {
  ZTK_RegisterInputAudioChangedCallback(10, nullptr, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  Deliver(kInputAudio, {{"ProductID", 3}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

// The observer exists because another family is registered.
TEST_F(Observer, DoesNothingForFamiliesWithoutARegistration) {
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  using namespace notify;
  for (const Method &method : {kInputAudioChanged, kOutputAudioChanged,
                               kMidiChannelChanged, kMidiKeyModeChanged}) {
    CurrentWorld().observations = {
        {.name = "any", .observer = _ZTKFunc, .method = method}};
    for (std::int32_t id = -1; id < 12; ++id) {
      Deliver("any", {{"ProductID", id}, {"Channel", 2}, {"Index", 5}});
    }
  }
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(Observer, CallsOnceForEachRegistration) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(),
              ElementsAre("channel 2 index 5", "channel 2 index 5"));
}

TEST_F(Observer, CallsTheNewerCallbackForBothRegistrations) {
  ReceivedCalls older;
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &older);
  ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, &diary_);
  Deliver(kBoostLevel, {{"ProductID", 10}, {"Index", 1}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 1", "index 1"));
  EXPECT_THAT(older.calls, IsEmpty());
}

TEST_F(Observer, CallsNothingAfterUnregisterEvenIfRegisteredTwice) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_UnregisterInputAudioChangedCallback(10, nullptr);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(Observer, CallsAgainAfterANewRegister) {
  ZTK_RegisterMidiChannelChangedCallback(1, NoteIndex, &diary_);
  ZTK_UnregisterMidiChannelChangedCallback(1, nullptr);
  ZTK_RegisterMidiChannelChangedCallback(1, NoteIndex, &diary_);
  Deliver(kMidiChannel, {{"ProductID", 1}, {"Index", 4}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 4", "index 4"));
}

TEST_F(Observer, DoesNotReceiveTheLibrarysOutputAudioPosts) {
  ZTK_RegisterOutputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_SetUSBOutputAudio(8, 1, 2);
  EXPECT_THAT(TakeSteps(),
              testing::Contains("post VRM-B5 OutputAudio Change {ProductID=8, "
                                "Channel=1, Index=2} immediately"));
  Deliver("VRM-B5 OutputAudio Change",
          {{"ProductID", 8}, {"Channel", 1}, {"Index", 2}});
  Deliver("VRM-B5 OutputAudio Change",
          {{"ProductID", 10}, {"Channel", 1}, {"Index", 2}});
  EXPECT_THAT(TakeNotes(), IsEmpty());
  Deliver(kOutputAudio, {{"ProductID", 10}, {"Channel", 1}, {"Index", 2}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 1 index 2"));
}

TEST_F(Observer, ReadsTheKeyModeTablesThatNothingWrites) {
  ZTK_RegisterMidiChannelChangedCallback(1, NoteIndex, &diary_);
  CurrentWorld().observations = {{.name = "any",
                                  .observer = _ZTKFunc,
                                  .method = notify::kMidiKeyModeChanged}};
  Deliver("any", {{"ProductID", 1}, {"Index", 1}});
  EXPECT_THAT(TakeNotes(), IsEmpty());
  MidiKeyModeChangedCallback[1] = NoteIndex;
  MidiKeyModeChangedContext[1] = &diary_;
  Deliver("any", {{"ProductID", 1}, {"Index", 1}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 1"));
}

TEST_F(Observer, HasFiveMethodsWithTheseNames) {
  EXPECT_STREQ(notify::kInputAudioChanged.selector, "inputAudioChanged:");
  EXPECT_STREQ(notify::kOutputAudioChanged.selector, "outputAudioChanged:");
  EXPECT_STREQ(notify::kBoostLevelChanged.selector, "boostLevelChanged:");
  EXPECT_STREQ(notify::kMidiChannelChanged.selector, "midiChannelChanged:");
  EXPECT_STREQ(notify::kMidiKeyModeChanged.selector, "midiKeyModeChanged:");
}

TEST_F(Observer, DoesNotChangeTheVariablesOfTheCore) {
  ZTK_RegisterInputAudioChangedCallback(10, NoteChannel, &diary_);
  ZTK_SetUSBInputAudio(10, 0, 3);
  void *const observer = _ZTKFunc;
  notify::UserInfo *const record = inputAudioInfo;
  TakeCalls();
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeCalls(), IsEmpty());
  EXPECT_EQ(inputAudioInfo, record);
  EXPECT_EQ(_ZTKFunc, observer);
  EXPECT_EQ(InputAudioChangedCallback[10], NoteChannel);
  EXPECT_EQ(InputAudioChangedContext[10], &diary_);
}

class CallbackWhileDelivered : public Observer {};

TEST_F(CallbackWhileDelivered, MayUnregisterItself) {
  const ZTKChannelCallback once = [](std::int32_t channel, std::int32_t index,
                                     void *context) {
    NoteChannel(channel, index, context);
    EXPECT_EQ(ZTK_UnregisterInputAudioChangedCallback(10, nullptr), 100u);
  };
  ZTK_RegisterInputAudioChangedCallback(10, once, &diary_);
  ZTK_RegisterInputAudioChangedCallback(10, once, &diary_);
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 2 index 5"));
}

TEST_F(CallbackWhileDelivered, MayRegisterAgain) {
  const ZTKIndexCallback again = [](std::int32_t index, void *context) {
    NoteIndex(index, context);
    EXPECT_EQ(ZTK_RegisterBoostLevelChangedCallback(10, NoteIndex, context),
              100u);
  };
  ZTK_RegisterBoostLevelChangedCallback(10, again, &diary_);
  Deliver(kBoostLevel, {{"ProductID", 10}, {"Index", 1}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 1"));
  Deliver(kBoostLevel, {{"ProductID", 10}, {"Index", 2}});
  EXPECT_THAT(TakeNotes(), ElementsAre("index 2", "index 2"));
}

TEST_F(CallbackWhileDelivered, MaySetTheSameSetting) {
  const ZTKChannelCallback putBack = [](std::int32_t channel,
                                        std::int32_t index, void *context) {
    NoteChannel(channel, index, context);
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, 2, 6), 100u);
  };
  ZTK_RegisterInputAudioChangedCallback(10, putBack, &diary_);
  CurrentWorld().bus = {Mixer()};
  ZTK_SetUSBInputAudio(10, 2, 5);
  TakeSteps();
  Deliver(kInputAudio, {{"ProductID", 10}, {"Channel", 2}, {"Index", 5}});
  EXPECT_THAT(TakeNotes(), ElementsAre("channel 2 index 5"));
  EXPECT_THAT(TakeSteps(),
              testing::Contains("post VRM-D6 InputAudio Change {ProductID=10, "
                                "Channel=2, Index=6} immediately"));
  EXPECT_EQ(CurrentWorld().held.userInfos, 1);
}

}  // namespace
}  // namespace ztk::test
