// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/request_line.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using ztk::virtual_mixer::RequestLine;
using ztk::virtual_mixer::SetupPacket;
using ztk::virtual_mixer::TransferStatus;

constexpr SetupPacket kRead{.requestType = 0xC0,
                            .request = 0,
                            .value = 0,
                            .index = 0x8002,
                            .length = 5};
constexpr SetupPacket kWrite{.requestType = 0x40,
                             .request = 3,
                             .value = 0x0206,
                             .index = 0x8002,
                             .length = 0};

TEST(RequestLine, HasOneFormForEachEnding) {
  struct Row {
    const char *name;
    int mixer;
    SetupPacket setup;
    TransferStatus status;
    std::vector<std::uint8_t> bytes;
    const char *expected;
  };
  const std::vector<Row> rows{
      {"write",
       1,
       kWrite,
       TransferStatus::Ok,
       {},
       "mixer 1: 40 03 0206 8002 0000"},
      {"read",
       1,
       kRead,
       TransferStatus::Ok,
       {0, 4, 4, 4, 4},
       "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"},
      {"second mixer, digits above 9",
       12,
       kRead,
       TransferStatus::Ok,
       {0xAB, 0xFF},
       "mixer 12: c0 00 0000 8002 0005 -> ab ff"},
      {"read of nothing",
       1,
       kRead,
       TransferStatus::Ok,
       {},
       "mixer 1: c0 00 0000 8002 0005 ->"},
      {"stalled read",
       1,
       kRead,
       TransferStatus::Stall,
       {1},
       "mixer 1: c0 00 0000 8002 0005 -> stall"},
      {"stalled write",
       1,
       kWrite,
       TransferStatus::Stall,
       {},
       "mixer 1: 40 03 0206 8002 0000 -> stall"},
      {"silence",
       1,
       kRead,
       TransferStatus::Silence,
       {},
       "mixer 1: c0 00 0000 8002 0005 -> silence"},
      {"gone",
       1,
       kRead,
       TransferStatus::Gone,
       {},
       "mixer 1: c0 00 0000 8002 0005 -> gone"},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(RequestLine(row.mixer, row.setup, row.status, row.bytes.data(),
                          row.bytes.size()),
              row.expected);
  }
}

TEST(RequestLine, WritesEveryFieldAtItsFullWidth) {
  EXPECT_EQ(RequestLine(1,
                        {.requestType = 0x0A,
                         .request = 0x0B,
                         .value = 0x000C,
                         .index = 0x000D,
                         .length = 0xFFFF},
                        TransferStatus::Ok),
            "mixer 1: 0a 0b 000c 000d ffff");
}

}  // namespace
