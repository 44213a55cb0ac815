// SPDX-License-Identifier: MIT
//
// What programs see in the sandbox: devices, answers, failures, the log.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "virtual-mixer/sandbox/sandbox.h"
#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class World : public ToolTest {};

TEST(SpreadDevices, PutsOtherDevicesBeforeAndAfterTheMixers) {
  const auto text = [](int mixers, int others, int buses) {
    std::string names;
    for (const Placement &one : SpreadDevices(mixers, others, buses)) {
      names += std::to_string(one.bus);
      names += one.kind == DeviceKind::Mixer ? "M " : "- ";
    }
    return names;
  };
  EXPECT_EQ(text(0, 0, 1), "");
  EXPECT_EQ(text(1, 0, 1), "1M ");
  EXPECT_EQ(text(2, 3, 1), "1- 1- 1M 1M 1- ");
  EXPECT_EQ(text(3, 1, 2), "1- 1M 2M 2M ");
  EXPECT_EQ(SpreadDevices(32, 0, 1).back().bus, 2);
  EXPECT_EQ(SpreadDevices(32, 64, 1).back().bus, 4);
}

TEST_F(World, HoldsNoMixerWhenNoneIsAskedFor) {
  const ToolResult result = Inside({"-n", "0"}, "$PROBE list");
  EXPECT_EQ(result.out, "001/001 usb1 1d6b:0002\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(World, HoldsOneMixerByDefault) {
  const ToolResult result = Inside({}, "$PROBE list");
  EXPECT_THAT(SplitLines(result.out),
              ElementsAre("001/001 usb1 1d6b:0002", "001/002 1-1 6666:001b"));
}

TEST_F(World, NumbersDevicesAlongTheBuses) {
  const ToolResult result = Inside(
      {"-n", "3", "--other-devices", "3", "--buses", "2"}, "$PROBE list");
  EXPECT_THAT(SplitLines(result.out),
              ElementsAre("001/001 usb1 1d6b:0002", "001/002 1-1 6666:001c",
                          "001/003 1-2 1d6b:f001", "001/004 1-3 6666:001b",
                          "002/001 usb2 1d6b:0002", "002/002 2-1 6666:001b",
                          "002/003 2-2 6666:001b", "002/004 2-3 1d6b:f002"));
}

TEST_F(World, HoldsAHundredAndTwentySevenMixersInTheirOrder) {
  const ToolResult result =
      Inside({"-n", "127", "--selector", "1:1=1", "--selector", "127:1=9"},
             "$PROBE list | grep -c 6666:001b; $PROBE read 1 8002 2; "
             "$PROBE read 127 8002 2; $PROBE read 128 8002 2");
  EXPECT_EQ(result.out, "127\n2: 00 01\n2: 00 09\nno such mixer\n");
}

TEST_F(World, HasTheAttributesOfARealOne) {
  const ToolResult result = Inside(
      {"-n", "2"},
      "cd /sys/bus/usb/devices/1-2 && for name in busnum devnum devpath "
      "idVendor idProduct bDeviceClass bcdDevice speed manufacturer product "
      "serial bConfigurationValue dev; do echo $name $(cat "
      "/sys/bus/usb/devices/1-2/$name); done; wc -c < "
      "/sys/bus/usb/devices/1-2/descriptors; grep DEVNAME "
      "/sys/bus/usb/devices/1-2/uevent; cat "
      "/sys/bus/usb/devices/1-2:1.0/bInterfaceClass; ls -l "
      "/dev/bus/usb/001/003 | cut -c1");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("busnum 1", "devnum 3", "devpath 2", "idVendor 6666",
                  "idProduct 001b", "bDeviceClass 00", "bcdDevice 0436",
                  "speed 12", "manufacturer Tarvix", "product VRM-D6",
                  "serial VIRTUAL0002", "bConfigurationValue 1", "dev 189:2",
                  "36", "DEVNAME=bus/usb/001/003", "ff", "c"));
  EXPECT_EQ(result.err, "");
}

TEST_F(World, AnswersAsTheKernelDoes) {
  const ToolResult result =
      Inside({},
             "$PROBE read 1 8002 5; $PROBE read 1 8002 4; "
             "$PROBE read 1 8002 9; $PROBE read 1 8001 2; "
             "$PROBE write 1 8002 0206; $PROBE read 1 9999 2; "
             "$PROBE raw 1 80 6 0100 0 8; $PROBE read 1 8002 4097");
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[0], "5: 00 04 04 04 04");
  EXPECT_EQ(lines[1], "4: 00 04 04 04");
  // The bytes that the mixer does not deliver keep their values.
  EXPECT_EQ(lines[2], "5: 00 04 04 04 04 ee ee ee ee");
  EXPECT_EQ(lines[3], "2: 36 04");
  EXPECT_EQ(lines[4], "0");
  EXPECT_EQ(lines[5], "EPIPE: ee ee");
  EXPECT_EQ(lines[6], "8: 12 01 10 01 00 00 00 40");
  EXPECT_EQ(lines[7].substr(0, 13), "EINVAL: ee ee");
}

TEST_F(World, FailsAsTheKernelDoes) {
  struct Row {
    const char *fault;
    const char *timeout;
    const char *expected;
  };
  const std::vector<Row> rows{
      {"stall", "5000", "EPIPE: ee ee ee ee ee\n"},
      {"silence", "50", "ETIMEDOUT: ee ee ee ee ee\n"},
      {"delay:50", "5000", "5: 00 04 04 04 04\n"},
      {"delay:50", "0", "5: 00 04 04 04 04\n"},
      {"delay:60000", "50", "ETIMEDOUT: ee ee ee ee ee\n"},
      {"short:2", "5000", "2: 00 04 ee ee ee\n"},
      {"short:0", "5000", "0: ee ee ee ee ee\n"},
      {"bytes:0102030405060708", "5000", "5: 01 02 03 04 05\n"},
      {"unplug", "5000", "ENODEV: ee ee ee ee ee\n"},
      {"stall@8001", "5000", "5: 00 04 04 04 04\n"},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.fault);
    const ToolResult result =
        Inside({"--fault", row.fault},
               std::string("$PROBE read 1 8002 5 ") + row.timeout);
    EXPECT_EQ(result.out, row.expected);
    EXPECT_EQ(result.err, "");
  }
}

TEST_F(World, LosesAMixerThatVanishesUnderARequest) {
  const ToolResult result =
      Inside({"-n", "2", "--fault", "1:unplug"},
             "$PROBE write 1 8003 0100; $PROBE list; test -e "
             "/dev/bus/usb/001/002 || echo no node; ls /sys/bus/usb/devices");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("ENODEV", "001/001 usb1 1d6b:0002", "001/003 1-2 6666:001b",
                  "no node", "1-0:1.0", "1-2", "1-2:1.0", "usb1"));
}

TEST_F(World, RefusesToOpenAForbiddenMixer) {
  const ToolResult result =
      Inside({"-n", "2", "--forbid", "2"},
             "$PROBE read 1 8001 2; $PROBE read 2 8001 2; "
             "$TOOL allow; $PROBE read 2 8001 2; "
             "$TOOL forbid --mixer 1; $PROBE read 1 8001 2");
  EXPECT_EQ(result.out,
            "2: 36 04\nopen EACCES\n2 mixers: may be opened\n2: 36 04\nmixer "
            "1: cannot be opened until you run: ztk-virtual-mixer allow\nopen "
            "EACCES\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(World, LogsEveryRequestBeforeItsSenderGoesOn) {
  const ToolResult result =
      Inside({"-n", "2", "--log", Folder() + "/log", "--fault", "stall@8006",
              "--fault", "short:0@8007"},
             "$PROBE write 1 8002 0206; cat $DIR/log; $PROBE read 2 8002 5; "
             "$PROBE read 1 8006 2; $PROBE read 1 8007 4");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("0", "mixer 1: 40 03 0206 8002 0000", "5: 00 04 04 04 04",
                  "EPIPE: ee ee", "0: ee ee ee ee"));
  EXPECT_THAT(Lines("log"),
              ElementsAre("mixer 1: 40 03 0206 8002 0000",
                          "mixer 2: c0 00 0000 8002 0005 -> 00 04 04 04 04",
                          "mixer 1: c0 00 0000 8006 0002 -> stall",
                          "mixer 1: c0 00 0000 8007 0004 ->"));
}

TEST_F(World, SaysNothingOfAClientThatWasKilledWhileItWaited) {
  const ToolResult result = Inside(
      {"--fault", "silence"},
      "$PROBE read 1 8001 2 0 & pid=$!; "
      // When the shell sees that the probe sleeps, the probe has sent its
      // request.
      "until grep -q '^State:.S' /proc/$pid/status && ls -l /proc/$pid/fd | "
      "grep -q 001/002; do sleep 0.01; done; kill -9 $pid; "
      "{ wait $pid; } 2>/dev/null; $TOOL unplug");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(World, IsSeenByLsusb) {
  // This program leaks memory; that is not a fault of the sandbox.
  const ToolResult result = Inside({"-n", "2"},
                                   "command -v lsusb >/dev/null || exit 77; "
                                   "ASAN_OPTIONS=detect_leaks=0 lsusb | sort | "
                                   "cut -d' ' -f1-6");
  if (result.status == 77) GTEST_SKIP() << "lsusb is not installed";
  // The names after them come from a list of this machine, if it has one.
  EXPECT_THAT(SplitLines(result.out),
              ElementsAre("Bus 001 Device 001: ID 1d6b:0002",
                          "Bus 001 Device 002: ID 6666:001b",
                          "Bus 001 Device 003: ID 6666:001b"));
}

}  // namespace
}  // namespace ztk::virtual_mixer
