// SPDX-License-Identifier: MIT
//
// ztk-virtual-mixer serve, as a user runs it. The kernel tests use it with a
// kernel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Serve : public ToolTest {
 protected:
  // Serves while a shell script runs: "serve OPTIONS -- sh -c SCRIPT".
  ToolResult During(const std::vector<std::string> &options,
                    const std::string &script) const {
    std::vector<std::string> arguments{"serve"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    for (const char *word : {"--", "sh", "-c"}) arguments.emplace_back(word);
    arguments.push_back(script);
    return Tool(arguments);
  }
};

TEST_F(Serve, LastsUntilItsCommandHasEnded) {
  const ToolResult result =
      During({"--listen", "127.0.0.1:0"}, "echo inside; exit 3");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out, "inside\n");
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Serve, TakesTheSameCommandsAsASandbox) {
  const ToolResult result =
      During({"-n", "2", "--listen", "127.0.0.1:0", "--selector", "2:1=9"},
             "$TOOL turn -m 1 4 17; $TOOL fault -m 2 'stall@8002*2'; "
             "$TOOL reply -m 1 8004 0100; $TOOL unplug -m 2; $TOOL show");
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("mixer 1: channel 4 at position 17",
                  "mixer 2: fault stall@8002*2",
                  "mixer 1: register 8004 replies 0100", "mixer 2: unplugged",
                  "mixer 1  bus id 1-1", "  selectors  4 4 4 17",
                  "  replies    8001: 36 04, 8002: 00 04 04 04 11, 8004: 01 00"
                  ", 8006: 00 00, 8007: 00 00 00 01",
                  "  written    8002: -, 8003: -, 8004: -, 8005: -, 8016: -",
                  "  faults     none", "mixer 2  bus id 1-2  unplugged",
                  "  selectors  9 4 4 4",
                  "  replies    8001: 36 04, 8002: 00 09 04 04 04, 8004: 00 00"
                  ", 8006: 00 00, 8007: 00 00 00 01",
                  "  written    8002: -, 8003: -, 8004: -, 8005: -, 8016: -",
                  "  faults     stall@8002*2", "other devices: 0"));
}

TEST_F(Serve, SaysThatNodesBelongToTheKernel) {
  const ToolResult result =
      During({"--listen", "127.0.0.1:0"}, "$TOOL forbid; $TOOL show --json");
  EXPECT_THAT(result.err, HasSubstr("a served mixer's node belongs to the "
                                    "kernel that has it"));
  EXPECT_THAT(result.out,
              HasSubstr(R"({"mixers":[{"number":1,"pluggedIn":true,)"
                        R"("busId":"1-1","attached":false,)"));
}

TEST_F(Serve, TellsHowToAttachAndEndsWithASignal) {
  const ToolResult result =
      During({"-n", "0", "--listen", "127.0.0.1:0"},
             "TMPDIR=$DIR; export TMPDIR; unset XDG_RUNTIME_DIR; "
             "$TOOL serve -n 2 --other-devices 1 --listen '[::1]:0' >$DIR/said "
             "2>&1 & "
             "until grep -q Ctrl $DIR/said; do sleep 0.1; done; "
             "kill -INT $!; wait $!; echo status $?");
  EXPECT_EQ(result.out, "status 0\n");
  const std::vector<std::string> said = Lines("said");
  ASSERT_EQ(said.size(), 5u);
  EXPECT_THAT(said[0],
              testing::MatchesRegex("Serving 2 mixers and 1 other device at "
                                    "\\[::1\\]:[0-9]+\\. Attach as in:"));
  EXPECT_THAT(said[1], testing::MatchesRegex("  sudo usbip --tcp-port [0-9]+ "
                                             "attach -r ::1 -b 1-2"));
  EXPECT_THAT(said[3], testing::MatchesRegex(
                           "  export ZTK_VIRTUAL_MIXER_CONTROL=" + Folder() +
                           "/ztk-virtual-mixer\\.[^/]+/control"));
  EXPECT_FALSE(std::filesystem::exists(said[3].substr(said[3].find('/'))));
}

TEST_F(Serve, SaysPlainlyWhatIsWrong) {
  const struct {
    std::vector<std::string> arguments;
    int status;
    std::string expected;
  } rows[] = {
      {{"--listen", "nonsense"}, 2, "bad address \"nonsense\"; accepted: "},
      {{"--listen", "127.0.0.1:0", "--attach"}, 2, "used together"},
      {{"-n", "128"}, 2, "128"},
      {{"--fault", "bogus"}, 2, "--fault bogus: unknown fault"},
      {{"--log", "/no/such/folder/log"}, 1, "cannot write the log"},
      {{"true"}, 2, "put \"--\" before the command"},
      {{"--listen", "192.0.2.1:0"}, 1, "cannot listen at 192.0.2.1:0"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.expected);
    std::vector<std::string> arguments{"serve"};
    arguments.insert(arguments.end(), row.arguments.begin(),
                     row.arguments.end());
    const ToolResult result = Tool(arguments);
    EXPECT_EQ(result.status, row.status);
    EXPECT_THAT(SplitLines(result.err), testing::SizeIs(1));
    EXPECT_THAT(result.err, HasSubstr(row.expected));
  }
}

TEST_F(Serve, SaysWhatIsMissingToAttach) {
  if (std::filesystem::exists("/sys/devices/platform/vhci_hcd.0")) {
    GTEST_SKIP() << "this kernel has a virtual host controller";
  }
  const ToolResult result = Tool({"serve", "--attach"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("this kernel has no virtual host "
                                    "controller"));
}

TEST_F(Serve, IsRefusedInsideASandbox) {
  const ToolResult result = Inside({}, "$TOOL serve -- true");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("serve needs the kernel of this machine"));
}

}  // namespace
}  // namespace ztk::virtual_mixer
