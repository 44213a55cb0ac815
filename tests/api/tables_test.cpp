// SPDX-License-Identifier: MIT
//
// Tests every entry of every exported table, including the entries that no
// function uses, because programs may read the tables.
#include "api/tables.h"

#include "api/api_test.h"

namespace ztk::test {
namespace {

using testing::ElementsAreArray;
using testing::IsNull;
using testing::StrEq;

class VisibleTables : public ApiTest {};

TEST_F(VisibleTables, InputAudioTextHas43TextsAndANullAtItsEnd) {
  const char *const expected[] = {
      "CH1 Timecode PHONO",        // 0
      "CH1 Timecode CD/LINE",      // 1
      "CH1 Timecode DIGITAL",      // 2
      "CH1 Timecode LINE",         // 3
      "Post CH1 Fader",            // 4
      "CH2 Timecode PHONO",        // 5
      "CH2 Timecode CD/LINE",      // 6
      "CH2 Timecode DIGITAL",      // 7
      "CH2 Timecode LINE",         // 8
      "Post CH2 Fader",            // 9
      "CH3 Timecode PHONO",        // 10
      "CH3 Timecode CD/LINE",      // 11
      "CH3 Timecode DIGITAL",      // 12
      "CH3 Timecode LINE",         // 13
      "Post CH3 Fader",            // 14
      "CH4 Timecode PHONO",        // 15
      "CH4 Timecode CD/LINE",      // 16
      "CH4 Timecode DIGITAL",      // 17
      "CH4 Timecode LINE",         // 18
      "Post CH4 Fader",            // 19
      "Cross Fader A",             // 20
      "Cross Fader B",             // 21
      "MIC",                       // 22
      "REC OUT",                   // 23
      "CH1 Timecode CD",           // 24
      "CH2 Timecode CD",           // 25
      "MIC / AUX Post EQ",         // 26
      "CH1 Control Tone PHONO",    // 27
      "CH1 Control Tone LINE",     // 28
      "CH1 Control Tone DIGITAL",  // 29
      "CH2 Control Tone PHONO",    // 30
      "CH2 Control Tone LINE",     // 31
      "CH2 Control Tone DIGITAL",  // 32
      "CH3 Control Tone PHONO",    // 33
      "CH3 Control Tone LINE",     // 34
      "CH3 Control Tone DIGITAL",  // 35
      "CH4 Control Tone PHONO",    // 36
      "CH4 Control Tone LINE",     // 37
      "CH4 Control Tone DIGITAL",  // 38
      "REC OUT",                   // 39
      "Post AUX Fader",            // 40
      "AUX",                       // 41
      "PARAM ERROR",               // 42
  };
  ASSERT_EQ(std::size(InputAudioText), 44u);
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(Plain(InputAudioText[i]), expected[i]);
  }
  EXPECT_THAT(InputAudioText[43], IsNull());
}

TEST_F(VisibleTables, PulldownTextHasFiveRowsOfEightAndTwoMoreEntries) {
  EXPECT_THAT(PC_INPUT_PULLDOWN_TEXT,
              ElementsAreArray({27, 28, 4,  20, 21, 22, 39, 42,  //
                                30, 31, 9,  20, 21, 22, 39, 42,  //
                                33, 34, 14, 20, 21, 22, 39, 42,  //
                                36, 37, 19, 20, 21, 22, 39, 42,  //
                                39, 4,  9,  14, 19, 20, 21, 22,  //
                                42, 42}));
}

TEST_F(VisibleTables, InputDeviceValuesHaveFiveRowsOfEightAndTwoMore) {
  EXPECT_THAT(
      _convTable_PC_INPUT,
      ElementsAreArray(
          {0x0103, 0x0101, 0x0106, 0x0107, 0x0108, 0x0109, 0x010A, 0x010F,  //
           0x0203, 0x0201, 0x0206, 0x0207, 0x0208, 0x0209, 0x020A, 0x020F,  //
           0x0303, 0x0301, 0x0306, 0x0307, 0x0308, 0x0309, 0x030A, 0x030F,  //
           0x0403, 0x0401, 0x0406, 0x0407, 0x0408, 0x0409, 0x040A, 0x040F,  //
           0x050A, 0x0511, 0x0512, 0x0513, 0x0514, 0x0507, 0x0508, 0x0509,  //
           0x050F, 0x050F}));
}

TEST_F(VisibleTables, OutputAudioHasThreeTexts) {
  EXPECT_THAT(Plain(OutputAudioText), ElementsAre("CH1", "CH2", "AUX"));
}

TEST_F(VisibleTables, OutputTextPositionsEndWithARowOfZeros) {
  EXPECT_THAT(VRMB5_OUT_TEXT, ElementsAreArray({0, 1, 2,  //
                                                0, 1, 2,  //
                                                0, 1, 2,  //
                                                0, 0, 0}));
}

TEST_F(VisibleTables, OutputDeviceValuesCountChannelsFromOne) {
  EXPECT_THAT(_convTableOut_B5, ElementsAreArray({0x0100, 0x0101, 0x0104,  //
                                                  0x0200, 0x0201, 0x0204,  //
                                                  0x0300, 0x0301, 0x0304}));
}

TEST_F(VisibleTables, BoostLevelCodesHaveTheOppositeOrderOfTheTexts) {
  EXPECT_THAT(Plain(BoostLevelText),
              ElementsAre("-5 dB", "-10 dB", "-15 dB", "-19 dB"));
  EXPECT_THAT(_convDbTable, ElementsAre(3, 2, 1, 0));
}

TEST_F(VisibleTables, MidiChannelTextsCountFromOne) {
  EXPECT_THAT(Plain(MidiChannelText),
              ElementsAre("CH 1", "CH 2", "CH 3", "CH 4", "CH 5", "CH 6",
                          "CH 7", "CH 8", "CH 9", "CH 10", "CH 11", "CH 12",
                          "CH 13", "CH 14", "CH 15", "CH 16"));
}

TEST_F(VisibleTables, MidiKeyModeTextsExistAlthoughNothingReadsThem) {
  EXPECT_THAT(Plain(MidiKeyModeText), ElementsAre("Toggle", "Trigger"));
}

}  // namespace
}  // namespace ztk::test
