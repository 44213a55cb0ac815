// SPDX-License-Identifier: MIT
#include "platform/linux/usb_snapshot.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <iterator>

#include "platform/linux/usb_requests.h"

namespace ztk::platform::usb {
namespace {

TEST(PlaceOf, OrdersByBusThenByPortsAsNumbers) {
  const char *const ordered[] = {
      "usb1", "1-1", "1-1.2", "1-1.10", "1-2",    "1-10", "1-10.1.4.1.2.3",
      "usb2", "2-1", "usb10", "10-1",   "usb256", "256-1"};
  for (std::size_t i = 1; i < std::size(ordered); ++i) {
    EXPECT_LT(PlaceOf(ordered[i - 1]), PlaceOf(ordered[i]))
        << ordered[i - 1] << " and " << ordered[i];
  }
}

TEST(PlaceOf, ContainsTheBus) {
  const struct {
    const char *entry;
    int expected;
  } rows[] = {{"usb1", 1}, {"1-4", 1}, {"12-1.3", 12}, {"usb300", 300}};
  for (const auto &row : rows) {
    EXPECT_EQ(BusOf(PlaceOf(row.entry)), row.expected) << row.entry;
  }
}

TEST(NodeOf, WritesBusAndNumberWithAtLeastThreeDigits) {
  const struct {
    const char *entry;
    int number;
    const char *expected;
  } rows[] = {{"1-4", 7, "/dev/bus/usb/001/007"},
              {"12-1.3", 10, "/dev/bus/usb/012/010"},
              {"usb99", 99, "/dev/bus/usb/099/099"},
              {"usb100", 100, "/dev/bus/usb/100/100"},
              {"1000-1", 2147483647, "/dev/bus/usb/1000/2147483647"}};
  for (const auto &row : rows) {
    const DeviceFacts facts{
        .entry = {}, .place = PlaceOf(row.entry), .identity = {}};
    EXPECT_EQ(NodeOf(facts, row.number), row.expected) << row.entry;
  }
}

TEST(ParseDeviceDescriptor, ReadsIdentityAndRefusesOtherDescriptors) {
  std::uint8_t bytes[kDeviceDescriptorLength] = {
      18, 1, 0, 2, 0xEF, 2, 0, 64, 0x66, 0x66, 27, 0, 0, 1, 1, 2, 3, 1};
  DeviceIdentity identity;
  ASSERT_TRUE(ParseDeviceDescriptor(bytes, ByteOrder::Bus, &identity));
  EXPECT_EQ(identity.deviceClass, 0xEF);
  EXPECT_EQ(identity.deviceSubClass, 2);
  EXPECT_EQ(identity.vendor, 0x6666);
  EXPECT_EQ(identity.product, 27);

  bytes[1] = 2;
  EXPECT_FALSE(ParseDeviceDescriptor(bytes, ByteOrder::Bus, &identity));
  bytes[1] = 1;
  bytes[0] = 9;
  EXPECT_FALSE(ParseDeviceDescriptor(bytes, ByteOrder::Bus, &identity));
}

TEST(Request, HasATimeOutOfOneSecond) { EXPECT_EQ(kRequestTimeoutMs, 1000U); }

TEST(CodeOfErrno, ReturnsTheCodeOfEachError) {
  const struct {
    int error;
    Code expected;
  } rows[] = {{EPIPE, 0xE000404F},     {ENODEV, 0xE00002C0},
              {ESHUTDOWN, 0xE00002C0}, {EACCES, 0xE00002E2},
              {EPERM, 0xE00002E2},     {ETIMEDOUT, 0xE00002D6},
              {EBUSY, 0xE00002D5},     {EIO, 0xE00002BC}};
  for (const auto &row : rows) {
    EXPECT_EQ(CodeOfErrno(row.error), row.expected) << row.error;
  }
}

}  // namespace
}  // namespace ztk::platform::usb
