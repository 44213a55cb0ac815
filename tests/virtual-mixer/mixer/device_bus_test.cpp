// SPDX-License-Identifier: MIT
//
// The bus that the sandbox and the USB/IP server share.
#include "virtual-mixer/mixer/device_bus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ztk::virtual_mixer::Answer;
using ztk::virtual_mixer::Bytes;
using ztk::virtual_mixer::Connection;
using ztk::virtual_mixer::Device;
using ztk::virtual_mixer::DeviceBus;
using ztk::virtual_mixer::DeviceKind;
using ztk::virtual_mixer::MixerModel;
using ztk::virtual_mixer::ParseFault;
using ztk::virtual_mixer::Placement;
using ztk::virtual_mixer::SetupPacket;
using ztk::virtual_mixer::TransferStatus;

const SetupPacket kReadSelectors{0xC0, 0, 0, 0x8002, 5};
const SetupPacket kWriteBoost{0x40, 3, 0x0300, 0x8003, 0};
const SetupPacket kGetConfiguration{0x80, 8, 0, 0, 1};
const SetupPacket kSetConfiguration{0x00, 9, 1, 0, 0};

// A keyboard, then two mixers. Changes are recorded.
class Bus : public testing::Test {
 protected:
  Answer Handle(const Connection &connection, const SetupPacket &setup) {
    return bus_.Handle(connection, {.setup = setup, .data = {}});
  }
  Answer Handle(std::size_t device, const SetupPacket &setup) {
    return Handle(bus_.Connect(device), setup);
  }
  void AddFault(const std::string &text) {
    std::string error;
    const auto fault = ParseFault(text, &error);
    ASSERT_TRUE(fault.has_value()) << error;
    bus_.WithMixer(1, [&](MixerModel &mixer) { mixer.AddFault(*fault); });
  }

  std::vector<std::string> changes_;
  std::vector<std::string> log_;
  DeviceBus bus_{{{.kind = DeviceKind::Keyboard, .bus = 1},
                  {.kind = DeviceKind::Mixer, .bus = 1},
                  {.kind = DeviceKind::Mixer, .bus = 2}},
                 DeviceBus::Configuration::ByKernel,
                 [this](const std::string &line) { log_.push_back(line); },
                 [this](const Device &device) {
                   changes_.push_back(device.address.Name() +
                                      (device.pluggedIn ? " in" : " out"));
                 }};
};

TEST_F(Bus, NumbersMixersAndPorts) {
  EXPECT_EQ(bus_.Count(), 3u);
  EXPECT_EQ(bus_.MixerCount(), 2);
  EXPECT_EQ(bus_.OtherCount(), 1);
  EXPECT_EQ(bus_.PositionOf(2), 2u);
  EXPECT_EQ(bus_.At(1).address.Name(), "1-2");
  EXPECT_EQ(bus_.At(2).address.Name(), "2-1");
  EXPECT_EQ(bus_.At(2).descriptors.strings[2], "VIRTUAL0002");
}

TEST_F(Bus, RefusesMoreDevicesThanABusHasPorts) {
  EXPECT_THROW(DeviceBus(std::vector<Placement>(32),
                         DeviceBus::Configuration::ByKernel, nullptr, nullptr),
               std::runtime_error);
}

TEST_F(Bus, AnswersTheDescriptorsOfTheDevice) {
  const auto read = [&](std::uint16_t value, std::uint16_t length) {
    return Handle(1, {0x80, 6, value, 0, length}).data;
  };
  EXPECT_EQ(read(0x0100, 18), (Bytes{18, 1, 0x10, 0x01, 0, 0, 0, 64, 0x66, 0x66,
                                     27, 0, 0x36, 0x04, 1, 2, 3, 1}));
  EXPECT_EQ(read(0x0100, 8).size(), 8U);
  EXPECT_EQ(read(0x0200, 255), (Bytes{9, 2, 18, 0, 1, 1, 0, 0xC0, 0, 9, 4, 0, 0,
                                      0, 0xFF, 0, 0, 0}));
  EXPECT_EQ(read(0x0300, 255), (Bytes{4, 3, 9, 4}));
  EXPECT_EQ(read(0x0302, 255),
            (Bytes{14, 3, 'V', 0, 'R', 0, 'M', 0, '-', 0, 'D', 0, '6', 0}));
}

TEST_F(Bus, StallsStandardRequestsThatNoDeviceKnows) {
  EXPECT_EQ(Handle(1, {0x80, 0x55, 0, 0, 2}).status, TransferStatus::Stall);
  EXPECT_EQ(Handle(1, {0x80, 6, 0x0600, 0, 10}).status, TransferStatus::Stall);
}

TEST_F(Bus, OnlyMixersAnswerVendorRequests) {
  EXPECT_EQ(Handle(1, kReadSelectors).data, (Bytes{0, 4, 4, 4, 4}));
  EXPECT_EQ(Handle(0, kReadSelectors).status, TransferStatus::Stall);
}

TEST_F(Bus, FaultsLeaveStandardRequestsAlone) {
  AddFault("stall");
  EXPECT_EQ(Handle(1, kReadSelectors).status, TransferStatus::Stall);
  EXPECT_EQ(Handle(1, {0x80, 6, 0x0100, 0, 18}).data.size(), 18U);
}

TEST_F(Bus, KeepsTheConfigurationUntilTheDeviceIsUnplugged) {
  EXPECT_EQ(Handle(1, kGetConfiguration).data, (Bytes{0}));
  EXPECT_EQ(Handle(1, kSetConfiguration).status, TransferStatus::Ok);
  EXPECT_EQ(Handle(1, kGetConfiguration).data, (Bytes{1}));
  EXPECT_TRUE(bus_.WaitUntilConfigured(1, std::chrono::milliseconds(0)));
  bus_.Unplug(1);
  bus_.PlugIn(1);
  EXPECT_EQ(Handle(1, kGetConfiguration).data, (Bytes{0}));
  EXPECT_FALSE(bus_.WaitUntilConfigured(1, std::chrono::milliseconds(0)));
}

TEST_F(Bus, KeepsWhatWasSetWhileAMixerIsUnplugged) {
  bus_.WithMixer(1, [](MixerModel &mixer) { mixer.TurnSelector(0, 2); });
  Handle(1, kWriteBoost);
  bus_.Unplug(1);
  EXPECT_EQ(Handle(1, kReadSelectors).status, TransferStatus::Gone);
  EXPECT_EQ(Handle(1, kWriteBoost).status, TransferStatus::Gone);
  bus_.PlugIn(1);
  EXPECT_EQ(Handle(1, kReadSelectors).data, (Bytes{0, 2, 4, 4, 4}));
  bus_.WithMixer(1, [](const MixerModel &mixer) {
    EXPECT_EQ(mixer.LastWritten().at(0x8003), 0x0300);
  });
}

TEST_F(Bus, TellsOfEachChangeOnce) {
  EXPECT_TRUE(bus_.Unplug(2));
  EXPECT_FALSE(bus_.Unplug(2));
  EXPECT_TRUE(bus_.PlugIn(2));
  EXPECT_FALSE(bus_.PlugIn(2));
  EXPECT_THAT(changes_, ElementsAre("2-1 out", "2-1 in"));
}

TEST_F(Bus, AnUnplugFaultUnplugsTheDevice) {
  AddFault("unplug@8002");
  EXPECT_EQ(Handle(1, kWriteBoost).status, TransferStatus::Ok);
  EXPECT_THAT(changes_, IsEmpty());
  EXPECT_EQ(Handle(1, kReadSelectors).status, TransferStatus::Gone);
  EXPECT_THAT(changes_, ElementsAre("1-2 out"));
  bus_.PlugIn(1);
  EXPECT_EQ(Handle(1, kReadSelectors).status, TransferStatus::Ok);
}

TEST_F(Bus, EndsConnectionsOfADeviceThatComesBack) {
  const Connection before = bus_.Connect(1);
  const Connection other = bus_.Connect(2);
  bus_.Unplug(1);
  bus_.PlugIn(1);
  EXPECT_FALSE(bus_.IsValid(before));
  EXPECT_EQ(Handle(before, kReadSelectors).status, TransferStatus::Gone);
  EXPECT_EQ(Handle(other, kReadSelectors).status, TransferStatus::Ok);
  EXPECT_EQ(Handle(1, kReadSelectors).status, TransferStatus::Ok);
}

TEST_F(Bus, DisconnectsOnce) {
  const Connection connection = bus_.Connect(1);
  Handle(connection, kSetConfiguration);
  int visits = 0;
  const auto count = [&](Device & /*device*/) { ++visits; };
  bus_.Disconnect(connection, count);
  bus_.Disconnect(connection, count);
  EXPECT_EQ(visits, 1);
  EXPECT_FALSE(bus_.IsValid(connection));
  EXPECT_EQ(Handle(1, kGetConfiguration).data, (Bytes{0}));
}

TEST_F(Bus, LogsRequestsToMixersOnly) {
  bus_.Log(0, kReadSelectors, TransferStatus::Stall, {});
  bus_.Log(2, kReadSelectors, TransferStatus::Ok, {0, 4});
  EXPECT_THAT(log_, ElementsAre("mixer 2: c0 00 0000 8002 0005 -> 00 04"));
}

}  // namespace
