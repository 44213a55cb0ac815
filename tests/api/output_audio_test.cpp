// SPDX-License-Identifier: MIT
#include <algorithm>

#include "api/api_test.h"

namespace ztk::test {
namespace {

constexpr char kReadOutputSelectors[] = "c0 00 0000 8002 0004 -> 00 04 04 04";

class GetNumOfOutputAudioIndex : public ApiTest {};

TEST_F(GetNumOfOutputAudioIndex, IsThreeOnThreeChannels) {
  for (std::uint32_t channel = 0; channel < 3; ++channel) {
    std::uint32_t count = kUntouched;
    EXPECT_EQ(ZTK_GetNumOfOutputAudioIndex(8, channel, &count), 100u);
    EXPECT_EQ(count, 3u);
  }
}

TEST_F(GetNumOfOutputAudioIndex, RejectsChannelThreeAndTheOtherMixersProduct) {
  std::uint32_t count = kUntouched;
  EXPECT_EQ(ZTK_GetNumOfOutputAudioIndex(8, 3, &count), 102u);
  EXPECT_EQ(ZTK_GetNumOfOutputAudioIndex(10, 2, &count), 102u);
  EXPECT_EQ(count, kUntouched);
}

class GetUSBOutputAudioText : public ApiTest {
 protected:
  static std::string TextOf(std::uint32_t channel, std::uint32_t index,
                            std::uint32_t ignored = 0) {
    ZTKTextRef text = kUntouchedText;
    const ZTKResult result =
        ZTK_GetUSBOutputAudioText(8, channel, index, ignored, &text);
    return std::to_string(result) + " " + Plain(text);
  }
};

TEST_F(GetUSBOutputAudioText, ReturnsThreeChoicesAndTheFirstAgainAtIndex3) {
  for (std::uint32_t channel = 0; channel < 3; ++channel) {
    SCOPED_TRACE(channel);
    EXPECT_EQ(TextOf(channel, 0), "100 CH1");
    EXPECT_EQ(TextOf(channel, 1), "100 CH2");
    EXPECT_EQ(TextOf(channel, 2), "100 AUX");
    EXPECT_EQ(TextOf(channel, 3), "100 CH1");
    EXPECT_EQ(TextOf(channel, 4), "102 untouched");
  }
}

TEST_F(GetUSBOutputAudioText, RejectsTheChannelsThatOnlyTheSettersAccept) {
  EXPECT_EQ(TextOf(3, 0), "102 untouched");
  EXPECT_EQ(TextOf(4, 0), "102 untouched");
}

TEST_F(GetUSBOutputAudioText, IgnoresItsFourthArgument) {
  for (const std::uint32_t ignored : {1u, 99u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(TextOf(1, 2, ignored), "100 AUX");
  }
}

class SetUSBOutputAudio : public ApiTest {};

// The log of requests would not show a search that finds no mixer, so all calls
// are compared.
TEST_F(SetUSBOutputAudio, SearchesTheBusOnceForEachRequest) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0, 1), 100u);
  const std::vector<std::string> calls = TakeCalls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "find every service"), 4);
}

TEST_F(SetUSBOutputAudio, SendsStoresPostsAndReadsTheSelectorInThisOrder) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 1, 2), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0204 8016 0000", "close 1",
                  "write /Users/dj/Library/Preferences/"
                  "com.tarvix.VRM-B5autosetup.plist {Input1=2}",
                  "post VRM-B5 OutputAudio Change "
                  "{ProductID=8, Channel=1, Index=2} immediately",
                  "open 1", "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04",
                  "close 1"));
}

// All mixers have the same USB product id, so product 8 does not select some of
// them.
TEST_F(SetUSBOutputAudio, SendsToEveryMixerThatOpens) {
  ExpectEveryWalk({.request = "40 03 0204 8016 0000",
                   .then = {Written(kB5File, "Input1=2"),
                            "post VRM-B5 OutputAudio Change "
                            "{ProductID=8, Channel=1, Index=2} immediately"},
                   .secondRequest = kReadOutputSelectors},
                  [] { return ZTK_SetUSBOutputAudio(8, 1, 2); });
}

TEST_F(SetUSBOutputAudio, SendsTheDeviceValueOfEveryChoice) {
  const char *const expected[3][3] = {{"0100", "0101", "0104"},
                                      {"0200", "0201", "0204"},
                                      {"0300", "0301", "0304"}};
  for (std::uint32_t channel = 0; channel < 3; ++channel) {
    for (std::uint32_t index = 0; index < 3; ++index) {
      StartAfresh({Mixer()});
      EXPECT_EQ(ZTK_SetUSBOutputAudio(8, channel, index), 100u);
      EXPECT_EQ(TakeSteps().at(2), std::string("mixer 1: 40 03 ") +
                                       expected[channel][index] + " 8016 0000");
    }
  }
}

TEST_F(SetUSBOutputAudio, StoresAndPostsWithoutAMixerAndNeverWarns) {
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 1, 2), 100u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0, 0), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", Written(kB5File, "Input1=2"),
                          "post VRM-B5 OutputAudio Change "
                          "{ProductID=8, Channel=1, Index=2} immediately",
                          "count", Written(kB5File, "Input0=0, Input1=2"),
                          "post VRM-B5 OutputAudio Change "
                          "{ProductID=8, Channel=0, Index=0} immediately"));
}

TEST_F(SetUSBOutputAudio, NeverWarnsForAnyPositionOfTheSelectors) {
  CurrentWorld().bus = {MixerAnswering(0x8002, {.bytes = {0, 0, 0, 0, 0}}),
                        RefusingMixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0, 0), 100u);
}

TEST_F(SetUSBOutputAudio, AcceptsTwoMoreChannelsAndSendsNothingForThem) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 3, 0), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(Join({{"count", Written(kB5File, "Input3=0"),
                                      "post VRM-B5 OutputAudio Change "
                                      "{ProductID=8, Channel=3, Index=0} "
                                      "immediately"},
                                     Visit(1, kReadOutputSelectors),
                                     Visit(2, kReadOutputSelectors)})));
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 4, 2), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAreArray(Join({{"count", Written(kB5File, "Input3=0, Input4=2"),
                              "post VRM-B5 OutputAudio Change "
                              "{ProductID=8, Channel=4, Index=2} immediately"},
                             Visit(1, kReadOutputSelectors),
                             Visit(2, kReadOutputSelectors)})));
}

TEST_F(SetUSBOutputAudio, RejectsAFourthChoiceAChannelFiveAndOtherProducts) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0, 3), 102u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 5, 0), 102u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0xFFFFFFFF, 0), 102u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(6, 0, 0), 102u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(10, 0, 0), 102u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(SetUSBOutputAudio, PostsEvenIfRequestsAndTheFileFail) {
  CurrentWorld().bus = {RefusingMixer()};
  CurrentWorld().canWrite = false;
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 0, 1), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAreArray(Join({{"count"},
                             Visit(1, "40 03 0101 8016 0000 -> stall"),
                             {Written(kB5File, "Input0=1"),
                              "post VRM-B5 OutputAudio Change "
                              "{ProductID=8, Channel=0, Index=1} immediately"},
                             Visit(1, "c0 00 0000 8002 0004 -> stall")})));
}

TEST_F(SetUSBOutputAudio, ReleasesAllObjectsExceptThoseOfTheCountAndOneRecord) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetUSBOutputAudio(8, 0, 0);
  EXPECT_EQ(CurrentWorld().held, OneCount(1));
  ZTK_SetUSBOutputAudioDefault(8, 1);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.ports = 2, .numbers = 4, .userInfos = 1}));
}

class SetUSBOutputAudioDefault : public ApiTest {};

TEST_F(SetUSBOutputAudioDefault, SendsPostsAndReadsButDoesNotStore) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kB5File] = {{"Input2", 1}};
  EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, 2), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0304 8016 0000", "close 1",
                  "post VRM-B5 OutputAudio Change "
                  "{ProductID=8, Channel=2, Index=2} immediately",
                  "open 1", "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04",
                  "close 1"));
  EXPECT_EQ(CurrentWorld().files[kB5File], (fake::Entries{{"Input2", 1}}));
  std::uint32_t index = kUntouched;
  EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, 2, &index), 100u);
  EXPECT_EQ(index, 1u);
}

TEST_F(SetUSBOutputAudioDefault, SendsToEveryMixerThatOpens) {
  ExpectEveryWalk({.request = "40 03 0201 8016 0000",
                   .then = {"post VRM-B5 OutputAudio Change "
                            "{ProductID=8, Channel=1, Index=1} immediately"},
                   .secondRequest = kReadOutputSelectors},
                  [] { return ZTK_SetUSBOutputAudioDefault(8, 1); });
}

TEST_F(SetUSBOutputAudioDefault, SendsAnotherValueForEachChannel) {
  const char *const expected[] = {"0100", "0201", "0304"};
  for (std::uint32_t channel = 0; channel < 3; ++channel) {
    StartAfresh({Mixer()});
    EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, channel), 100u);
    EXPECT_EQ(TakeSteps().at(2), std::string("mixer 1: 40 03 ") +
                                     expected[channel] + " 8016 0000");
  }
}

TEST_F(SetUSBOutputAudioDefault, PostsTheChannelAsIndexEvenIfNothingIsSent) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, 3), 100u);
  EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, 4), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAreArray(Join({{"count",
                              "post VRM-B5 OutputAudio Change "
                              "{ProductID=8, Channel=3, Index=3} immediately"},
                             Visit(1, kReadOutputSelectors),
                             {"count",
                              "post VRM-B5 OutputAudio Change "
                              "{ProductID=8, Channel=4, Index=4} immediately"},
                             Visit(1, kReadOutputSelectors)})));
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
}

class GetCurrentUSBOutputAudioIndex : public ApiTest {
 protected:
  static std::uint32_t IndexOf(std::uint32_t channel) {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, channel, &index), 100u);
    return index;
  }
};

TEST_F(GetCurrentUSBOutputAudioIndex, IsTheNumberOfTheChannelWithoutAFile) {
  for (std::uint32_t channel = 0; channel < 3; ++channel) {
    EXPECT_EQ(IndexOf(channel), channel);
  }
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(IndexOf(2), 2u);
}

TEST_F(GetCurrentUSBOutputAudioIndex, ReadsTheKeyOfItsChannelOnly) {
  CurrentWorld().files[kB5File] = {
      {"Input0", 2}, {"Input2", 0}, {"Output1", 7}};
  CurrentWorld().files[kD6File] = {{"Input1", 8}};
  EXPECT_EQ(IndexOf(0), 2u);
  EXPECT_EQ(IndexOf(1), 1u);
  EXPECT_EQ(IndexOf(2), 0u);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(GetCurrentUSBOutputAudioIndex, ReturnsAnyStoredInteger) {
  const struct {
    const char *name;
    fake::Value stored;
    std::uint32_t expected;
  } rows[] = {{"beyond every choice", 99, 99},
              {"minus one", -1, 4294967295},
              {"the lowest", kLowest, 2147483648},
              {"a text", "5", 5},
              {"another kind counts as absent", std::monostate{}, 1}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    CurrentWorld().files[kB5File] = {{"Input1", row.stored}};
    EXPECT_EQ(IndexOf(1), row.expected);
  }
}

TEST_F(GetCurrentUSBOutputAudioIndex, RejectsTheChannelsThatOnlySettersAccept) {
  CurrentWorld().files[kB5File] = {{"Input3", 1}};
  for (const std::uint32_t channel : {3u, 4u, 0x80000000u, 0xFFFFFFFFu}) {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, channel, &index), 102u);
    EXPECT_EQ(index, kUntouched);
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

class SetCurrentUSBOutputAudio : public ApiTest {};

TEST_F(SetCurrentUSBOutputAudio, SendsTheRememberedChoiceAndNothingElse) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kB5File] = {{"Input2", 1}};
  EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, 2), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1", "mixer 1: 40 03 0301 8016 0000",
                          "close 1"));
  EXPECT_EQ(CurrentWorld().held, OneCount());
}

TEST_F(SetCurrentUSBOutputAudio, SendsTheDefaultToEveryMixerWithoutAFile) {
  ExpectEveryWalk({.request = "40 03 0201 8016 0000"},
                  [] { return ZTK_SetCurrentUSBOutputAudio(8, 1); });
}

TEST_F(SetCurrentUSBOutputAudio, SendsAnotherChannelsValueWithinTheTable) {
  const struct {
    std::uint32_t channel;
    const char *key;
    fake::Value remembered;
    const char *expected;
  } rows[] = {{0, "Input0", 3, "0200"},  {0, "Input0", 4, "0201"},
              {0, "Input0", 8, "0304"},  {1, "Input1", 3, "0300"},
              {1, "Input1", 5, "0304"},  {2, "Input2", 2, "0304"},
              {0, "Input0", "5", "0204"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.key) + " as " + row.expected);
    StartAfresh({Mixer()});
    CurrentWorld().files[kB5File] = {{row.key, row.remembered}};
    EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, row.channel), 100u);
    EXPECT_EQ(TakeSteps().at(2),
              std::string("mixer 1: 40 03 ") + row.expected + " 8016 0000");
  }
}

// With 32 bits, the position of a negative index would be inside the table: -6
// on channel 2 would be position 0.
TEST_F(SetCurrentUSBOutputAudio, SendsNothingPastTheTableAndReturnsSuccess) {
  const struct {
    std::uint32_t channel;
    const char *key;
    std::int32_t remembered;
  } rows[] = {{0, "Input0", 9},       {1, "Input1", 6},
              {2, "Input2", 3},       {0, "Input0", -1},
              {1, "Input1", -3},      {2, "Input2", -6},
              {0, "Input0", kLowest}, {2, "Input2", 2147483647}};
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.key) + " = " + std::to_string(row.remembered));
    StartAfresh({Mixer()});
    CurrentWorld().files[kB5File] = {{row.key, row.remembered}};
    EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, row.channel), 100u);
    EXPECT_THAT(TakeSteps(), ElementsAre("count"));
  }
}

TEST_F(SetCurrentUSBOutputAudio, RejectsTheSameArgumentsAsTheGetter) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t channel : {3u, 4u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, channel), 102u) << channel;
  }
  EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(10, 0), 102u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
