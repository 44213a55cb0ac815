// SPDX-License-Identifier: MIT
//
// Tests the queries of the complete library with virtual mixers, also with
// faults.
#include "ZTKFunc.h"
#include "support/library_world.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

using virtual_mixer::Fault;
using virtual_mixer::MixerModel;

class LibraryStatus : public LibraryWorld {
 protected:
  void Inject(int mixer, const std::string &text) {
    std::string error;
    const std::optional<Fault> fault = virtual_mixer::ParseFault(text, &error);
    ASSERT_TRUE(fault) << error;
    world().WithMixer(mixer,
                      [&](MixerModel &model) { model.AddFault(*fault); });
  }
  void Reply(int mixer, std::uint16_t reg, const virtual_mixer::Bytes &bytes) {
    world().WithMixer(mixer, [&](MixerModel &model) {
      ASSERT_TRUE(model.SetReply(reg, bytes));
    });
  }
};

TEST_F(LibraryStatus, AsksTheMixerWithTheseRequests) {
  PlugMixers(1);
  Reply(1, 0x8007, {1, 2, 3, 4});
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 16909060u);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 1078u);
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 3, &value), 100u);
  EXPECT_EQ(value, 4u);
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 100u);
  EXPECT_EQ(value, 0u);
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 1: c0 00 0000 8007 0004 -> 01 02 03 04",
                          "mixer 1: c0 00 0000 8001 0002 -> 36 04",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                          "mixer 1: c0 00 0000 8004 0002 -> 00 00"));
}

TEST_F(LibraryStatus, WithoutAMixerOutputsAreZeroOrUnchanged) {
  PlugMixers(0);
  uint32_t value = 77;
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 100u);
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 0, &value), 100u);
  EXPECT_EQ(value, 77u);
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 0u);
  value = 77;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 0u);
}

TEST_F(LibraryStatus, TheLastMixerCountsExceptForTheFirmwareVersion) {
  PlugMixers(2);
  Reply(2, 0x8007, {0, 0, 0, 9});
  Reply(2, 0x8001, {1, 1});
  Reply(2, 0x8004, {1, 0});
  world().WithMixer(2, [](MixerModel &mixer) { mixer.TurnSelector(0, 16); });
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 9u);
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 0, &value), 100u);
  EXPECT_EQ(value, 16u);
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 100u);
  EXPECT_EQ(value, 1u);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 1078u);
}

TEST_F(LibraryStatus, ABadStateIsRefused) {
  PlugMixers(1);
  world().WithMixer(1, [](MixerModel &mixer) { mixer.TurnSelector(0, 17); });
  Reply(1, 0x8004, {2, 0});
  uint32_t value = 77;
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 102u);
  EXPECT_EQ(value, 77u);
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 0, &value), 102u);
  EXPECT_EQ(value, 17u);
}

TEST_F(LibraryStatus, ARefusedReadKeepsThePresetReply) {
  PlugMixers(1);
  Inject(1, "stall");
  uint32_t value = 77;
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 102u);
  EXPECT_EQ(value, 77u);
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 0u);
  value = 77;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 0u);
  // Setters ignore refused requests.
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
}

TEST_F(LibraryStatus, AfterAShortReplyTheOtherBytesKeepTheirPreset) {
  PlugMixers(1);
  Reply(1, 0x8007, {9, 9, 9, 9});
  Inject(1, "short:1");
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 0x09000000u);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 0x36u);
}

TEST_F(LibraryStatus,
       RequestsReturnTheCodeOfAStallATimeOutAndAnUnpluggedMixer) {
  PlugMixers(3);
  Inject(1, "stall");
  Inject(2, "silence");
  const struct {
    uint32_t index;
    usb::Code expected;
  } rows[] = {{0, 0xE000404F}, {1, 0xE00002D6}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.index);
    usb::Connection slot = nullptr;
    ASSERT_EQ(open_pipes(&slot, row.index), 0u);
    std::uint16_t length = 5;
    std::uint8_t buffer[8] = {};
    EXPECT_EQ(DeviceRequest(slot, 0xC0, 0, 0, 0x8002, buffer, &length),
              row.expected);
    EXPECT_EQ(length, 0);
    closeUSB(&slot);
  }
  usb::Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 2), 0u);
  world().Unplug(3);
  EXPECT_EQ(SetMidiChannelSetting(slot, 0), 0xE00002C0u);
  closeUSB(&slot);
}

TEST_F(LibraryStatus, AMixerThatIsPluggedInAgainIsFound) {
  PlugMixers(1);
  world().Unplug(1);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  world().PlugIn(1);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 3), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0000 8003 0000"));
}

}  // namespace
}  // namespace ztk::test
