// SPDX-License-Identifier: MIT
//
// Tests the requests that are sent over an open connection.
#include <array>

#include "support/core_test.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

using fake::Answer;
using usb::Code;
using usb::Connection;

constexpr Code kStalled = 0xE000404F;

class RequestTest : public CoreTest {
 protected:
  // Returns a connection to the only mixer, and clears the log.
  Connection Open(const fake::Device &mixer) {
    CurrentWorld().bus = {mixer};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), 0u);
    TakeSteps();
    TakeCalls();
    return slot;
  }
};

class DeviceRequestTest : public RequestTest {};

TEST_F(DeviceRequestTest, SendsTheFiveArguments) {
  const Connection device = Open(MixerAnswering(0x1234, {.bytes = {0xAB}}));
  std::array<std::uint8_t, 8> data{};
  std::uint16_t length = 0x0008;
  EXPECT_EQ(
      DeviceRequest(device, 0xA1, 0x56, 0x789A, 0x1234, data.data(), &length),
      0u);
  EXPECT_THAT(TakeSteps(), ElementsAre("mixer 1: a1 56 789a 1234 0008 -> ab"));
  EXPECT_THAT(data, ElementsAre(0xAB, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(DeviceRequestTest, SendsOneRequestAndNothingElse) {
  const Connection device = Open(Mixer());
  std::uint16_t word = 0;
  std::uint16_t length = 0;
  EXPECT_EQ(DeviceRequest(device, 0x40, 3, 1, 0x8002, &word, &length), 0u);
  EXPECT_THAT(TakeCalls(), ElementsAre("request"));
}

TEST_F(DeviceRequestTest, ReturnsTheNumberOfTransferredBytes) {
  const struct {
    const char *name;
    Answer answer;
    Code expected;
    std::uint16_t expectedLength;
  } kRows[] = {
      {"all", {.result = 0, .bytes = {1, 2, 3, 4, 5}}, 0, 5},
      {"fewer", {.result = 0, .bytes = {1, 2}}, 0, 2},
      {"none", {.result = 0, .bytes = {}}, 0, 0},
      {"failed", {.result = 0xE000404F, .bytes = {}}, 0xE000404F, 0},
      {"failed late",
       {.result = 0xE00002D6, .bytes = {1, 2, 3}},
       0xE00002D6,
       3},
  };
  for (const auto &row : kRows) {
    SCOPED_TRACE(row.name);
    const Connection device = Open(MixerAnswering(0x8002, row.answer));
    std::array<std::uint8_t, 5> data{};
    std::uint16_t length = 5;
    EXPECT_EQ(DeviceRequest(device, 0xC0, 0, 0, 0x8002, data.data(), &length),
              row.expected);
    EXPECT_EQ(length, row.expectedLength);
  }
}

TEST_F(DeviceRequestTest, ReturnsTheResultUnchanged) {
  for (const Code code : {Code{1}, Code{0xE00002C5}, Code{0xFFFFFFFF}}) {
    SCOPED_TRACE(code);
    fake::Device mixer = Mixer();
    mixer.writeResult = code;
    const Connection device = Open(mixer);
    std::uint16_t word = 0;
    std::uint16_t length = 0;
    EXPECT_EQ(DeviceRequest(device, 0x40, 3, 0, 0x8002, &word, &length), code);
    EXPECT_THAT(TakeCalls(), ElementsAre("request"))
        << "the request was repeated";
  }
}

TEST_F(DeviceRequestTest, DoesNotChangeTheDataOfAWrite) {
  const Connection device = Open(Mixer());
  std::uint16_t word = 0xBEEF;
  std::uint16_t length = 0;
  EXPECT_EQ(DeviceRequest(device, 0x40, 3, 0x0F00, 0x8004, &word, &length), 0u);
  EXPECT_EQ(word, 0xBEEF);
  EXPECT_EQ(length, 0);
}

struct ReadRow {
  const char *name;
  Code (*read)(Connection, std::uint8_t *, std::uint16_t);
  std::uint16_t reg;
  std::uint16_t length;
  std::vector<std::uint8_t> bytes;
  const char *expected;
};

const ReadRow kReads[] = {
    {.name = "GetFirmwareVersionNumber",
     .read = GetFirmwareVersionNumber,
     .reg = 0x8001,
     .length = 2,
     .bytes = {0x36, 0x04},
     .expected = "mixer 1: c0 00 0000 8001 0002 -> 36 04"},
    {.name = "GetInputSelectorInfo",
     .read = GetInputSelectorInfo,
     .reg = 0x8002,
     .length = 5,
     .bytes = {9, 1, 2, 3, 4},
     .expected = "mixer 1: c0 00 0000 8002 0005 -> 09 01 02 03 04"},
    {.name = "GetInputSelectorInfo, 4 bytes",
     .read = GetInputSelectorInfo,
     .reg = 0x8002,
     .length = 4,
     .bytes = {9, 1, 2, 3},
     .expected = "mixer 1: c0 00 0000 8002 0004 -> 09 01 02 03"},
    {.name = "GetSeratoActiveInfo",
     .read = GetSeratoActiveInfo,
     .reg = 0x8004,
     .length = 2,
     .bytes = {1, 0},
     .expected = "mixer 1: c0 00 0000 8004 0002 -> 01 00"},
    {.name = "GetPortInfo",
     .read = GetPortInfo,
     .reg = 0x8006,
     .length = 2,
     .bytes = {1, 0},
     .expected = "mixer 1: c0 00 0000 8006 0002 -> 01 00"},
    {.name = "GetCertifyLevel",
     .read = GetCertifyLevel,
     .reg = 0x8007,
     .length = 4,
     .bytes = {1, 2, 3, 4},
     .expected = "mixer 1: c0 00 0000 8007 0004 -> 01 02 03 04"},
};

class ReadRequest : public RequestTest {};

TEST_F(ReadRequest, ReadsItsRegisterWithTheGivenLength) {
  for (const ReadRow &row : kReads) {
    SCOPED_TRACE(row.name);
    const Connection device =
        Open(MixerAnswering(row.reg, {.bytes = row.bytes}));
    std::vector<std::uint8_t> buffer(row.length, 0xEE);
    EXPECT_EQ(row.read(device, buffer.data(), row.length), 0u);
    EXPECT_EQ(buffer, row.bytes);
    EXPECT_THAT(TakeSteps(), ElementsAre(row.expected));
  }
}

TEST_F(ReadRequest, AcceptsAnyLength) {
  const Connection device = Open(MixerAnswering(0x8002, {.bytes = {}}));
  std::vector<std::uint8_t> buffer(0xFFFF);
  EXPECT_EQ(GetInputSelectorInfo(device, buffer.data(), 0xFFFF), 0u);
  EXPECT_EQ(GetInputSelectorInfo(device, buffer.data(), 0), 0u);
  EXPECT_THAT(TakeSteps(), ElementsAre("mixer 1: c0 00 0000 8002 ffff ->",
                                       "mixer 1: c0 00 0000 8002 0000 ->"));
}

TEST_F(ReadRequest, DoesNotChangeTheBufferAfterAShortReply) {
  for (const ReadRow &row : kReads) {
    SCOPED_TRACE(row.name);
    const Connection device = Open(MixerAnswering(row.reg, {.bytes = {7}}));
    std::vector<std::uint8_t> buffer(row.length, 0xEE);
    EXPECT_EQ(row.read(device, buffer.data(), row.length), 0u);
    EXPECT_EQ(buffer[0], 7);
    EXPECT_EQ(buffer[1], 0xEE);
  }
}

TEST_F(ReadRequest, ReturnsTheResultOfTheTransfer) {
  for (const ReadRow &row : kReads) {
    SCOPED_TRACE(row.name);
    const Connection device =
        Open(MixerAnswering(row.reg, {.result = kStalled, .bytes = {}}));
    std::vector<std::uint8_t> buffer(row.length, 0xEE);
    EXPECT_EQ(row.read(device, buffer.data(), row.length), 0xE000404F);
    EXPECT_EQ(buffer, std::vector<std::uint8_t>(row.length, 0xEE));
    EXPECT_THAT(TakeCalls(), ElementsAre("request"));
  }
}

struct WriteRow {
  const char *name;
  Code (*write)(Connection, std::uint16_t);
  std::uint16_t value;
  const char *expected;
};

constexpr WriteRow kWrites[] = {
    {.name = "SetMixerOutputSetting",
     .write = SetMixerOutputSetting,
     .value = 0x0206,
     .expected = "mixer 1: 40 03 0206 8002 0000"},
    {.name = "SetMixerInputSetting",
     .write = SetMixerInputSetting,
     .value = 0x0102,
     .expected = "mixer 1: 40 03 0102 8016 0000"},
    {.name = "SetUSBOutputLevelSetting, level code 3",
     .write = SetUSBOutputLevelSetting,
     .value = 0x0300,
     .expected = "mixer 1: 40 03 0300 8003 0000"},
    {.name = "SetUSBOutputLevelSetting, level code 0",
     .write = SetUSBOutputLevelSetting,
     .value = 0,
     .expected = "mixer 1: 40 03 0000 8003 0000"},
    {.name = "SetMidiChannelSetting, channel 16",
     .write = SetMidiChannelSetting,
     .value = 0x0F00,
     .expected = "mixer 1: 40 03 0f00 8004 0000"},
    {.name = "SetMidiKeyModeSetting",
     .write = SetMidiKeyModeSetting,
     .value = 0xFFFF,
     .expected = "mixer 1: 40 03 ffff 8005 0000"},
};

class WriteRequest : public RequestTest {};

TEST_F(WriteRequest, SendsTheValueToItsRegisterWithoutADataStage) {
  for (const WriteRow &row : kWrites) {
    SCOPED_TRACE(row.name);
    const Connection device = Open(Mixer());
    EXPECT_EQ(row.write(device, row.value), 0u);
    EXPECT_THAT(TakeSteps(), ElementsAre(row.expected));
    EXPECT_THAT(TakeCalls(), ElementsAre("request"));
  }
}

TEST_F(WriteRequest, ReturnsTheResultOfTheTransfer) {
  fake::Device mixer = Mixer();
  mixer.writeResult = kStalled;
  for (const WriteRow &row : kWrites) {
    SCOPED_TRACE(row.name);
    const Connection device = Open(mixer);
    EXPECT_EQ(row.write(device, row.value), 0xE000404F);
    EXPECT_THAT(TakeCalls(), ElementsAre("request"));
  }
}

}  // namespace
}  // namespace ztk::test
