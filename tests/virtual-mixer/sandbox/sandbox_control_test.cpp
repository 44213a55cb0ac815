// SPDX-License-Identifier: MIT
//
// Commands that change a running world from inside.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Control : public ToolTest {};

TEST_F(Control, TurnsSelectorsOfOneOrOfAllMixers) {
  const ToolResult result =
      Inside({"-n", "2"},
             "$TOOL turn 1 3; $TOOL turn --mixer 2 4 17; $PROBE read 1 8002 5; "
             "$PROBE read 2 8002 5");
  EXPECT_EQ(result.out,
            "2 mixers: channel 1 at position 3\nmixer 2: channel 4 at position "
            "17\n5: 00 03 04 04 04\n5: 00 03 04 04 11\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(Control, AddsAndEndsFaults) {
  const ToolResult result = Inside(
      {"-n", "2"},
      "$TOOL fault --mixer 1 'stall@8002*2'; $PROBE read 2 8002 1; "
      "$PROBE read 1 8002 1; $PROBE read 1 8002 1; $PROBE read 1 8002 1; "
      "$TOOL fault stall; $PROBE read 2 8001 1; $TOOL fault none; "
      "$PROBE read 2 8001 1");
  EXPECT_THAT(SplitLines(result.out),
              ElementsAre("mixer 1: fault stall@8002*2", "1: 00", "EPIPE: ee",
                          "EPIPE: ee", "1: 00", "2 mixers: fault stall",
                          "EPIPE: ee", "2 mixers: no faults", "1: 36"));
}

TEST_F(Control, ChangesReplies) {
  const ToolResult result =
      Inside({"--reply", "8004=0100"},
             "$PROBE read 1 8004 2; $TOOL reply 8004 0200; "
             "$PROBE read 1 8004 2");
  EXPECT_EQ(result.out,
            "2: 01 00\n1 mixer: register 8004 replies 0200\n2: 02 00\n");
}

TEST_F(Control, UnplugsAndPlugsInWithTheStateKept) {
  const ToolResult result =
      Inside({"-n", "2"},
             "$TOOL turn 1 3; $TOOL unplug --mixer 1; $TOOL unplug --mixer 1; "
             "$PROBE list; test -e /dev/bus/usb/001/002 || echo no node; "
             "$TOOL plug; $PROBE list; $PROBE read 1 8002 5");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("2 mixers: channel 1 at position 3", "mixer 1: unplugged",
                  "mixer 1: unplugged", "001/001 usb1 1d6b:0002",
                  "001/003 1-2 6666:001b", "no node",
                  "2 mixers: plugged in; values and faults are unchanged",
                  "001/001 usb1 1d6b:0002", "001/002 1-1 6666:001b",
                  "001/003 1-2 6666:001b", "5: 00 03 04 04 04"));
  EXPECT_EQ(result.err, "");
}

TEST_F(Control, TellsAListenerOfLibudev) {
  if (std::string(UDEV_PROBE).empty()) GTEST_SKIP() << "no libudev-dev";
  const ToolResult result =
      Inside({"-n", "2"},
             "$UDEV_PROBE 3 >$DIR/heard & until grep -qs ready $DIR/heard; do "
             "sleep 0.01; done; $TOOL unplug --mixer 2; $TOOL plug; "
             "$TOOL fault --mixer 1 unplug; $PROBE write 1 8003 0100; wait");
  EXPECT_THAT(
      Lines("heard"),
      ElementsAre("ready",
                  "remove /sys/devices/pci0000:00/0000:00:14.0/usb1/1-2 "
                  "/dev/bus/usb/001/003 001b",
                  "add /sys/devices/pci0000:00/0000:00:14.0/usb1/1-2 "
                  "/dev/bus/usb/001/003 001b",
                  "remove /sys/devices/pci0000:00/0000:00:14.0/usb1/1-1 "
                  "/dev/bus/usb/001/002 001b"));
  EXPECT_EQ(result.err, "");
}

TEST_F(Control, LeavesAnOpenNodeDeadWhenTheMixerComesBack) {
  const ToolResult result = Inside(
      {"--log", Folder() + "/log"},
      "mkfifo $DIR/go; $PROBE hold 1 <$DIR/go >$DIR/held & exec 3>$DIR/go; "
      "until grep -q open $DIR/held; do sleep 0.01; done; $TOOL unplug; "
      "$TOOL plug; echo >&3; wait; cat $DIR/held; $PROBE read 1 8001 2");
  EXPECT_EQ(result.out,
            "1 mixer: unplugged\n1 mixer: plugged in; values and faults are "
            "unchanged\nopen\nENODEV: ee ee\n2: "
            "36 04\n");
  EXPECT_THAT(Lines("log"),
              ElementsAre("mixer 1: c0 00 0000 8001 0002 -> gone",
                          "mixer 1: c0 00 0000 8001 0002 -> 36 04"));
}

TEST_F(Control, ShowsTheStateForPeople) {
  const ToolResult result =
      Inside({"-n", "2"},
             "$PROBE write 1 8002 0206; $TOOL fault --mixer 1 'stall*2'; "
             "$TOOL unplug --mixer 2; $TOOL show");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("0", "mixer 1: fault stall*2", "mixer 2: unplugged",
                  "mixer 1  bus 1 device 2", "  selectors  4 4 4 4",
                  "  replies    8001: 36 04, 8002: 00 04 04 04 04, 8004: 00 "
                  "00, 8006: 00 00, 8007: 00 00 00 01",
                  "  written    8002: 0206, 8003: -, 8004: -, 8005: -, 8016: "
                  "-",
                  "  faults     stall*2", "mixer 2  bus 1 device 3  unplugged",
                  "  selectors  4 4 4 4", StartsWith("  replies "),
                  StartsWith("  written "), "  faults     none",
                  "other devices: 0"));
}

TEST_F(Control, ShowsTheStateAsJson) {
  const ToolResult result = Inside(
      {"--other-devices", "2"},
      "$PROBE write 1 8003 0300; $TOOL fault silence >$DIR/said; $TOOL show "
      "--json");
  EXPECT_EQ(
      SplitLines(result.out).at(1),
      R"({"mixers":[{"number":1,"pluggedIn":true,"forbidden":false,"bus":1,)"
      R"("device":3,"node":"/dev/bus/usb/001/003","selectors":[4,4,4,4],)"
      R"("replies":{"8001":"36 04","8002":"00 04 04 04 04","8004":"00 00",)"
      R"("8006":"00 00","8007":"00 00 00 01"},"lastWritten":{"8002":null,)"
      R"("8003":"0300","8004":null,"8005":null,"8016":null},"faults":)"
      R"(["silence"]}],"otherDevices":2})");
}

TEST_F(Control, RefusesInOneLineThatSaysWhatIsAccepted) {
  struct Row {
    std::vector<std::string> arguments;
    int status;
    const char *error;
  };
  const std::vector<Row> rows{
      {{"turn", "5", "3"}, 2, "bad channel \"5\"; accepted: 1 to 4"},
      {{"turn", "1", "256"}, 2, "bad position \"256\"; accepted: 0 to 255"},
      {{"turn", "1"},
       2,
       "POSITION is missing after \"turn\"; accepted: position, 0 to 255; "
       "see ztk-virtual-mixer turn --help"},
      {{"turn", "-m", "0", "1", "3"}, 2, "bad mixer \"0\"; accepted: 1 to 127"},
      {{"fault", "x"}, 2, "unknown fault \"x\"; accepted: stall, silence"},
      {{"reply", "80", "00"}, 2, "bad register \"80\"; accepted: 8001, 8002"},
      {{"reply", "8001", "0"}, 2, "bad bytes \"0\"; accepted: 1 to 64 pairs"},
      {{"rnu", "--", "true"}, 2, "no command \"rnu\"; nearest: run; see "},
      {{"--versoin"}, 2, "no option \"--versoin\"; nearest: --version; acc"},
      {{"run", "--mixrs", "2", "--", "true"},
       2,
       "no option \"--mixrs\" after \"run\"; nearest: --mixers; see "},
      {{"show", "me"},
       2,
       "unexpected word \"me\" after \"show\"; accepted: --json; see "},
      {{}, 2, "a command is missing; accepted: run, serve, turn"},
      {{"run", "ls"}, 2, "put \"--\" before the command"},
      {{"run", "-n", "128", "--", "true"},
       2,
       "bad number of mixers \"128\"; "
       "accepted: 0 to 127"},
      {{"run", "--selector", "1", "--", "true"}, 2, "the form is [MIXER:]CH"},
      {{"run", "--selector", "5=1", "--", "true"}, 2, "no channel \"5\""},
      {{"run", "--selector", "2:1=1", "--", "true"}, 2, "no mixer \"2\"; "},
      {{"run", "--reply", "8003=00", "--", "true"}, 2, "no register \"8003\""},
      {{"run", "--fault", "x", "--", "true"}, 2, "unknown fault \"x\""},
      {{"run", "--forbid", "x", "--", "true"},
       2,
       "--forbid x: no mixer \"x\"; there"},
      {{"run", "--log", "/nowhere/log", "--", "true"}, 1, "/nowhere/log"},
      {{"show"}, 1, "there are no virtual mixers here; start some with"},
  };
  for (const Row &row : rows) {
    SCOPED_TRACE(row.error);
    const ToolResult result = Tool(row.arguments);
    EXPECT_EQ(result.status, row.status);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, StartsWith("ztk-virtual-mixer: "));
    EXPECT_THAT(result.err, HasSubstr(row.error));
    EXPECT_EQ(SplitLines(result.err).size(), 1U);
  }
}

TEST_F(Control, SaysThatThereAreNoMixers) {
  EXPECT_EQ(Inside({"-n", "0"}, "$TOOL unplug; echo $?").out, "1\n");
  EXPECT_EQ(Inside({"-n", "0"}, "$TOOL unplug").err,
            "ztk-virtual-mixer: there are no mixers here; start run or serve "
            "with -n 1\n");
}

TEST_F(Control, RefusesAMixerThatIsNotThere) {
  const ToolResult result = Inside({}, "$TOOL turn --mixer 2 1 3");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err,
            "ztk-virtual-mixer: no mixer \"2\"; there are 1, counted from "
            "1\n");
}

TEST_F(Control, HasHelpWithAnExampleForEachCommand) {
  for (const char *command : {"run", "turn", "fault", "reply", "plug", "unplug",
                              "forbid", "allow", "show"}) {
    SCOPED_TRACE(command);
    const ToolResult result = Tool({command, "--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(
        result.out,
        ContainsRegex(std::string("Examples?:[[:space:]]+ztk-virtual-mixer ") +
                      command));
  }
  EXPECT_THAT(Tool({"turn", "--help"}).out,
              HasSubstr("turn [OPTIONS] CHANNEL POSITION\n"));
  EXPECT_THAT(Tool({"reply", "--help"}).out,
              HasSubstr("reply [OPTIONS] REGISTER BYTES\n"));
  EXPECT_THAT(Tool({"fault", "--help"}).out,
              HasSubstr("fault [OPTIONS] FAULT\n"));
  EXPECT_THAT(Tool({"--version"}).out, EndsWith(" " ZTK_PROGRAM_VERSION "\n"));
}

}  // namespace
}  // namespace ztk::virtual_mixer
