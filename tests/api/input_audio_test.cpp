// SPDX-License-Identifier: MIT
//
// Tests the choices of USB input audio and the setter of a choice. Other files
// test the direct setter and the remembered choice.
#include <cstdio>

#include "api/api_test.h"

namespace ztk::test {
namespace {

class GetNumOfInputAudioIndex : public ApiTest {};

TEST_F(GetNumOfInputAudioIndex, OffersSevenChoicesAndEightOnTheLastChannel) {
  const std::uint32_t expected[] = {7, 7, 7, 7, 8};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    SCOPED_TRACE(channel);
    std::uint32_t count = kUntouched;
    EXPECT_EQ(ZTK_GetNumOfInputAudioIndex(10, channel, &count), 100u);
    EXPECT_EQ(count, expected[channel]);
  }
}

TEST_F(GetNumOfInputAudioIndex, RejectsChannelFive) {
  std::uint32_t count = kUntouched;
  EXPECT_EQ(ZTK_GetNumOfInputAudioIndex(10, 5, &count), 102u);
  EXPECT_EQ(count, kUntouched);
}

class GetUSBInputAudioText : public ApiTest {
 protected:
  static std::string TextOf(std::int32_t channel, std::uint32_t index) {
    ZTKTextRef text = kUntouchedText;
    const ZTKResult result =
        ZTK_GetUSBInputAudioText(10, channel, index, 0, &text);
    return std::to_string(result) + " " + Plain(text);
  }
};

TEST_F(GetUSBInputAudioText, ReturnsEveryChoiceAndTheFirstOfTheNextRow) {
  const std::vector<std::vector<const char *>> expected = {
      {"CH1 Control Tone PHONO", "CH1 Control Tone LINE", "Post CH1 Fader",
       "Cross Fader A", "Cross Fader B", "MIC", "REC OUT", "PARAM ERROR",
       "CH2 Control Tone PHONO"},
      {"CH2 Control Tone PHONO", "CH2 Control Tone LINE", "Post CH2 Fader",
       "Cross Fader A", "Cross Fader B", "MIC", "REC OUT", "PARAM ERROR",
       "CH3 Control Tone PHONO"},
      {"CH3 Control Tone PHONO", "CH3 Control Tone LINE", "Post CH3 Fader",
       "Cross Fader A", "Cross Fader B", "MIC", "REC OUT", "PARAM ERROR",
       "CH4 Control Tone PHONO"},
      {"CH4 Control Tone PHONO", "CH4 Control Tone LINE", "Post CH4 Fader",
       "Cross Fader A", "Cross Fader B", "MIC", "REC OUT", "PARAM ERROR",
       "REC OUT"},
      {"REC OUT", "Post CH1 Fader", "Post CH2 Fader", "Post CH3 Fader",
       "Post CH4 Fader", "Cross Fader A", "Cross Fader B", "MIC", "PARAM ERROR",
       "PARAM ERROR"}};
  for (std::size_t channel = 0; channel < expected.size(); ++channel) {
    for (std::size_t index = 0; index < expected[channel].size(); ++index) {
      EXPECT_EQ(TextOf(static_cast<std::int32_t>(channel),
                       static_cast<std::uint32_t>(index)),
                std::string("100 ") + expected[channel][index])
          << "channel " << channel << ", index " << index;
    }
  }
}

TEST_F(GetUSBInputAudioText, RejectsIndexNineAndOnTheLastChannelIndexTen) {
  for (std::int32_t channel = 0; channel < 4; ++channel) {
    EXPECT_EQ(TextOf(channel, 9), "102 untouched") << channel;
  }
  EXPECT_EQ(TextOf(4, 10), "102 untouched");
}

TEST_F(GetUSBInputAudioText, IgnoresItsFourthArgument) {
  for (const std::uint32_t ignored : {0u, 1u, 99u, 0x80000000u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(ignored);
    ZTKTextRef text = kUntouchedText;
    EXPECT_EQ(ZTK_GetUSBInputAudioText(10, 0, 7, ignored, &text), 100u);
    EXPECT_EQ(Plain(text), "PARAM ERROR");
  }
}

TEST_F(GetUSBInputAudioText, DoesNotUseThePlatform) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(TextOf(1, 2), "100 Post CH2 Fader");
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

class SetUSBInputAudio : public ApiTest {
 protected:
  // Returns a mixer that answers the selector query with these bytes.
  static Device Selectors(std::vector<std::uint8_t> bytes,
                          fake::Code result = 0) {
    return MixerAnswering(0x8002, {.result = result, .bytes = bytes});
  }
};

constexpr char kReadSelectors[] = "c0 00 0000 8002 0005 -> 00 04 04 04 04";

TEST_F(SetUSBInputAudio, SendsStoresPostsAndReadsTheSelectorInThisOrder) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0206 8002 0000", "close 1",
                  "write /Users/dj/Library/Preferences/"
                  "com.tarvix.VRM-D6autosetup.plist {Output1=2}",
                  "post VRM-D6 InputAudio Change "
                  "{ProductID=10, Channel=1, Index=2} immediately",
                  "open 1", "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                  "close 1"));
}

TEST_F(SetUSBInputAudio, WritesToBothMixersAndThenReadsFromBoth) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0103 8002 0000", "close 1",
                  "open 2", "mixer 2: 40 03 0103 8002 0000", "close 2",
                  "write /Users/dj/Library/Preferences/"
                  "com.tarvix.VRM-D6autosetup.plist {Output0=0}",
                  "post VRM-D6 InputAudio Change "
                  "{ProductID=10, Channel=0, Index=0} immediately",
                  "open 1", "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                  "close 1", "open 2",
                  "mixer 2: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                  "close 2"));
}

TEST_F(SetUSBInputAudio, SkipsMixersThatCannotBeOpened) {
  ExpectEveryWalk({.request = "40 03 0407 8002 0000",
                   .then = {Written(kD6File, "Output3=3"),
                            "post VRM-D6 InputAudio Change "
                            "{ProductID=10, Channel=3, Index=3} immediately"},
                   .secondRequest = kReadSelectors},
                  [] { return ZTK_SetUSBInputAudio(10, 3, 3); });
}

TEST_F(SetUSBInputAudio, SendsTheDeviceValueOfEveryChoice) {
  const std::vector<std::vector<const char *>> expected = {
      {"0103", "0101", "0106", "0107", "0108", "0109", "010a", "010f"},
      {"0203", "0201", "0206", "0207", "0208", "0209", "020a", "020f"},
      {"0303", "0301", "0306", "0307", "0308", "0309", "030a", "030f"},
      {"0403", "0401", "0406", "0407", "0408", "0409", "040a", "040f"},
      {"050a", "0511", "0512", "0513", "0514", "0507", "0508", "0509", "050f"}};
  for (std::size_t channel = 0; channel < expected.size(); ++channel) {
    for (std::size_t index = 0; index < expected[channel].size(); ++index) {
      StartAfresh({Mixer()});
      EXPECT_NE(ZTK_SetUSBInputAudio(10, static_cast<std::uint32_t>(channel),
                                     static_cast<std::uint32_t>(index)),
                102u);
      const std::string value = expected[channel][index];
      EXPECT_EQ(TakeSteps().at(2), "mixer 1: 40 03 " + value + " 8002 0000")
          << "channel " << channel << ", index " << index;
    }
  }
}

TEST_F(SetUSBInputAudio, AcceptsThePlaceholderAfterTheChoices) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 7), 100u);
  EXPECT_EQ(TakeSteps().at(2), "mixer 1: 40 03 010f 8002 0000");
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 8), 100u);
  EXPECT_EQ(TakeSteps().at(2), "mixer 1: 40 03 050f 8002 0000");
}

TEST_F(SetUSBInputAudio, RejectsIndexesAfterThePlaceholder) {
  CurrentWorld().bus = {Mixer()};
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, 8), 102u) << channel;
  }
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 9), 102u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(SetUSBInputAudio, StoresTheIndexUnderTheOutputKeyOfTheChannel) {
  const char *const expected[] = {"Output0=6", "Output1=6", "Output2=6",
                                  "Output3=6", "Output4=6"};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    SCOPED_TRACE(channel);
    StartAfresh();
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, 6), 100u);
    EXPECT_EQ(TakeSteps().at(1), Written(kD6File, expected[channel]));
  }
}

TEST_F(SetUSBInputAudio, KeepsEverythingElseInTheFile) {
  CurrentWorld().files[kD6File] = {
      {"MaxLevel", 2}, {"Foo", "bar"}, {"Output0", 5}, {"Output1", 4}};
  CurrentWorld().files[kB5File] = {{"Input0", 1}};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
  const fake::Entries expected = {
      {"MaxLevel", 2}, {"Foo", "bar"}, {"Output0", 1}, {"Output1", 4}};
  EXPECT_EQ(CurrentWorld().files[kD6File], expected);
  EXPECT_EQ(CurrentWorld().files[kB5File], (fake::Entries{{"Input0", 1}}));
}

TEST_F(SetUSBInputAudio, WithoutAMixerWarnsBelowIndexThreeOnEveryChannel) {
  const ZTKResult expected[] = {101, 101, 101, 100, 100, 100, 100, 100};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    for (std::uint32_t index = 0; index < 8; ++index) {
      EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, index), expected[index])
          << "channel " << channel << ", index " << index;
    }
  }
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 8), 100u);
}

TEST_F(SetUSBInputAudio, WithoutAMixerStillStoresAndPosts) {
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 101u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", Written(kD6File, "Output1=2"),
                          "post VRM-D6 InputAudio Change "
                          "{ProductID=10, Channel=1, Index=2} immediately"));
}

TEST_F(SetUSBInputAudio, WithAMixerWarnsBelowIndexTwoOnly) {
  const ZTKResult expected[] = {101, 101, 100, 100, 100, 100, 100, 100};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    for (std::uint32_t index = 0; index < 8; ++index) {
      StartAfresh({Selectors({0, 3, 3, 3, 3})});
      EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, index), expected[index])
          << "channel " << channel << ", index " << index;
    }
  }
}

TEST_F(SetUSBInputAudio, NeverWarnsIfTheSelectorsAreAtPositionFour) {
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    for (std::uint32_t index = 0; index < 8; ++index) {
      StartAfresh({Mixer(), Mixer()});
      EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, index), 100u)
          << "channel " << channel << ", index " << index;
    }
  }
}

TEST_F(SetUSBInputAudio, UsesOnlyTheSelectorOfItsChannel) {
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    SCOPED_TRACE(channel);
    std::vector<std::uint8_t> onlyItIsRight = {0xFF, 0, 0, 0, 0};
    onlyItIsRight.at(channel + 1) = 4;
    StartAfresh({Selectors(onlyItIsRight)});
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, 0), 100u);

    std::vector<std::uint8_t> onlyItIsWrong = {4, 4, 4, 4, 4};
    onlyItIsWrong.at(channel + 1) = 5;
    StartAfresh({Selectors(onlyItIsWrong)});
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, channel, 0), 101u);
  }
}

TEST_F(SetUSBInputAudio, AlwaysWarnsForTheLastChannelWhichHasNoSelector) {
  // Five bytes are requested, so the mixer never sends the sixth one.
  for (const std::vector<std::uint8_t> &bytes :
       {std::vector<std::uint8_t>{0, 4, 4, 4, 4},
        std::vector<std::uint8_t>{4, 4, 4, 4, 4, 4, 4, 4}}) {
    const ZTKResult expected[] = {101, 101, 100, 100};
    for (std::uint32_t index = 0; index < 4; ++index) {
      SCOPED_TRACE(index);
      StartAfresh({Selectors(bytes)});
      EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, index), expected[index]);
    }
  }
}

TEST_F(SetUSBInputAudio, WarnsDependingOnTheReceivedBytesAndNotOnTheResult) {
  const struct {
    const char *name;
    Device mixer;
    ZTKResult expected;
  } rows[] = {{"no byte", Selectors({}), 101},
              {"one byte too few", Selectors({0, 4}), 101},
              {"just enough bytes", Selectors({0, 4, 4}), 100},
              {"refused", Selectors({}, platform::usb::kPipeStalled), 101},
              {"all bytes, then a time-out",
               Selectors({0, 4, 4, 4, 4}, platform::usb::kTimeout), 100},
              {"unplugged", Selectors({}, platform::usb::kNoDevice), 101}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    StartAfresh({row.mixer});
    EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 0), row.expected);
  }
}

TEST_F(SetUSBInputAudio, StopsAtTheFirstMixerForWhichItWarns) {
  CurrentWorld().bus = {Selectors({0, 3, 3, 3, 3}), Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(
                  Join({{"count"},
                        Visit(1, "40 03 0101 8002 0000"),
                        Visit(2, "40 03 0101 8002 0000"),
                        {Written(kD6File, "Output0=1"),
                         "post VRM-D6 InputAudio Change "
                         "{ProductID=10, Channel=0, Index=1} immediately"},
                        Visit(1, "c0 00 0000 8002 0005 -> 00 03 03 03 03")})));
}

TEST_F(SetUSBInputAudio, WarnsIfOnlyTheSecondMixerHasAnotherPosition) {
  CurrentWorld().bus = {Mixer(), Selectors({0, 3, 3, 3, 3})};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
  CurrentWorld().bus = {UnreachableMixer(), Selectors({0, 3, 3, 3, 3})};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
}

TEST_F(SetUSBInputAudio, DoesNotUseTheAnswerOfTheFirstMixerForTheSecond) {
  CurrentWorld().bus = {Mixer(), Selectors({})};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 101u);
}

TEST_F(SetUSBInputAudio, DoesNotWarnIfNoMixerCanBeOpened) {
  CurrentWorld().bus = {UnreachableMixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 0), 100u);
}

TEST_F(SetUSBInputAudio, StoresAndPostsEvenIfEveryRequestFails) {
  CurrentWorld().bus = {RefusingMixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 2, 5), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAreArray(Join({{"count"},
                             Visit(1, "40 03 0309 8002 0000 -> stall"),
                             {Written(kD6File, "Output2=5"),
                              "post VRM-D6 InputAudio Change "
                              "{ProductID=10, Channel=2, Index=5} immediately"},
                             Visit(1, "c0 00 0000 8002 0005 -> stall")})));
}

TEST_F(SetUSBInputAudio, PostsEvenIfTheFileCannotBeWritten) {
  CurrentWorld().canWrite = false;
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 2, 5), 100u);
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 2, 6), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", Written(kD6File, "Output2=5"),
                          "post VRM-D6 InputAudio Change "
                          "{ProductID=10, Channel=2, Index=5} immediately",
                          "count",
                          "post VRM-D6 InputAudio Change "
                          "{ProductID=10, Channel=2, Index=6} immediately"));
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
}

TEST_F(SetUSBInputAudio, ReleasesAllObjectsExceptThoseOfTheCountAndOneRecord) {
  CurrentWorld().bus = {OtherDevice(), Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 100u);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.ports = 1, .numbers = 2, .userInfos = 1}));
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 3), 100u);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.ports = 2, .numbers = 4, .userInfos = 1}));
}

}  // namespace
}  // namespace ztk::test
