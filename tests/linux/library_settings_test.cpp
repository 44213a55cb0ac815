// SPDX-License-Identifier: MIT
//
// Tests with the complete library and virtual mixers what the mixer, the
// settings file and the caller receive.
#include "ZTKFunc.h"
#include "support/library_world.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

class LibrarySettings : public LibraryWorld {};

TEST_F(LibrarySettings, SetUSBInputAudioSendsRemembersAndReadsTheSelector) {
  PlugMixers(1);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 100u);
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 1: 40 03 0206 8002 0000",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")),
            SettingsText({{"Output1", 2}}));
}

TEST_F(LibrarySettings, SetUSBInputAudioReachesEveryMixerInBusOrder) {
  Plug({{.kind = DeviceKind::Keyboard, .bus = 1},
        {.kind = DeviceKind::Mixer, .bus = 1},
        {.kind = DeviceKind::Hub, .bus = 2},
        {.kind = DeviceKind::Mixer, .bus = 2},
        {.kind = DeviceKind::Storage, .bus = 2}});
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 7), 100u);
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 1: 40 03 010f 8002 0000",
                          "mixer 2: 40 03 010f 8002 0000",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                          "mixer 2: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
}

TEST_F(LibrarySettings, AnotherProductOfTheMakerIsNotAMixer) {
  Plug({{.kind = DeviceKind::Sibling, .bus = 1},
        {.kind = DeviceKind::Keyboard, .bus = 1}});
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  usb::Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002BCu);
  EXPECT_EQ(slot, nullptr);
}

TEST_F(LibrarySettings, TheConnectionCheckIgnoresTheProductId) {
  PlugMixers(1);
  EXPECT_EQ(CheckUSBAudio(0), 1);
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(ZTK_IsUSBConnection(0), 103u);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
}

TEST_F(LibrarySettings, EachPositionOpensAnotherMixerAndTheNextOneIsAnError) {
  PlugMixers(2);
  usb::Connection first = nullptr;
  usb::Connection second = nullptr;
  usb::Connection third = nullptr;
  EXPECT_EQ(open_pipes(&first, 0), 0u);
  EXPECT_EQ(open_pipes(&second, 1), 0u);
  EXPECT_EQ(open_pipes(&third, 2), 0xE00002BCu);
  EXPECT_EQ(third, nullptr);
  SetMidiChannelSetting(first, 0x0F00);
  SetUSBOutputLevelSetting(second, 0x0300);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0f00 8004 0000",
                                     "mixer 2: 40 03 0300 8003 0000"));
  closeUSB(&first);
  closeUSB(&second);
  closeUSB(&second);
  EXPECT_EQ(first, nullptr);
}

TEST_F(LibrarySettings, AnOccupiedSlotKeepsItsConnection) {
  PlugMixers(1);
  usb::Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  const usb::Connection before = slot;
  EXPECT_EQ(openUSB(&slot, 0), 0xE00002BCu);
  EXPECT_EQ(slot, before);
  closeUSB(&slot);
}

TEST_F(LibrarySettings, TheSetterWarnsIfTheSelectorIsAtAnotherPosition) {
  PlugMixers(1);
  world().WithMixer(
      1, [](virtual_mixer::MixerModel &mixer) { mixer.TurnSelector(1, 3); });
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 1), 101u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 0), 101u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 4, 8), 100u);
}

TEST_F(LibrarySettings, WithoutAMixerTheFirstThreeChoicesWarnAndAreStored) {
  PlugMixers(0);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 101u);
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")),
            SettingsText({{"Output1", 2}}));
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 3), 100u);
  EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(LibrarySettings, TheDirectSetterDoesNotStore) {
  PlugMixers(1);
  EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 2, 0, 3), 100u);
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 1: 40 03 1303 8002 0000",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
  EXPECT_FALSE(fs::exists(home_.SettingsFile("VRM-D6")));
}

TEST_F(LibrarySettings, GettersWithoutAFileReturnDefaultsAndCreateNothing) {
  uint32_t index = 77;
  EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(10, &index), 100u);
  EXPECT_EQ(index, 3u);
  EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, 2, &index), 100u);
  EXPECT_EQ(index, 0u);
  EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, 1, &index), 100u);
  EXPECT_EQ(index, 1u);
  EXPECT_EQ(ZTK_GetCurrentMidiChannelIndex(1, &index), 100u);
  EXPECT_EQ(index, 0u);
  EXPECT_TRUE(fs::is_empty(home_.path()));
}

TEST_F(LibrarySettings, UnknownKeysAreKeptAndATextReadsAsItsNumber) {
  WriteAll(home_.SettingsFile("VRM-D6"),
           "<plist version=\"1.0\"><dict><key>MaxLevel</key>"
           "<string>5</string><key>Foo</key><string>bar</string>"
           "</dict></plist>");
  uint32_t index = 0;
  EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(10, &index), 100u);
  EXPECT_EQ(index, 5u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
  const std::string text = ReadAll(home_.SettingsFile("VRM-D6"));
  EXPECT_NE(text.find("<key>Foo</key>\n\t<string>bar</string>"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("<key>Output0</key>\n\t<integer>1</integer>"),
            std::string::npos)
      << text;
}

TEST_F(LibrarySettings, EachModelHasItsOwnFile) {
  PlugMixers(1);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 1, 2), 100u);
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 9), 100u);
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")),
            SettingsText({{"MaxLevel", 0}}));
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-B5")),
            SettingsText({{"Input1", 2}}));
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-K2")),
            SettingsText({{"MidiChannel", 9}}));
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 1: 40 03 0300 8003 0000",
                          "mixer 1: 40 03 0204 8016 0000",
                          "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04",
                          "mixer 1: 40 03 0900 8004 0000"));
}

TEST_F(LibrarySettings, ReSendingUsesTheDefaultIfNothingIsStored) {
  PlugMixers(1);
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 4), 100u);
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 5), 100u);
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
  EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, 1), 100u);
  EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 050a 8002 0000",
                                     "mixer 1: 40 03 050f 8002 0000",
                                     "mixer 1: 40 03 0000 8003 0000",
                                     "mixer 1: 40 03 0201 8016 0000",
                                     "mixer 1: 40 03 0000 8004 0000"));
}

TEST_F(LibrarySettings, ARememberedValueOutOfRangeIsNotSent) {
  PlugMixers(1);
  WriteAll(home_.SettingsFile("VRM-D6"),
           SettingsText({{"MaxLevel", 9}, {"Output4", 10}, {"Output0", -1}}));
  WriteAll(home_.SettingsFile("VRM-K2"), SettingsText({{"MidiChannel", 9}}));
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 102u);
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 4), 102u);
  EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 0), 102u);
  EXPECT_EQ(ZTK_SetCurrentMidiChannelIndex(1), 102u);
  EXPECT_THAT(TakeLog(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
