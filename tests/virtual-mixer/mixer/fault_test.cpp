// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ::testing::HasSubstr;
using ztk::virtual_mixer::Fault;
using ztk::virtual_mixer::FormatFault;
using ztk::virtual_mixer::ParseFault;
using ztk::virtual_mixer::SetupPacket;

TEST(ParseFault, KeepsEveryFormAsItIsWritten) {
  for (const char *text :
       {"stall", "silence", "unplug", "delay:1", "delay:60000", "short:0",
        "short:63", "bytes:00", "bytes:0102ff", "stall@8002", "stall@r8002",
        "stall@w8002", "stall*3", "stall@8002*3", "delay:20@w8004*1000000",
        "bytes:0100@8004*1", "unplug@8002"}) {
    SCOPED_TRACE(text);
    std::string error;
    const auto fault = ParseFault(text, &error);
    ASSERT_TRUE(fault.has_value()) << error;
    EXPECT_EQ(FormatFault(*fault), text);
    EXPECT_EQ(error, "");
  }
}

TEST(ParseFault, SaysWhatIsWrongAndWhatIsAccepted) {
  struct Row {
    const char *text;
    const char *wrong;
  };
  const std::vector<Row> rows{
      {"", "unknown fault \"\""},
      {"stal", "unknown fault \"stal\"; nearest: stall; accepted: stall"},
      {"silent", "unknown fault \"silent\"; nearest: silence; accepted"},
      {"delays:20", "unknown fault \"delays\"; nearest: delay:MS; accepted"},
      {"non", "unknown fault \"non\"; nearest: none; accepted"},
      {"Stall", "unknown fault \"Stall\""},
      {"stall:1", "bad or missing amount in fault \"stall:1\""},
      {"delay", "bad or missing amount in fault \"delay\""},
      {"delay:", "bad or missing amount in fault \"delay:\""},
      {"delay:0", "bad or missing amount in fault \"delay:0\""},
      {"delay:60001", "bad or missing amount in fault \"delay:60001\""},
      {"delay:-1", "bad or missing amount in fault \"delay:-1\""},
      {"delay:5s", "bad or missing amount in fault \"delay:5s\""},
      {"short:64", "bad or missing amount in fault \"short:64\""},
      {"bytes:", "bad or missing amount in fault \"bytes:\""},
      {"bytes:1", "bad or missing amount in fault \"bytes:1\""},
      {"bytes:0g", "bad or missing amount in fault \"bytes:0g\""},
      {"stall@", "bad register \"\""},
      {"stall@802", "bad register \"802\""},
      {"stall@0x8002", "bad register \"0x8002\""},
      {"stall@x8002", "bad register \"x8002\""},
      {"stall*", "bad number of times \"\""},
      {"stall*0", "bad number of times \"0\""},
      {"stall*3@8002", "bad number of times \"3@8002\""},
      {"unplug*2", "unplug takes no *TIMES"},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.text);
    std::string error;
    EXPECT_FALSE(ParseFault(row.text, &error).has_value());
    EXPECT_THAT(error, HasSubstr(row.wrong));
    EXPECT_THAT(error, HasSubstr("; accepted: stall, silence, delay:MS, "
                                 "short:N, bytes:HEX, unplug, none; @REG"));
  }
}

TEST(Fits, LooksAtRegisterAndDirection) {
  constexpr SetupPacket kRead{.requestType = 0xC0, .index = 0x8002};
  constexpr SetupPacket kWrite{.requestType = 0x40, .index = 0x8002};
  constexpr SetupPacket kOther{.requestType = 0x40, .index = 0x8004};
  struct Row {
    const char *fault;
    bool read;
    bool write;
    bool other;
  };
  const std::vector<Row> rows{
      {"stall", true, true, true},
      {"stall@8002", true, true, false},
      {"stall@r8002", true, false, false},
      {"stall@w8002", false, true, false},
      {"stall@w8004", false, false, true},
      // A write has no reply that could be cut or replaced.
      {"short:1", true, false, false},
      {"bytes:00", true, false, false},
      {"delay:1", true, true, true},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.fault);
    std::string error;
    const auto fault = ParseFault(row.fault, &error);
    ASSERT_TRUE(fault.has_value()) << error;
    EXPECT_EQ(fault->Fits(kRead), row.read);
    EXPECT_EQ(fault->Fits(kWrite), row.write);
    EXPECT_EQ(fault->Fits(kOther), row.other);
  }
}

TEST(ParseBytes, TakesUpTo64Bytes) {
  using ztk::virtual_mixer::ParseBytes;
  EXPECT_EQ(ParseBytes(std::string(128, 'a'))->size(), 64U);
  EXPECT_FALSE(ParseBytes(std::string(130, 'a')).has_value());
}

}  // namespace
