// SPDX-License-Identifier: MIT
#include "platform/linux/bus_connection.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>

namespace ztk::platform::notification_center {
namespace {

// std::chrono::steady_clock is the monotonic clock of Linux.
std::uint64_t Microseconds() {
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::microseconds>(
          std::chrono::steady_clock::now().time_since_epoch())
          .count());
}

TEST(Now, IsTheMonotonicClockInMicroseconds) {
  const std::uint64_t before = Microseconds();
  const std::uint64_t now = Now();
  const std::uint64_t after = Microseconds();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

}  // namespace
}  // namespace ztk::platform::notification_center
