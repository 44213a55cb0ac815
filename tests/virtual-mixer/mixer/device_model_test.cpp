// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/device_model.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ztk::virtual_mixer::Answer;
using ztk::virtual_mixer::Bytes;
using ztk::virtual_mixer::FormatFault;
using ztk::virtual_mixer::MixerModel;
using ztk::virtual_mixer::ParseFault;
using ztk::virtual_mixer::SetupPacket;
using ztk::virtual_mixer::TransferStatus;

Answer Read(MixerModel *mixer, std::uint16_t index, std::uint16_t length) {
  return mixer->Handle({.requestType = 0xC0,
                        .request = 0,
                        .value = 0,
                        .index = index,
                        .length = length});
}

Answer Write(MixerModel *mixer, std::uint16_t index, std::uint16_t value) {
  return mixer->Handle({.requestType = 0x40,
                        .request = 3,
                        .value = value,
                        .index = index,
                        .length = 0});
}

void AddFault(MixerModel *mixer, const std::string &text) {
  std::string error;
  const auto fault = ParseFault(text, &error);
  ASSERT_TRUE(fault.has_value()) << error;
  mixer->AddFault(*fault);
}

std::vector<std::string> FaultTexts(const MixerModel &mixer) {
  std::vector<std::string> texts;
  for (const auto &fault : mixer.Faults()) texts.push_back(FormatFault(fault));
  return texts;
}

TEST(MixerModel, RepliesToEveryRegisterThatIsRead) {
  struct Row {
    const char *name;
    std::uint16_t index;
    std::uint16_t length;
    Bytes expected;
  };
  const std::vector<Row> rows{
      {"firmware", 0x8001, 2, {0x36, 0x04}},
      {"selectors", 0x8002, 5, {0, 4, 4, 4, 4}},
      {"Serato", 0x8004, 2, {0, 0}},
      {"port", 0x8006, 2, {0, 0}},
      {"certification level", 0x8007, 4, {0, 0, 0, 1}},
      {"less than there is", 0x8002, 4, {0, 4, 4, 4}},
      {"more than there is", 0x8002, 64, {0, 4, 4, 4, 4}},
      {"nothing", 0x8002, 0, {}},
  };
  MixerModel mixer;
  for (const Row &row : rows) {
    SCOPED_TRACE(row.name);
    const Answer answer = Read(&mixer, row.index, row.length);
    EXPECT_EQ(answer.status, TransferStatus::Ok);
    EXPECT_EQ(answer.data, row.expected);
    EXPECT_EQ(answer.delay.count(), 0);
  }
}

TEST(MixerModel, RemembersTheLastValueOfEveryRegisterThatIsWritten) {
  MixerModel mixer;
  for (const auto &[index, value] : mixer.LastWritten()) {
    SCOPED_TRACE(index);
    EXPECT_EQ(value, std::nullopt);
  }
  std::uint16_t value = 0x0100;
  for (const int index : {0x8002, 0x8003, 0x8004, 0x8005, 0x8016}) {
    SCOPED_TRACE(index);
    const auto number = static_cast<std::uint16_t>(index);
    EXPECT_EQ(Write(&mixer, number, 0xFFFF).status, TransferStatus::Ok);
    EXPECT_EQ(Write(&mixer, number, ++value).status, TransferStatus::Ok);
  }
  EXPECT_THAT(mixer.LastWritten(),
              ElementsAre(std::pair(0x8002, 0x0101), std::pair(0x8003, 0x0102),
                          std::pair(0x8004, 0x0103), std::pair(0x8005, 0x0104),
                          std::pair(0x8016, 0x0105)));
}

TEST(MixerModel, KeepsReadingAndWritingOneNumberApart) {
  MixerModel mixer;
  Write(&mixer, 0x8002, 0x0206);
  Write(&mixer, 0x8004, 0x0F00);
  EXPECT_EQ(Read(&mixer, 0x8002, 5).data, (Bytes{0, 4, 4, 4, 4}));
  EXPECT_EQ(Read(&mixer, 0x8004, 2).data, (Bytes{0, 0}));
}

TEST(MixerModel, StallsWhatNoMixerKnows) {
  struct Row {
    const char *name;
    SetupPacket setup;
  };
  const std::vector<Row> rows{
      {"unknown register read", {0xC0, 0, 0, 0x8000, 2}},
      {"a register only written", {0xC0, 0, 0, 0x8003, 2}},
      {"a register only read", {0x40, 3, 0, 0x8001, 0}},
      {"unknown register written", {0x40, 3, 0, 0x9999, 0}},
      {"other request number", {0xC0, 3, 0, 0x8001, 2}},
      {"other write number", {0x40, 0, 0, 0x8002, 0}},
      {"a value in a read", {0xC0, 0, 1, 0x8001, 2}},
      {"data in a write", {0x40, 3, 0, 0x8002, 2}},
      {"to the interface", {0xC1, 0, 0, 0x8001, 2}},
      {"a class request", {0xA0, 0, 0, 0x8001, 2}},
  };
  MixerModel mixer;
  for (const Row &row : rows) {
    SCOPED_TRACE(row.name);
    const Answer answer = mixer.Handle(row.setup);
    EXPECT_EQ(answer.status, TransferStatus::Stall);
    EXPECT_THAT(answer.data, IsEmpty());
  }
  EXPECT_EQ(mixer.LastWritten().at(0x8002), std::nullopt);
}

TEST(TurnSelector, ShowsInTheReplyAndOnlyThere) {
  MixerModel mixer;
  EXPECT_TRUE(mixer.TurnSelector(0, 1));
  EXPECT_TRUE(mixer.TurnSelector(3, 255));
  EXPECT_FALSE(mixer.TurnSelector(4, 1));
  EXPECT_FALSE(mixer.TurnSelector(-1, 1));
  EXPECT_EQ(Read(&mixer, 0x8002, 5).data, (Bytes{0, 1, 4, 4, 255}));
  EXPECT_EQ(mixer.SelectorPosition(0), 1);
  EXPECT_EQ(mixer.SelectorPosition(1), 4);
}

TEST(TurnSelector, WorksAfterAReplyThatIsTooShort) {
  MixerModel mixer;
  EXPECT_TRUE(mixer.SetReply(0x8002, {7}));
  EXPECT_EQ(mixer.SelectorPosition(2), 0);
  EXPECT_TRUE(mixer.TurnSelector(2, 3));
  EXPECT_EQ(Read(&mixer, 0x8002, 5).data, (Bytes{7, 0, 0, 3}));
}

TEST(SetReply, ReplacesWhatARegisterReplies) {
  MixerModel mixer;
  EXPECT_TRUE(mixer.SetReply(0x8007, {1, 2, 3, 4}));
  EXPECT_FALSE(mixer.SetReply(0x8003, {1}));
  EXPECT_EQ(Read(&mixer, 0x8007, 4).data, (Bytes{1, 2, 3, 4}));
}

TEST(AddFault, ChangesTheAnswer) {
  struct Row {
    const char *fault;
    TransferStatus status;
    Bytes expected;
    int delay;
  };
  const std::vector<Row> rows{
      {"stall", TransferStatus::Stall, {}, 0},
      {"silence", TransferStatus::Silence, {}, 0},
      {"delay:250", TransferStatus::Ok, {0, 4, 4, 4, 4}, 250},
      {"short:2", TransferStatus::Ok, {0, 4}, 0},
      {"short:0", TransferStatus::Ok, {}, 0},
      {"short:9", TransferStatus::Ok, {0, 4, 4, 4, 4}, 0},
      {"bytes:0102", TransferStatus::Ok, {1, 2}, 0},
      {"bytes:010203040506", TransferStatus::Ok, {1, 2, 3, 4, 5}, 0},
      {"unplug", TransferStatus::Gone, {}, 0},
      {"stall@r8002", TransferStatus::Stall, {}, 0},
      {"stall@w8002", TransferStatus::Ok, {0, 4, 4, 4, 4}, 0},
      {"stall@8001", TransferStatus::Ok, {0, 4, 4, 4, 4}, 0},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.fault);
    MixerModel mixer;
    AddFault(&mixer, row.fault);
    const Answer answer = Read(&mixer, 0x8002, 5);
    EXPECT_EQ(answer.status, row.status);
    EXPECT_EQ(answer.data, row.expected);
    EXPECT_EQ(answer.delay.count(), row.delay);
  }
}

TEST(AddFault, KeepsAWriteThatFailedFromCounting) {
  MixerModel mixer;
  AddFault(&mixer, "stall");
  EXPECT_EQ(Write(&mixer, 0x8003, 0x0300).status, TransferStatus::Stall);
  AddFault(&mixer, "silence");
  EXPECT_EQ(Write(&mixer, 0x8003, 0x0300).status, TransferStatus::Silence);
  EXPECT_EQ(mixer.LastWritten().at(0x8003), std::nullopt);
  AddFault(&mixer, "delay:5");
  EXPECT_EQ(Write(&mixer, 0x8003, 0x0300).status, TransferStatus::Ok);
  EXPECT_EQ(mixer.LastWritten().at(0x8003), 0x0300);
}

TEST(AddFault, EndsAfterItsTimes) {
  MixerModel mixer;
  AddFault(&mixer, "stall@8002*2");
  EXPECT_EQ(Read(&mixer, 0x8001, 2).status, TransferStatus::Ok);
  EXPECT_EQ(Read(&mixer, 0x8002, 5).status, TransferStatus::Stall);
  EXPECT_THAT(FaultTexts(mixer), ElementsAre("stall@8002*1"));
  EXPECT_EQ(Read(&mixer, 0x8002, 5).status, TransferStatus::Stall);
  EXPECT_EQ(Read(&mixer, 0x8002, 5).status, TransferStatus::Ok);
  EXPECT_THAT(mixer.Faults(), IsEmpty());
}

TEST(AddFault, LetsTheNewestCount) {
  MixerModel mixer;
  AddFault(&mixer, "stall@8002");
  AddFault(&mixer, "short:1");
  EXPECT_EQ(Read(&mixer, 0x8002, 5).data, (Bytes{0}));
  // A write has no reply to be cut, so the older fault still applies to it.
  EXPECT_EQ(Write(&mixer, 0x8002, 1).status, TransferStatus::Stall);
  AddFault(&mixer, "silence");
  EXPECT_THAT(FaultTexts(mixer), ElementsAre("stall@8002", "silence"));
  mixer.ClearFaults();
  EXPECT_EQ(Read(&mixer, 0x8002, 5).status, TransferStatus::Ok);
}

TEST(AddFault, UnplugEndsAllFaultsOfTheMixer) {
  MixerModel mixer;
  AddFault(&mixer, "stall@8001");
  AddFault(&mixer, "unplug@8002");
  EXPECT_EQ(Read(&mixer, 0x8002, 5).status, TransferStatus::Gone);
  EXPECT_THAT(mixer.Faults(), IsEmpty());
  EXPECT_EQ(Read(&mixer, 0x8001, 2).status, TransferStatus::Ok);
}

}  // namespace
