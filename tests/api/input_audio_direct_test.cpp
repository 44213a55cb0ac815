// SPDX-License-Identifier: MIT
#include "api/api_test.h"

namespace ztk::test {
namespace {

class SetUSBInputAudioDirect : public ApiTest {
 protected:
  // Returns the log line of the value that one call sends.
  static std::string ValueSent(std::uint32_t channel, std::uint32_t high,
                               std::uint32_t source) {
    StartAfresh({Mixer()});
    EXPECT_NE(ZTK_SetUSBInputAudioDirect(10, channel, high, source), 102u);
    return TakeSteps().at(2);
  }
};

TEST_F(SetUSBInputAudioDirect, SendsAndReadsTheSelectorAndNothingElse) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 2, 0, 3), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 1303 8002 0000", "close 1",
                  "open 1", "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                  "close 1"));
}

TEST_F(SetUSBInputAudioDirect, SkipsMixersThatCannotBeOpened) {
  ExpectEveryWalk({.request = "40 03 3107 8002 0000",
                   .secondRequest = "c0 00 0000 8002 0005 -> 00 04 04 04 04"},
                  [] { return ZTK_SetUSBInputAudioDirect(10, 0, 2, 7); });
}

TEST_F(SetUSBInputAudioDirect, IsNeitherRememberedNorAnnounced) {
  CurrentWorld().files[kD6File] = {{"Output2", 5}};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 2, 0, 3), 100u);
  EXPECT_THAT(TakeSteps(), ElementsAre("count"));
  EXPECT_EQ(CurrentWorld().files[kD6File], (fake::Entries{{"Output2", 5}}));
  EXPECT_EQ(CurrentWorld().held, OneCount());
}

TEST_F(SetUSBInputAudioDirect, PacksHighChannelAndSource) {
  const struct {
    std::uint32_t channel, high, source;
    const char *expected;
  } rows[] = {{0, 0, 0, "1100"},  {1, 0, 0, "1200"},  {2, 0, 3, "1303"},
              {3, 0, 15, "140f"}, {4, 0, 15, "150f"}, {0, 1, 1, "2101"},
              {0, 8, 9, "9109"},  {4, 14, 8, "f508"}};
  for (const auto &row : rows) {
    EXPECT_EQ(ValueSent(row.channel, row.high, row.source),
              std::string("mixer 1: 40 03 ") + row.expected + " 8002 0000");
  }
}

TEST_F(SetUSBInputAudioDirect, UsesOnlyTheLowFourBitsOfHigh) {
  const struct {
    std::uint32_t high;
    const char *expected;
  } rows[] = {{0xF, "0303"},        {0x10, "1303"},       {0x1E, "f303"},
              {0x7FFFFFFF, "0303"}, {0x80000000, "1303"}, {0xFFFFFFFE, "f303"},
              {0xFFFFFFFF, "0303"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.high);
    EXPECT_EQ(ValueSent(2, row.high, 3),
              std::string("mixer 1: 40 03 ") + row.expected + " 8002 0000");
  }
}

TEST_F(SetUSBInputAudioDirect, AcceptsSixteenSources) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, 15), 100u);
  TakeCalls();
  for (const std::uint32_t source :
       {16u, 17u, 255u, 256u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, source), 102u) << source;
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

// The thresholds of ZTK_SetUSBInputAudio() are 3 and 2.
TEST_F(SetUSBInputAudioDirect, WarnsBelowSourceTwoWithoutAMixerAndFourWithOne) {
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    for (std::uint32_t source = 0; source < 16; ++source) {
      SCOPED_TRACE("channel " + std::to_string(channel) + ", source " +
                   std::to_string(source));
      StartAfresh();
      EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, channel, 0, source),
                source < 2 ? 101u : 100u);
      StartAfresh({MixerAnswering(0x8002, {.bytes = {0, 3, 3, 3, 3}})});
      EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, channel, 0, source),
                source < 4 ? 101u : 100u);
    }
  }
}

TEST_F(SetUSBInputAudioDirect, DoesNotWarnIfTheSelectorIsAtPositionFour) {
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    SCOPED_TRACE(channel);
    std::vector<std::uint8_t> onlyItIsRight = {0xFF, 0, 0, 0, 0};
    onlyItIsRight.at(channel + 1) = 4;
    StartAfresh({MixerAnswering(0x8002, {.bytes = onlyItIsRight})});
    EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, channel, 0, 0), 100u);
  }
}

TEST_F(SetUSBInputAudioDirect, AlwaysWarnsForTheLastChannelBelowSourceFour) {
  const ZTKResult expected[] = {101, 101, 101, 101, 100};
  for (std::uint32_t source = 0; source < 5; ++source) {
    SCOPED_TRACE(source);
    StartAfresh({MixerAnswering(0x8002, {.bytes = {4, 4, 4, 4, 4, 4}})});
    EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 4, 0, source), expected[source]);
  }
}

TEST_F(SetUSBInputAudioDirect, StopsAtTheFirstMixerForWhichItWarns) {
  CurrentWorld().bus = {MixerAnswering(0x8002, {.bytes = {0, 0, 0, 0, 0}}),
                        Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, 3), 101u);
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(
                  Join({{"count"},
                        Visit(1, "40 03 1103 8002 0000"),
                        Visit(2, "40 03 1103 8002 0000"),
                        Visit(1, "c0 00 0000 8002 0005 -> 00 00 00 00 00")})));
}

TEST_F(SetUSBInputAudioDirect, DoesNotWarnIfNoMixerCanBeOpened) {
  CurrentWorld().bus = {UnreachableMixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, 0), 100u);
}

TEST_F(SetUSBInputAudioDirect, IgnoresTheResultsOfItsRequests) {
  CurrentWorld().bus = {RefusingMixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, 4), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 0, 0, 3), 101u);
}

}  // namespace
}  // namespace ztk::test
