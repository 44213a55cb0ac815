// SPDX-License-Identifier: MIT
//
// The remembered choice of USB input audio: reading it and sending it again.
#include "api/api_test.h"

namespace ztk::test {
namespace {

class GetCurrentUSBInputAudioIndex : public ApiTest {
 protected:
  static std::uint32_t IndexOf(std::int32_t channel) {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, channel, &index), 100u);
    return index;
  }
};

TEST_F(GetCurrentUSBInputAudioIndex, IsZeroWithoutAFileAndCreatesNone) {
  for (std::int32_t channel = 0; channel < 6; ++channel) {
    EXPECT_EQ(IndexOf(channel), 0u) << channel;
  }
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  EXPECT_THAT(TakeSteps(), IsEmpty());
}

TEST_F(GetCurrentUSBInputAudioIndex, IsZeroWithoutALibraryFolderOrAKey) {
  CurrentWorld().files[kD6File] = {
      {"MaxLevel", 2}, {"Input0", 3}, {"output0", 4}};
  EXPECT_EQ(IndexOf(0), 0u);
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(IndexOf(0), 0u);
}

TEST_F(GetCurrentUSBInputAudioIndex, ReadsTheKeyOfItsChannel) {
  CurrentWorld().files[kD6File] = {{"Output0", 11},
                                   {"Output1", 12},
                                   {"Output2", 13},
                                   {"Output3", 14},
                                   {"Output4", 15}};
  CurrentWorld().files[kB5File] = {{"Output0", 21}};
  const std::uint32_t expected[] = {11, 12, 13, 14, 15};
  for (std::int32_t channel = 0; channel < 5; ++channel) {
    EXPECT_EQ(IndexOf(channel), expected[channel]);
  }
}

TEST_F(GetCurrentUSBInputAudioIndex, TakesChannelFiveWhichIsAlwaysZero) {
  CurrentWorld().files[kD6File] = {{"Output5", 3}, {"Output4", 2}};
  EXPECT_EQ(IndexOf(5), 0u);
}

TEST_F(GetCurrentUSBInputAudioIndex, RejectsChannelSixAndNegativeOnes) {
  for (const std::int32_t channel : {6, 7, 2147483647, -1, -6, kLowest}) {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, channel, &index), 102u);
    EXPECT_EQ(index, kUntouched);
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(GetCurrentUSBInputAudioIndex, ReturnsAnyStoredNumberUnchecked) {
  const struct {
    const char *name;
    fake::Value stored;
    std::uint32_t expected;
  } rows[] = {{"zero", 0, 0},
              {"beyond every choice", 99, 99},
              {"the largest", 2147483647, 2147483647},
              {"minus one", -1, 4294967295},
              {"the lowest", kLowest, 2147483648},
              {"a text", "5", 5},
              {"a text that begins with a number", "6 dB", 6},
              {"a text without a number", "five", 0},
              {"another kind counts as absent", std::monostate{}, 0}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    CurrentWorld().files[kD6File] = {{"Output2", row.stored}};
    EXPECT_EQ(IndexOf(2), row.expected);
  }
}

TEST_F(GetCurrentUSBInputAudioIndex, ReadsTheFileAfreshAndHoldsNothing) {
  CurrentWorld().files[kD6File] = {{"Output1", 4}};
  EXPECT_EQ(IndexOf(1), 4u);
  EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kD6File,
                                       "release dictionary"));
  CurrentWorld().files[kD6File] = {{"Output1", 5}};
  EXPECT_EQ(IndexOf(1), 5u);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(GetCurrentUSBInputAudioIndex, ReturnsWhatWasSet) {
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 8), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 3), 100u);
  EXPECT_EQ(IndexOf(4), 8u);
  EXPECT_EQ(IndexOf(0), 3u);
}

class SetCurrentUSBInputAudio : public ApiTest {};

TEST_F(SetCurrentUSBInputAudio, SendsTheRememberedChoiceAndNothingElse) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kD6File] = {{"Output1", 2}};
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 1), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1", "mixer 1: 40 03 0206 8002 0000",
                          "close 1"));
  EXPECT_EQ(CurrentWorld().held, OneCount());
  EXPECT_EQ(CurrentWorld().files[kD6File], (fake::Entries{{"Output1", 2}}));
}

TEST_F(SetCurrentUSBInputAudio, PassesOverMixersThatDoNotOpen) {
  ExpectEveryWalk({.request = "40 03 0306 8002 0000"}, [] {
    CurrentWorld().files[kD6File] = {{"Output2", 2}};
    return ZTK_SetCurrentUSBInputAudio(10, 2);
  });
}

TEST_F(SetCurrentUSBInputAudio, SendsTheFirstChoiceWithoutAFile) {
  const char *const expected[] = {"0103", "0203", "0303", "0403", "050a"};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    SCOPED_TRACE(channel);
    StartAfresh({Mixer()});
    EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, channel), 100u);
    EXPECT_EQ(TakeSteps().at(2), std::string("mixer 1: 40 03 ") +
                                     expected[channel] + " 8002 0000");
    EXPECT_THAT(CurrentWorld().files, IsEmpty());
  }
}

TEST_F(SetCurrentUSBInputAudio, SendsThePlaceholderForChannelFive) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 5), 100u);
  EXPECT_EQ(TakeSteps().at(2), "mixer 1: 40 03 050f 8002 0000");
}

TEST_F(SetCurrentUSBInputAudio, NeverWarns) {
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 100u);
  CurrentWorld().bus = {MixerAnswering(0x8002, {.bytes = {0, 0, 0, 0, 0}})};
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 100u);
  CurrentWorld().bus = {RefusingMixer(), UnreachableMixer()};
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 100u);
}

// The choice is at position channel * 8 + index of one table, from 0 to 41. A
// large index is the choice of another channel.
TEST_F(SetCurrentUSBInputAudio, SendsAnyPositionOfTheTableOfAllChannels) {
  const struct {
    std::uint32_t channel;
    const char *key;
    fake::Value remembered;
    const char *expected;
  } rows[] = {{0, "Output0", 7, "010f"},  {0, "Output0", 8, "0203"},
              {0, "Output0", 39, "0509"}, {0, "Output0", 40, "050f"},
              {0, "Output0", 41, "050f"}, {1, "Output1", 33, "050f"},
              {2, "Output2", 9, "0401"},  {3, "Output3", 8, "050a"},
              {3, "Output3", 17, "050f"}, {4, "Output4", 7, "0509"},
              {4, "Output4", 8, "050f"},  {4, "Output4", 9, "050f"},
              {1, "Output1", "5", "0209"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.key) + " as " + row.expected);
    StartAfresh({Mixer()});
    CurrentWorld().files[kD6File] = {{row.key, row.remembered}};
    EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, row.channel), 100u);
    EXPECT_THAT(
        TakeSteps(),
        ElementsAreArray(Join(
            {{"count"},
             Visit(1, std::string("40 03 ") + row.expected + " 8002 0000")})));
  }
}

// In 32-bit arithmetic a negative index could wrap around to a position of the
// table: index -8 on channel 1 would be position 0.
TEST_F(SetCurrentUSBInputAudio, RejectsAPositionPastTheTableAndSendsNothing) {
  const struct {
    std::uint32_t channel;
    const char *key;
    std::int32_t remembered;
  } rows[] = {{0, "Output0", 42},         {1, "Output1", 34},
              {2, "Output2", 26},         {3, "Output3", 18},
              {4, "Output4", 10},         {0, "Output0", -1},
              {1, "Output1", -8},         {4, "Output4", -32},
              {4, "Output4", -1},         {0, "Output0", kLowest},
              {4, "Output4", 2147483647}, {0, "Output0", 65536}};
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.key) + " = " + std::to_string(row.remembered));
    StartAfresh({Mixer()});
    CurrentWorld().files[kD6File] = {{row.key, row.remembered}};
    EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, row.channel), 102u);
    EXPECT_THAT(TakeSteps(), IsEmpty());
    EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kD6File,
                                         "release dictionary"));
    EXPECT_EQ(CurrentWorld().held, Held{});
  }
}

TEST_F(SetCurrentUSBInputAudio, SendsTheFirstChoiceForAnotherKindOfValue) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kD6File] = {{"Output0", std::monostate{}}};
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 100u);
  EXPECT_EQ(TakeSteps().at(2), "mixer 1: 40 03 0103 8002 0000");
}

TEST_F(SetCurrentUSBInputAudio, RefusesWhatTheGetterRefuses) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t channel : {6u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, channel), 102u) << channel;
  }
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(8, 0), 102u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
