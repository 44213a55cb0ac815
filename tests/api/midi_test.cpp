// SPDX-License-Identifier: MIT
#include "api/api_test.h"

namespace ztk::test {
namespace {

class GetNumOfMidiChannelIndex : public ApiTest {};

TEST_F(GetNumOfMidiChannelIndex, IsSixteenForTheOnlyProduct) {
  std::uint32_t count = kUntouched;
  EXPECT_EQ(ZTK_GetNumOfMidiChannelIndex(10, &count), 102u);
  EXPECT_EQ(count, kUntouched);
  EXPECT_EQ(ZTK_GetNumOfMidiChannelIndex(1, &count), 100u);
  EXPECT_EQ(count, 16u);
}

class GetMidiChannelText : public ApiTest {};

TEST_F(GetMidiChannelText, ReturnsSixteenChannelsForAnyThirdArgument) {
  const char *const expected[] = {
      "CH 1", "CH 2",  "CH 3",  "CH 4",  "CH 5",  "CH 6",  "CH 7",  "CH 8",
      "CH 9", "CH 10", "CH 11", "CH 12", "CH 13", "CH 14", "CH 15", "CH 16"};
  for (std::uint32_t index = 0; index < 16; ++index) {
    for (const std::uint32_t ignored : {0u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
      ZTKTextRef text = kUntouchedText;
      EXPECT_EQ(ZTK_GetMidiChannelText(1, index, ignored, &text), 100u);
      EXPECT_EQ(Plain(text), expected[index]);
    }
  }
}

TEST_F(GetMidiChannelText, RejectsIndexSixteenAndDoesNotWriteTheOutput) {
  ZTKTextRef text = kUntouchedText;
  EXPECT_EQ(ZTK_GetMidiChannelText(1, 16, 0, &text), 102u);
  EXPECT_EQ(Plain(text), "untouched");
}

class SetMidiChannelIndex : public ApiTest {};

TEST_F(SetMidiChannelIndex, SendsStoresAndPostsByDefaultDelivery) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 9), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0900 8004 0000", "close 1",
                  "write /Users/dj/Library/Preferences/"
                  "com.tarvix.VRM-K2autosetup.plist {MidiChannel=9}",
                  "post VRM-K2 MidiChannel Change {ProductID=1, Index=9} "
                  "with default delivery"));
}

TEST_F(SetMidiChannelIndex, SkipsMixersThatCannotBeOpened) {
  ExpectEveryWalk(
      {.request = "40 03 0a00 8004 0000",
       .then = {Written(kK2File, "MidiChannel=10"),
                "post VRM-K2 MidiChannel Change {ProductID=1, Index=10} "
                "with default delivery"}},
      [] { return ZTK_SetMidiChannelIndex(1, 10); });
}

TEST_F(SetMidiChannelIndex, SendsTheChannelInTheHighByte) {
  const char *const expected[] = {
      "0000", "0100", "0200", "0300", "0400", "0500", "0600", "0700",
      "0800", "0900", "0a00", "0b00", "0c00", "0d00", "0e00", "0f00"};
  for (std::uint32_t index = 0; index < 16; ++index) {
    StartAfresh({Mixer()});
    EXPECT_EQ(ZTK_SetMidiChannelIndex(1, index), 100u);
    EXPECT_EQ(TakeSteps().at(2),
              std::string("mixer 1: 40 03 ") + expected[index] + " 8004 0000");
  }
}

TEST_F(SetMidiChannelIndex, RejectsIndexSixteenAndOtherProducts) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t index : {16u, 256u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(ZTK_SetMidiChannelIndex(1, index), 102u) << index;
  }
  EXPECT_EQ(ZTK_SetMidiChannelIndex(10, 0), 102u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(SetMidiChannelIndex, PostsEvenIfRequestsAndTheFileFail) {
  CurrentWorld().bus = {RefusingMixer()};
  CurrentWorld().canWrite = false;
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 0), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(Join(
                  {{"count"},
                   Visit(1, "40 03 0000 8004 0000 -> stall"),
                   {Written(kK2File, "MidiChannel=0"),
                    "post VRM-K2 MidiChannel Change {ProductID=1, Index=0} "
                    "with default delivery"}})));
}

TEST_F(SetMidiChannelIndex, ChangesOnlyItsFile) {
  CurrentWorld().files[kD6File] = {{"MidiChannel", 3}};
  CurrentWorld().files[kK2File] = {{"MidiChannel", 4}, {"Foo", "x"}};
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 5), 100u);
  EXPECT_EQ(CurrentWorld().files[kK2File],
            (fake::Entries{{"MidiChannel", 5}, {"Foo", "x"}}));
  EXPECT_EQ(CurrentWorld().files[kD6File], (fake::Entries{{"MidiChannel", 3}}));
}

TEST_F(SetMidiChannelIndex,
       ReleasesAllObjectsExceptThoseOfTheCountAndOneRecord) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetMidiChannelIndex(1, 0);
  ZTK_SetMidiChannelIndex(1, 1);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.ports = 2, .numbers = 4, .userInfos = 1}));
}

class GetCurrentMidiChannelIndex : public ApiTest {
 protected:
  static std::uint32_t Index() {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentMidiChannelIndex(1, &index), 100u);
    return index;
  }
};

TEST_F(GetCurrentMidiChannelIndex, IsZeroWithoutAFileOrAKey) {
  EXPECT_EQ(Index(), 0u);
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  CurrentWorld().files[kK2File] = {{"MaxLevel", 1}};
  EXPECT_EQ(Index(), 0u);
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(Index(), 0u);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(GetCurrentMidiChannelIndex, ReturnsAnyStoredInteger) {
  const struct {
    const char *name;
    fake::Value stored;
    std::uint32_t expected;
  } rows[] = {{"a choice", 15, 15},
              {"beyond every choice", 16, 16},
              {"minus one", -1, 4294967295},
              {"the lowest", kLowest, 2147483648},
              {"a text", "5", 5},
              {"another kind counts as absent", std::monostate{}, 0}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    CurrentWorld().files[kK2File] = {{"MidiChannel", row.stored}};
    EXPECT_EQ(Index(), row.expected);
  }
}

class SetCurrentMidiChannelIndex : public ApiTest {};

TEST_F(SetCurrentMidiChannelIndex, SendsTheRememberedChannelAndNothingElse) {
  ExpectEveryWalk({.request = "40 03 0300 8004 0000"}, [] {
    CurrentWorld().files[kK2File] = {{"MidiChannel", 3}};
    return ZTK_SetCurrentMidiChannelIndex(1);
  });
}

TEST_F(SetCurrentMidiChannelIndex, SendsTheFirstChannelWithoutAFile) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1", "mixer 1: 40 03 0000 8004 0000",
                          "close 1"));
  EXPECT_EQ(CurrentWorld().held, OneCount());
}

TEST_F(SetCurrentMidiChannelIndex, ResendsOnlyTheFirstFourOfSixteenChannels) {
  for (std::uint32_t index = 0; index < 16; ++index) {
    SCOPED_TRACE(index);
    StartAfresh({Mixer()});
    EXPECT_EQ(ZTK_SetMidiChannelIndex(1, index), 100u);
    TakeSteps();
    std::uint32_t remembered = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentMidiChannelIndex(1, &remembered), 100u);
    EXPECT_EQ(remembered, index);
    EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), index < 4 ? 100u : 102u);
    EXPECT_EQ(TakeSteps().size(), index < 4 ? 4u : 0u);
  }
}

TEST_F(SetCurrentMidiChannelIndex, SendsNothingForARememberedNumberOutOfRange) {
  for (const fake::Value &stored :
       {fake::Value{4}, fake::Value{9}, fake::Value{16}, fake::Value{-1},
        fake::Value{kLowest}, fake::Value{"5"}}) {
    StartAfresh({Mixer()});
    CurrentWorld().files[kK2File] = {{"MidiChannel", stored}};
    EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), 102u);
    EXPECT_THAT(TakeSteps(), IsEmpty());
    EXPECT_EQ(CurrentWorld().held, Held{});
  }
}

class MidiKeyMode : public ApiTest {};

TEST_F(MidiKeyMode, RejectsEverythingAndDoesNothing) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kK2File] = {{"MidiKeyMode", 1}};
  for (const std::uint32_t product : {0u, 1u, 5u, 8u, 10u, 11u, 0xFFFFFFFFu}) {
    for (const std::uint32_t index : {0u, 1u, 2u, 0xFFFFFFFFu}) {
      std::uint32_t number = kUntouched;
      ZTKTextRef text = kUntouchedText;
      EXPECT_EQ(ZTK_GetNumOfMidiKeyModeIndex(product, &number), 102u);
      EXPECT_EQ(ZTK_GetNumOfMidiKeyModeIndex(product, nullptr), 102u);
      EXPECT_EQ(ZTK_GetMidiKeyModeText(product, index, 0, &text), 102u);
      EXPECT_EQ(ZTK_GetMidiKeyModeText(product, index, 0, nullptr), 102u);
      EXPECT_EQ(ZTK_SetMidiKeyModeIndex(product, index), 102u);
      EXPECT_EQ(ZTK_GetCurrentMidiKeyModeIndex(product, &number), 102u);
      EXPECT_EQ(ZTK_GetCurrentMidiKeyModeIndex(product, nullptr), 102u);
      EXPECT_EQ(ZTK_SetCurrentMidiKeyModeIndex(product), 102u);
      EXPECT_EQ(number, kUntouched);
      EXPECT_EQ(Plain(text), "untouched");
    }
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
  EXPECT_EQ(CurrentWorld().held, Held{});
}

}  // namespace
}  // namespace ztk::test
