// SPDX-License-Identifier: MIT
//
// Conversations over USB/IP, byte by byte, without sockets and clocks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "usbip_bytes.h"
#include "virtual-mixer/usbip/usbip_session.h"

namespace ztk::virtual_mixer::usbip {
namespace {

using std::chrono::milliseconds;
using test::FromHex;
using test::ImportRequest;
using test::Join;
using test::ListRequest;
using test::MixerRecord;
using test::Read;
using test::SubmitMessage;
using test::Submitted;
using test::Text;
using test::Unlinked;
using test::UnlinkMessage;
using test::Word;
using test::Write;
using testing::ElementsAre;
using testing::IsEmpty;

// A selector query, as it goes over the wire.
constexpr char kAskSelectors[] = "c0 00 0000 0280 0500";

class UsbipSession : public testing::Test {
 protected:
  void Plug(int mixers) {
    session_.reset();
    devices_ = std::make_unique<Devices>(
        std::vector<Placement>(static_cast<std::size_t>(mixers)),
        [this](const std::string &line) { log_.push_back(line); });
    session_ =
        std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  }
  void Fault(const std::string &text) {
    std::string error;
    const auto fault = ParseFault(text, &error);
    ASSERT_TRUE(fault) << error;
    devices_->Bus().WithMixer(1, [&](MixerModel &m) { m.AddFault(*fault); });
  }
  static void Say(Session *session, const Bytes &bytes) {
    session->Receive(bytes.data(), bytes.size(), Session::Clock::time_point());
  }
  // Sends the bytes and returns the output that is available at once.
  static Bytes Ask(Session *session, const Bytes &bytes) {
    Say(session, bytes);
    return Take(session);
  }
  Bytes Ask(const Bytes &bytes) { return Ask(session_.get(), bytes); }
  static Bytes Take(Session *session) {
    Bytes taken = session->Output();
    session->Sent(taken.size());
    return taken;
  }
  // A session that has the first mixer.
  void Import() {
    Plug(1);
    ASSERT_EQ(Ask(ImportRequest("1-1")),
              Join({FromHex("0111 0003 00000000"), MixerRecord(1)}));
  }
  static Session::Clock::time_point After(milliseconds time) {
    return Session::Clock::time_point() + time;
  }

  std::vector<std::string> log_;
  std::unique_ptr<Devices> devices_;
  std::unique_ptr<Session> session_;
};

TEST_F(UsbipSession, ListsWhatIsServedAndCloses) {
  Plug(2);
  EXPECT_EQ(Ask(ListRequest()),
            Join({FromHex("0111 0005 00000000 00000002"), MixerRecord(1),
                  FromHex("ff000000"), MixerRecord(2), FromHex("ff000000")}));
  EXPECT_TRUE(session_->Ended());
}

TEST_F(UsbipSession, AClientHasTenSecondsToImport) {
  Plug(1);
  EXPECT_EQ(session_->NextDue(), After(std::chrono::seconds(10)));
  // Bytes of an incomplete request do not extend the time limit.
  Ask(FromHex("0111"));
  session_->Continue(After(milliseconds(9999)));
  EXPECT_FALSE(session_->Ended());
  session_->Continue(After(std::chrono::seconds(10)));
  EXPECT_TRUE(session_->Broken());
}

TEST_F(UsbipSession, AClientWithADeviceHasAllTheTimeItNeeds) {
  Import();
  EXPECT_EQ(session_->NextDue(), std::nullopt);
  session_->Continue(After(std::chrono::hours(1)));
  EXPECT_FALSE(session_->Ended());
}

TEST_F(UsbipSession, ListsNothingWhereNothingIsServed) {
  Plug(0);
  EXPECT_EQ(Ask(ListRequest()), FromHex("0111 0005 00000000 00000000"));
}

TEST_F(UsbipSession, ListsNeitherMixersInUseNorUnpluggedOnes) {
  Plug(3);
  devices_->Bus().Unplug(3);
  Session other(devices_.get(), After(milliseconds(0)));
  Ask(&other, ImportRequest("1-1"));
  EXPECT_EQ(Ask(ListRequest()), Join({FromHex("0111 0005 00000000 00000001"),
                                      MixerRecord(2), FromHex("ff000000")}));
}

TEST_F(UsbipSession, DescribesOtherDevices) {
  devices_ = std::make_unique<Devices>(
      std::vector<Placement>{{.kind = DeviceKind::Sibling, .bus = 1},
                             {.kind = DeviceKind::Storage, .bus = 1}},
      nullptr);
  session_ = std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  const Bytes reply = Ask(ListRequest());
  ASSERT_EQ(reply.size(), 12u + 2 * 316);
  const auto at = [&](std::size_t from, std::size_t count) {
    return Bytes(reply.begin() + static_cast<std::ptrdiff_t>(from),
                 reply.begin() + static_cast<std::ptrdiff_t>(from + count));
  };
  EXPECT_EQ(at(12 + 296, 20),
            FromHex("00000002 6666 001c 0100 00 00 00 00 01 01 ff000000"));
  EXPECT_EQ(at(12 + 316 + 296, 20),
            FromHex("00000003 1d6b f003 0100 00 00 00 00 01 01 08000000"));
}

TEST_F(UsbipSession, RefusesAMixerThatIsNotThereOrInUse) {
  Plug(2);
  devices_->Bus().Unplug(2);
  Session holder(devices_.get(), After(milliseconds(0)));
  Ask(&holder, ImportRequest("1-1"));
  const struct {
    std::string busId;
    std::string expected;
  } rows[] = {{"1-1", "0111 0003 00000002"},
              {"1-2", "0111 0003 00000004"},
              {"1-3", "0111 0003 00000004"},
              {"", "0111 0003 00000004"},
              {std::string(32, 'x'), "0111 0003 00000004"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.busId);
    Session session(devices_.get(), After(milliseconds(0)));
    EXPECT_EQ(Ask(&session, ImportRequest(row.busId)), FromHex(row.expected));
    EXPECT_TRUE(session.Ended());
  }
}

TEST_F(UsbipSession, AMixerIsFreeAgainAfterItsClient) {
  Import();
  session_ = std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  EXPECT_EQ(Ask(ImportRequest("1-1")).size(), 320u);
}

TEST_F(UsbipSession, AnswersReadsAndWritesAndLogsThem) {
  Import();
  EXPECT_EQ(Ask(Read(7, kAskSelectors, 5)), Submitted(7, 0, 5, "0004040404"));
  EXPECT_EQ(Ask(Write(8, "40 03 0602 0280 0000")), Submitted(8, 0, 0));
  EXPECT_THAT(log_,
              ElementsAre("mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                          "mixer 1: 40 03 0206 8002 0000"));
}

TEST_F(UsbipSession, TakesMessagesInPiecesOfAnySize) {
  Plug(1);
  const Bytes all = Join({ImportRequest("1-1"), Read(1, kAskSelectors, 5),
                          Write(2, "40 03 000f 0480 0000")});
  for (const std::uint8_t byte : all) Say(session_.get(), {byte});
  const Bytes expected =
      Join({FromHex("0111 0003 00000000"), MixerRecord(1),
            Submitted(1, 0, 5, "0004040404"), Submitted(2, 0, 0)});
  EXPECT_EQ(Take(session_.get()), expected);

  session_ = std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  EXPECT_EQ(Ask(all), expected);
}

TEST_F(UsbipSession, DeliversNoMoreThanTheBufferHolds) {
  Import();
  EXPECT_EQ(Ask(Read(1, kAskSelectors, 2)), Submitted(1, 0, 2, "0004"));
  EXPECT_EQ(Ask(Read(2, "c0 00 0000 0280 ffff", 0xFFFF)),
            Submitted(2, 0, 5, "0004040404"));
}

TEST_F(UsbipSession, TakesTheDataOfAWrite) {
  Import();
  const Bytes write =
      Join({SubmitMessage({.sequence = 3, .length = 3}, "40 03 0000 0280 0300"),
            FromHex("010203")});
  // No mixer knows a write with data, but its end must be found.
  EXPECT_EQ(Ask(Join({write, Read(4, kAskSelectors, 5)})),
            Join({Submitted(3, -32, 0), Submitted(4, 0, 5, "0004040404")}));
}

TEST_F(UsbipSession, StandardRequestsAnswerAsTheDevice) {
  Import();
  const struct {
    const char *name;
    Bytes request;
    Bytes reply;
  } rows[] = {
      {"device descriptor", Read(1, "80 06 0001 0000 1200", 18),
       Submitted(1, 0, 18, "1201 1001 000000 40 6666 1b00 3604 01020301")},
      {"its head", Read(2, "80 06 0001 0000 0800", 8),
       Submitted(2, 0, 8, "1201100100000040")},
      {"configuration", Read(3, "80 06 0002 0000 0900", 9),
       Submitted(3, 0, 9, "090212000101 00c000")},
      {"string", Read(4, "80 06 0203 0904 ff00", 255),
       Submitted(4, 0, 14, "0e03 5600 5200 4d00 2d00 4400 3600")},
      {"no such descriptor", Read(5, "80 06 0006 0000 0a00", 10),
       Submitted(5, -32, 0)},
      {"set configuration", Write(6, "00 09 0100 0000 0000"),
       Submitted(6, 0, 0)},
      {"get configuration", Read(7, "80 08 0000 0000 0100", 1),
       Submitted(7, 0, 1, "01")},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Ask(row.request), row.reply);
  }
}

TEST_F(UsbipSession, ANewClientFindsTheMixerUnconfiguredButAsItWasSet) {
  Import();
  Ask(Write(1, "00 09 0100 0000 0000"));
  EXPECT_TRUE(devices_->Bus().WaitUntilConfigured(0, milliseconds(0)));
  devices_->Bus().WithMixer(1, [](MixerModel &m) { m.TurnSelector(0, 9); });
  session_ = std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  EXPECT_FALSE(devices_->Bus().WaitUntilConfigured(0, milliseconds(0)));
  Ask(ImportRequest("1-1"));
  EXPECT_EQ(Ask(Read(1, "80 08 0000 0000 0100", 1)), Submitted(1, 0, 1, "00"));
  EXPECT_EQ(Ask(Read(2, kAskSelectors, 5)), Submitted(2, 0, 5, "0009040404"));
}

TEST_F(UsbipSession, FaultsAreSeenAsTheKernelSeesThem) {
  const struct {
    std::string fault;
    Bytes reply;
    std::string line;
  } rows[] = {
      {"stall", Submitted(1, -32, 0), "stall"},
      {"short:2", Submitted(1, 0, 2, "0004"), "00 04"},
      {"short:0", Submitted(1, 0, 0), ""},
      {"bytes:0102030405ff", Submitted(1, 0, 5, "0102030405"),
       "01 02 03 04 05"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.fault);
    Import();
    log_.clear();
    Fault(row.fault);
    EXPECT_EQ(Ask(Read(1, kAskSelectors, 5)), row.reply);
    EXPECT_THAT(log_, ElementsAre("mixer 1: c0 00 0000 8002 0005 ->" +
                                  (row.line.empty() ? "" : " " + row.line)));
  }
}

TEST_F(UsbipSession, ADelayedAnswerComesWhenItIsDue) {
  Import();
  Fault("delay:50");
  EXPECT_THAT(Ask(Read(1, kAskSelectors, 5)), IsEmpty());
  EXPECT_EQ(session_->NextDue(), After(milliseconds(50)));
  session_->Continue(After(milliseconds(49)));
  EXPECT_THAT(Take(session_.get()), IsEmpty());
  session_->Continue(After(milliseconds(50)));
  EXPECT_EQ(Take(session_.get()), Submitted(1, 0, 5, "0004040404"));
  EXPECT_EQ(session_->NextDue(), std::nullopt);
}

TEST_F(UsbipSession, ASilentMixerIsGivenUpByItsClient) {
  Import();
  Fault("silence");
  EXPECT_THAT(Ask(Read(1, kAskSelectors, 5)), IsEmpty());
  EXPECT_EQ(session_->NextDue(), std::nullopt);
  EXPECT_THAT(log_, IsEmpty());
  EXPECT_EQ(Ask(UnlinkMessage(2, 1)), Unlinked(2, -104));
  EXPECT_THAT(log_, ElementsAre("mixer 1: c0 00 0000 8002 0005 -> silence"));
}

TEST_F(UsbipSession, AnAnswerThatIsGivenUpDoesNotComeLater) {
  Import();
  Fault("delay:50");
  Ask(Read(1, kAskSelectors, 5));
  Ask(UnlinkMessage(2, 1));
  session_->Continue(After(milliseconds(1000)));
  EXPECT_THAT(Take(session_.get()), IsEmpty());
}

TEST_F(UsbipSession, WhatIsAnsweredAlreadyCannotBeGivenUp) {
  Import();
  Ask(Read(1, kAskSelectors, 5));
  EXPECT_EQ(Ask(UnlinkMessage(2, 1)), Unlinked(2, 0));
  EXPECT_EQ(Ask(UnlinkMessage(3, 77)), Unlinked(3, 0));
}

TEST_F(UsbipSession, PulledOutDuringARequestItSaysNothingMore) {
  Import();
  Fault("unplug@8002");
  EXPECT_EQ(Ask(Read(1, "c0 00 0000 0180 0200", 2)),
            Submitted(1, 0, 2, "3604"));
  EXPECT_THAT(Ask(Read(2, kAskSelectors, 5)), IsEmpty());
  EXPECT_TRUE(session_->Broken());
  EXPECT_THAT(log_, ElementsAre("mixer 1: c0 00 0000 8001 0002 -> 36 04",
                                "mixer 1: c0 00 0000 8002 0005 -> gone"));
  EXPECT_FALSE(devices_->Status(1).pluggedIn);
}

TEST_F(UsbipSession, UnpluggedFromOutsideWhatWaitsHasGone) {
  Import();
  Fault("silence");
  Ask(Read(1, kAskSelectors, 5));
  devices_->Bus().Unplug(1);
  session_->Continue(After(milliseconds(0)));
  EXPECT_TRUE(session_->Broken());
  EXPECT_THAT(log_, ElementsAre("mixer 1: c0 00 0000 8002 0005 -> gone"));
}

TEST_F(UsbipSession, AMixerThatComesBackHasToBeImportedAnew) {
  Import();
  devices_->Bus().Unplug(1);
  devices_->Bus().PlugIn(1);
  EXPECT_THAT(Ask(Read(1, kAskSelectors, 5)), IsEmpty());
  EXPECT_TRUE(session_->Broken());
  session_ = std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
  Ask(ImportRequest("1-1"));
  EXPECT_EQ(Ask(Read(1, kAskSelectors, 5)), Submitted(1, 0, 5, "0004040404"));
}

TEST_F(UsbipSession, RequestsThatNoDeviceHereCanMeetAreRefused) {
  Import();
  EXPECT_EQ(Ask(SubmitMessage(
                {.sequence = 1, .direction = 1, .endpoint = 1, .length = 8},
                "0000000000000000")),
            Submitted(1, -2, 0));
  // The two directions contradict each other.
  EXPECT_EQ(Ask(SubmitMessage({.sequence = 2, .direction = 0, .length = 0},
                              kAskSelectors)),
            Submitted(2, -32, 0));
  EXPECT_EQ(Ask(SubmitMessage({.sequence = 3, .direction = 1, .length = 5},
                              "40 03 0206 0280 0500")),
            Submitted(3, -32, 0));
  // Without data there is nothing to contradict.
  EXPECT_EQ(Ask(SubmitMessage({.sequence = 4}, "c0 00 0000 0280 0000")),
            Submitted(4, 0, 0));
}

TEST_F(UsbipSession, WhoBreaksTheRulesIsLeft) {
  const Bytes good = Read(1, kAskSelectors, 5);
  const struct {
    const char *name;
    bool imported;
    Bytes said;
  } rows[] = {
      {"another version", false, FromHex("0106 8005 00000000")},
      {"unknown request", false, FromHex("0111 8001 00000000")},
      {"another protocol", false, Text("GET / HTTP/1.1\r\n\r\n", 18)},
      {"unknown command", true,
       Join({Word(5), Bytes(good.begin() + 4, good.end())})},
      {"another device", true,
       SubmitMessage({.device = 0x00010003, .direction = 1, .length = 5},
                     kAskSelectors)},
      {"no direction", true, SubmitMessage({.direction = 2}, kAskSelectors)},
      {"endless data", true,
       SubmitMessage({.direction = 0, .length = 0xFFFFFFFF}, kAskSelectors)},
      {"too much data", true,
       SubmitMessage({.direction = 0, .length = 0x10000}, kAskSelectors)},
      {"isochronous", true,
       SubmitMessage({.direction = 1, .endpoint = 1, .packets = 8},
                     "0000000000000000")},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    Import();
    if (!row.imported)
      session_ =
          std::make_unique<Session>(devices_.get(), After(milliseconds(0)));
    EXPECT_THAT(Ask(row.said), IsEmpty());
    EXPECT_TRUE(session_->Broken());
    // The session reads nothing more.
    EXPECT_THAT(Ask(good), IsEmpty());
  }
}

TEST_F(UsbipSession, BothWaysToSayNoPacketsAreUnderstood) {
  Import();
  EXPECT_EQ(
      Ask(SubmitMessage({.direction = 1, .length = 5, .packets = 0xFFFFFFFF},
                        kAskSelectors)),
      Submitted(1, 0, 5, "0004040404"));
}

TEST_F(UsbipSession, WhoLetsRequestsPileUpIsLeft) {
  Import();
  Fault("silence");
  for (std::uint32_t i = 1; i <= 256; ++i)
    Say(session_.get(), Read(i, kAskSelectors, 5));
  EXPECT_FALSE(session_->Broken());
  Say(session_.get(), Read(257, kAskSelectors, 5));
  EXPECT_TRUE(session_->Broken());
}

TEST_F(UsbipSession, WhoDoesNotReadIsNotReadEither) {
  Import();
  while (session_->Output().size() < 1 << 20) {
    ASSERT_TRUE(session_->WantsInput());
    Say(session_.get(), Read(1, kAskSelectors, 5));
  }
  EXPECT_FALSE(session_->WantsInput());
  Take(session_.get());
  EXPECT_TRUE(session_->WantsInput());
}

}  // namespace
}  // namespace ztk::virtual_mixer::usbip
