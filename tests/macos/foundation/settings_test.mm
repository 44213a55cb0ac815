// SPDX-License-Identifier: MIT
//
// Tests the settings files with the setters and getters.
#include <filesystem>
#include <map>

#include "foundation_test.h"
#include "support/temp_home.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

class MacSettings : public FoundationTest {
 protected:
  // Returns the entries of a model's file, each value as Foundation describes
  // it.
  static std::map<std::string, std::string> Held(const std::string &model) {
    std::map<std::string, std::string> held;
    NSDictionary *file = [NSDictionary
        dictionaryWithContentsOfFile:ObjectOf(SettingsFile(model))];
    for (NSString *key in [file allKeys]) {
      held[[key UTF8String]] =
          [[[file objectForKey:key] description] UTF8String];
    }
    return held;
  }

  static void Put(const std::string &model, const std::string &entries) {
    WriteAll(SettingsFile(model), PropertyList(entries));
  }

  static bool NothingIsWritten() { return fs::is_empty(Preferences()); }
};

using Values = std::map<std::string, std::string>;

TEST_F(MacSettings, AreTheDefaultsWithoutAFileAndNoFileIsMade) {
  std::uint32_t value = 99;
  EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(10, &value), 100u);
  EXPECT_EQ(value, 3u);
  EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, 2, &value), 100u);
  EXPECT_EQ(value, 0u);
  EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, 1, &value), 100u);
  EXPECT_EQ(value, 1u);
  EXPECT_EQ(ZTK_GetCurrentMidiChannelIndex(1, &value), 100u);
  EXPECT_EQ(value, 0u);
  EXPECT_TRUE(NothingIsWritten());
}

TEST_F(MacSettings, AreMergedIntoTheFileWithUnknownKeys) {
  Put("VRM-D6", "<key>MaxLevel</key><integer>2</integer>"
                "<key>Foo</key><string>bar</string>");
  CurrentWorld().bus = {iokit::Mixer()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 2), 100u);
  EXPECT_EQ(Held("VRM-D6"),
            (Values{{"Foo", "bar"}, {"MaxLevel", "2"}, {"Output0", "2"}}));
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 3), 100u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_EQ(Held("VRM-D6"),
            (Values{{"Foo", "bar"}, {"MaxLevel", "0"}, {"Output0", "3"}}));
}

TEST_F(MacSettings, OfEveryKindWithAnIntValueAreRead) {
  Put("VRM-D6", "<key>Output0</key><string>5</string>"
                "<key>Output1</key><real>2.9</real>"
                "<key>Output2</key><true/>"
                "<key>Output3</key><array/>");
  const std::uint32_t expected[] = {5, 2, 1, 0};
  for (std::int32_t channel = 0; channel < 4; ++channel) {
    SCOPED_TRACE(channel);
    std::uint32_t value = 99;
    EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, channel, &value), 100u);
    EXPECT_EQ(value, expected[channel]);
  }
}

TEST_F(MacSettings, OfEachModelAreInASeparateFile) {
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 4, 2), 100u);
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 15), 100u);
  EXPECT_EQ(Held("VRM-D6"), (Values{{"MaxLevel", "1"}}));
  EXPECT_EQ(Held("VRM-B5"), (Values{{"Input4", "2"}}));
  EXPECT_EQ(Held("VRM-K2"), (Values{{"MidiChannel", "15"}}));
}

TEST_F(MacSettings, ReplaceADamagedFileAndKeepIt) {
  WriteAll(SettingsFile("VRM-D6"), "not a property list <");
  std::uint32_t value = 99;
  EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(10, &value), 100u);
  EXPECT_EQ(value, 3u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(Held("VRM-D6"), (Values{{"MaxLevel", "1"}}));
  EXPECT_EQ(ReadAll(SettingsFile("VRM-D6") + ".unreadable-1"),
            "not a property list <");
}

TEST_F(MacSettings, AreNotStoredWithoutAFolder) {
  fs::remove_all(Preferences());
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_FALSE(fs::exists(Preferences()));
}

TEST_F(MacSettings, ThatAreRefusedChangeNothing) {
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 4), 102u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(8, 1), 102u);
  EXPECT_TRUE(NothingIsWritten());
  EXPECT_THAT(CurrentWorld().calls, IsEmpty());
}

TEST_F(MacSettings, AreSentToEveryMixerAndSentAgain) {
  CurrentWorld().bus = {iokit::Mixer(), iokit::Hub(), iokit::Mixer()};
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
  EXPECT_THAT(CurrentWorld().requests,
              ElementsAre("mixer 1: 40 03 0300 8003 0000",
                          "mixer 2: 40 03 0300 8003 0000",
                          "mixer 1: 40 03 0300 8003 0000",
                          "mixer 2: 40 03 0300 8003 0000"));
}

TEST_F(MacSettings, OfAnInputReturnAWarningWithoutAMixer) {
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 101u);
  EXPECT_EQ(Held("VRM-D6"), (Values{{"Output1", "2"}}));
}

TEST_F(MacSettings, BelongToTheModelWhoseNameIsFound) {
  std::uint32_t product = 99;
  EXPECT_EQ(ZTK_GetProductId(TextOf("the vrm-d6 mixer"), &product), 100u);
  EXPECT_EQ(product, 10u);
  ZTKTextRef text = nullptr;
  EXPECT_EQ(ZTK_GetBoostLevelText(10, 1, 0, &text), 100u);
  EXPECT_EQ(StringOf(text), "-10 dB");
}

}  // namespace
}  // namespace ztk::test
