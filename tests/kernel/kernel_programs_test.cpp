// SPDX-License-Identifier: MIT
//
// Tests the programs on a real kernel as a user runs them: virtual mixers over
// USB/IP, faults that are set while they run, and ztk.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <regex>
#include <string>

#include "kernel_world.h"
#include "support/library_world.h"
#include "support/temp_home.h"

namespace ztk::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// Each test waits until its devices are no longer on the bus.
class KernelPrograms : public testing::Test {
 protected:
  void SetUp() override {
    const std::string reason = WhyNoWorld();
    if (!reason.empty()) GTEST_SKIP() << reason;
  }
  void TearDown() override {
    if (!WhyNoWorld().empty()) return;
    WaitFor("the bus is empty", [] { return DevicesOnTheBus().empty(); });
  }

  // Runs a shell script and returns its output on both streams. $Z and $V are
  // the programs.
  static std::string Shell(const std::string &script) {
    const std::string whole =
        "exec 2>&1; Z='" ZTK "'; V='" VIRTUAL_MIXER "'; export Z V; " + script;
    std::FILE *const pipe = popen(whole.c_str(), "r");
    std::string output;
    std::array<char, 4096> part{};
    while (std::fgets(part.data(), part.size(), pipe) != nullptr) {
      output += part.data();
    }
    output += "status " + std::to_string(pclose(pipe) >> 8);
    return output;
  }
  // Runs a script while mixers are attached to the kernel.
  static std::string Attached(const std::string &options,
                              const std::string &script) {
    return Shell("$V serve --attach " + options + " -- sh -c '" + script + "'");
  }
  static bool Has(const std::string &program) {
    return Shell("command -v " + program + " >/dev/null") == "status 0";
  }

  TempHome home_;
};

TEST_F(KernelPrograms, StatusReadsAMixerOfTheKernel) {
  EXPECT_EQ(
      Attached("--reply 8007=00000009 --selector 1=3", "$Z status"),
      "Mixer 1 (VRM-D6) answers\n"
      "  firmware      4.36\n"
      "  certified     level 9\n"
      "  selectors     CH1 3   CH2 4   CH3 4   CH4 4\n"
      "  Serato        not active\n"
      "Nothing is remembered\n"
      "USB input 1 is silent: the input selector for CH1 is "
      "in position "
      "3; CH1 Control Tone PHONO (1) is heard only in position 4: turn it to "
      "4\n"
      "status 0");
}

TEST_F(KernelPrograms, ASettingReachesBothMixersAndTheLogIsAsInTheSandbox) {
  EXPECT_EQ(Attached("-n 2 --log /tmp/kernel-log",
                     "$Z input set 1 mic 2>/dev/null; "
                     "grep -E \": (c0|40) \" /tmp/kernel-log | head -n 4"),
            "USB input 1: MIC (6), sent to 2 mixers, remembered\n"
            "mixer 1: 40 03 0109 8002 0000\n"
            "mixer 2: 40 03 0109 8002 0000\n"
            "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04\n"
            "mixer 2: c0 00 0000 8002 0005 -> 00 04 04 04 04\n"
            "status 0");
}

// The kernel makes a new device node when a mixer is plugged in.
TEST_F(KernelPrograms, StatusSaysWhatWasSentBeforeAMixerWasPluggedIn) {
  const std::string output = Attached(
      "-n 1",
      "$Z boost set 2 -q; $Z status -q; $V unplug >&2; $V plug >&2;"
      "echo again; for i in $(seq 100); do"
      "  $Z status | grep \"^A mixer was plugged\" && break; sleep 0.1; done;"
      "$Z apply -q; echo sent; $Z status");
  const std::size_t again = output.find("again\n");
  const std::size_t sent = output.find("sent\n");
  ASSERT_NE(sent, std::string::npos) << output;
  constexpr char kBefore[] =
      "A mixer was plugged in after this was sent: Boost level\n";
  EXPECT_THAT(output.substr(0, again), Not(HasSubstr(kBefore)));
  EXPECT_THAT(output.substr(again, sent - again), HasSubstr(kBefore));
  EXPECT_THAT(output.substr(sent), Not(HasSubstr(kBefore)));
}

TEST_F(KernelPrograms, TheControlCommandsChangeTheRunningMixers) {
  const std::string output = Attached(
      "",
      "$V turn 2 16; $Z status | grep CH2; "
      "$V fault stall@8001; $Z status | grep firmware; $V fault none; "
      "$V reply 8004 0100; $Z status | grep Serato; "
      "$V unplug; until $Z status | grep \"No mixer\"; do sleep 0.05; done; "
      "$V plug; $Z status | grep \"^Mixer 1 .* answers\"; "
      "$V fault delay:20; $Z status | grep certified; "
      "$V fault short:1@8001; $Z status | grep firmware; "
      "$V show | head -1");
  EXPECT_THAT(output, HasSubstr("CH2 16"));
  EXPECT_THAT(output,
              HasSubstr("\n  Serato        active\n"
                        "1 mixer: unplugged\n"
                        "No mixer is attached\n"
                        "1 mixer: plugged in; values and faults are unchanged\n"
                        "Mixer 1 (VRM-D6) answers\n"
                        "1 mixer: fault delay:20\n"
                        "  certified     level 1\n"));
  EXPECT_THAT(output, EndsWith("mixer 1  bus id 1-1  attached\nstatus 0"));
}

TEST_F(KernelPrograms, TheReportOfAReplayedMixerIsTheSame) {
  Attached("-n 2 --reply 1:8001=2103 --fault 2:stall@r8004",
           "$Z doctor --report /tmp/first >/dev/null");
  WaitFor("the bus is empty", [] { return DevicesOnTheBus().empty(); });
  const std::string second = Attached(
      "--device /tmp/first", "$Z doctor --report /tmp/second >/dev/null");
  EXPECT_EQ(Shell("for name in first second; do grep -v milliseconds "
                  "/tmp/$name >/tmp/$name-without-times; done; "
                  "diff /tmp/first-without-times /tmp/second-without-times && "
                  "grep -c '21 03' /tmp/second && "
                  "grep -c refused /tmp/second"),
            "1\n1\nstatus 0")
      << "The second program has printed: " << second;
}

TEST_F(KernelPrograms, StatusSaysThatAMixerMayNotBeOpened) {
  if (!Has("setpriv")) GTEST_SKIP() << "setpriv is not installed";
  const std::string output =
      Attached("",
               "setpriv --reuid 65534 --regid 65534 --clear-groups "
               "env HOME=/nonexistent $Z status");
  EXPECT_THAT(output,
              HasSubstr("Mixer 1 (VRM-D6) is attached but cannot be opened\n"));
  EXPECT_THAT(output, HasSubstr("you have no permission for /dev/bus/usb/"));
}

TEST_F(KernelPrograms, LsusbShowsTheMixerWithoutComplaints) {
  if (!Has("lsusb")) GTEST_SKIP() << "lsusb is not installed";
  const std::string output = Attached("", "lsusb -v -d 6666:001b");
  for (const char *line :
       {"  bcdUSB               1.10\n", "  bDeviceClass            0 ",
        "  bcdDevice            4.36\n", "  iManufacturer           1 Tarvix\n",
        "  iProduct                2 VRM-D6\n",
        "  iSerial                 3 VIRTUAL0001\n",
        "  bNumConfigurations      1\n", "    bNumInterfaces          1\n",
        "      bInterfaceClass       255 Vendor Specific Class\n",
        "      bNumEndpoints           0\n", "Device Status:     0x0001\n",
        "  Self Powered\n"}) {
    EXPECT_THAT(output, HasSubstr(line));
  }
  // Some versions show "[unknown]" for class 0. This is not a complaint.
  const std::string text =
      std::regex_replace(output, std::regex(R"(\[unknown\])"), "");
  for (const char *complaint :
       {"can't", "Couldn't", "couldn't", "Warning", "error", "unrecognized",
        "unknown", "junk", "**", "UNRECOGNIZED", "invalid", "Invalid"}) {
    EXPECT_THAT(text, Not(HasSubstr(complaint)));
  }
  EXPECT_THAT(output, EndsWith("status 0"));
}

TEST_F(KernelPrograms, SaysThatOnlyRootMayAttach) {
  if (!Has("setpriv")) GTEST_SKIP() << "setpriv is not installed";
  const std::string output = Shell(
      "setpriv --reuid 65534 --regid 65534 --clear-groups "
      "$V serve --attach -- true");
  EXPECT_THAT(output, HasSubstr("only root may attach devices to this kernel; "
                                "start this with sudo"));
  EXPECT_THAT(output, EndsWith("status 1"));
}

// Runs the usbip commands of the documentation without "sudo".
TEST_F(KernelPrograms, TheUsbipToolAttachesAndDetachesMixers) {
  if (!Has("usbip")) GTEST_SKIP() << "usbip is not installed";
  const std::string output = Shell(
      "busybox ip link set lo up; "
      "$V serve -n 2 -- sh -c '"
      "usbip list -r 127.0.0.1 | grep -c 6666:001b; "
      "usbip attach -r 127.0.0.1 -b 1-1; "
      "usbip attach -r 127.0.0.1 -b 1-2; "
      "until $Z status | grep \"Mixer 2 .* answers\"; do sleep 0.05; "
      "done; "
      "usbip attach -r 127.0.0.1 -b 1-2; echo again $?; "
      "usbip port | grep -c 6666:001b; "
      "$V show | grep bus.id; "
      "usbip detach -p 0 >/dev/null 2>&1; "
      "while $Z status | grep -q \"Mixer 2\"; do sleep 0.05; done; "
      "$Z status | grep Mixer'");
  EXPECT_THAT(output, HasSubstr("2\nMixer 2 (VRM-D6), port "));
  EXPECT_THAT(output, HasSubstr("again 1\n2\n"
                                "mixer 1  bus id 1-1  attached\n"
                                "mixer 2  bus id 1-2  attached\n"
                                "Mixer 1 (VRM-D6) answers\nstatus 0"));
}

}  // namespace
}  // namespace ztk::test
