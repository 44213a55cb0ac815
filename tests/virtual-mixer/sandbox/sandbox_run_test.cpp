// SPDX-License-Identifier: MIT
//
// How a command runs: exit status, signals, environment, end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "support/pseudo_terminal.h"
#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;

class Running : public ToolTest {};

TEST_F(Running, HandsOnTheExitStatus) {
  struct Row {
    const char *script;
    int status;
  };
  const std::vector<Row> rows{
      {"true", 0}, {"exit 7", 7}, {"kill -9 $$", 137}, {"kill -TERM $$", 143}};
  for (const Row &row : rows) {
    SCOPED_TRACE(row.script);
    EXPECT_EQ(Inside({}, row.script).status, row.status);
    EXPECT_THAT(LeftBehind(), IsEmpty());
  }
}

TEST_F(Running, TellsACommandThatCannotBeRunAsAShellDoes) {
  const ToolResult missing = Tool({"run", "--", "/no/such/command"});
  EXPECT_EQ(missing.status, 127);
  EXPECT_EQ(missing.err,
            "ztk-virtual-mixer: /no/such/command: No such file or "
            "directory\n");
  const ToolResult refused = Tool({"run", "--", "/etc/passwd"});
  EXPECT_EQ(refused.status, 126);
  EXPECT_EQ(refused.err, "ztk-virtual-mixer: /etc/passwd: Permission denied\n");
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, PassesWordsOnUntouched) {
  const ToolResult result =
      Tool({"run", "--", "printf", "%s|", "--", "-n", "a b", "", "--help"});
  EXPECT_EQ(result.out, "--|-n|a b||--help|");
}

TEST_F(Running, LastsUntilTheLastChildHasEnded) {
  const ToolResult result =
      Inside({},
             "(while kill -0 $$ 2>/dev/null; do sleep 0.01; done; "
             "$TOOL turn 1 3; $PROBE read 1 8002 2) & exit 4");
  EXPECT_EQ(result.out, "1 mixer: channel 1 at position 3\n2: 00 03\n");
  EXPECT_EQ(result.status, 4);
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

// Would never end if Ctrl-C did not end it.
TEST_F(Running, SaysInATerminalWhatItWaitsForAfterTheCommand) {
  setenv("TMPDIR", (Folder() + "/tmp").c_str(), 1);
  test::PseudoTerminal terminal(
      {VIRTUAL_MIXER, "run", "--", "sh", "-c", "sleep 1000000 & exit 4"}, 80);
  unsetenv("TMPDIR");
  EXPECT_TRUE(terminal.WaitFor("ends it\n"));
  EXPECT_THAT(
      terminal.shown(),
      MatchesRegex("ztk-virtual-mixer: waiting for what still runs "
                   "among the mixers: (sh|sleep) \\([0-9]+\\); Ctrl-C ends "
                   "it\n"));
  terminal.Type("\x03");
  EXPECT_EQ(terminal.End(), 4);
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, TellsAScriptNothingOfWhatItWaitsFor) {
  const ToolResult result = Inside({}, "sleep 1 & exit 4");
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.err, "");
}

TEST_F(Running, PassesSignalsToTheCommand) {
  for (const char *name : {"TERM", "INT", "HUP"}) {
    SCOPED_TRACE(name);
    const std::string signal = name;
    const ToolResult result =
        Inside({}, "trap 'echo told; exit 9' " + signal + "; kill -" + signal +
                       " $PPID; while :; do sleep 0.01; done");
    EXPECT_EQ(result.out, "told\n");
    EXPECT_EQ(result.status, 9);
    EXPECT_THAT(LeftBehind(), IsEmpty());
  }
}

// Would never end if the signal did not reach the processes that the command
// has left running.
TEST_F(Running, EndsWhatACommandLeavesBehindWhenItIsEnded) {
  const ToolResult result = Inside(
      {}, "sleep 1000000 & kill -TERM $PPID; while :; do sleep 0.01; done");
  EXPECT_EQ(result.status, 143);
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, EndsWhatIsLeftAfterTheCommandWhenItIsEnded) {
  const ToolResult result =
      Inside({},
             "tool=$PPID; (while kill -0 $$ 2>/dev/null; do sleep 0.01; done; "
             "sleep 1000000 & kill -TERM $tool; wait) & exit 3");
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, GivesTheCommandItsSignalsAsTheyWere) {
  // yes ends by SIGPIPE, which must not be ignored.
  const ToolResult result =
      Inside({}, "{ yes; echo $? >$DIR/status; } | head -1");
  EXPECT_EQ(result.out, "y\n");
  EXPECT_EQ(Lines("status").at(0), "141");
}

TEST_F(Running, KeepsWhatWasPreloaded) {
  const std::string alone = Inside({}, "echo $LD_PRELOAD").out;
  if (alone.find("libasan") != std::string::npos) {
    EXPECT_THAT(alone, MatchesRegex("/.*libasan.so[.0-9]*:"
                                    "libumockdev-preload.so.0\n"));
    GTEST_SKIP() << "the sanitizer lets nothing else be preloaded";
  }
  setenv("LD_PRELOAD", "libm.so.6", 1);
  const ToolResult result = Inside({}, "echo $LD_PRELOAD");
  unsetenv("LD_PRELOAD");
  EXPECT_EQ(result.out, "libumockdev-preload.so.0:libm.so.6\n");
}

TEST_F(Running, LivesInTmpWhenTheTemporaryFolderHasALongName) {
  const std::string folder = Folder() + "/" + std::string(80, 'x');
  std::filesystem::create_directory(folder);
  const ToolResult result =
      Tool({"run", "--", "env", "-u", "NOTHING", "sh", "-c",
            "echo $UMOCKDEV_DIR; $PROBE read 1 8001 2"});
  EXPECT_THAT(result.out, HasSubstr(Folder() + "/tmp/umockdev."));
  const ToolResult elsewhere =
      Inside({}, "TMPDIR=" + folder +
                     " env -u ZTK_VIRTUAL_MIXER_CONTROL -u UMOCKDEV_DIR "
                     "LD_PRELOAD= $TOOL run -- sh -c 'echo $TMPDIR; echo "
                     "$UMOCKDEV_DIR; $PROBE read 1 8001 2'");
  EXPECT_THAT(elsewhere.out, HasSubstr(folder + "\n/tmp/umockdev."));
  EXPECT_THAT(elsewhere.out, HasSubstr("2: 36 04\n"));
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(Running, SaysThatThereIsNoTemporaryFolder) {
  std::filesystem::remove(Folder() + "/tmp");
  const ToolResult result = Tool({"run", "--", "true"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err,
            "ztk-virtual-mixer: no folder for the mixers can be made in " +
                Folder() +
                "/tmp: No such file or directory; set TMPDIR to one that you "
                "may write to\n");
}

TEST_F(Running, WorksWithoutStandardStreams) {
  const std::string command =
      "cd " + Folder() +
      " && TMPDIR=$PWD/tmp ./ztk-virtual-mixer run -- sh -c "
      "'./probe read 1 8001 2 >seen' <&- >&- 2>&-";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_THAT(Lines("seen"), ElementsAre("2: 36 04"));
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

// The probe's output goes into umockdev's socket, which makes it abort.
TEST_F(Running, CleansUpWhenItIsAborted) {
  Inside({}, "$PROBE read 1 8001 2 <&- >&- 2>&-");
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

// A process that is killed cannot remove its folders.
TEST_F(Running, RemovesTheFoldersOfARunThatWasKilled) {
  EXPECT_EQ(Inside({"--private-settings"}, "kill -9 $PPID").status, -1);
  EXPECT_THAT(LeftBehind(), SizeIs(2));
  EXPECT_EQ(Inside({}, "true").status, 0);
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, RemovesTheFolderOfAServerThatWasKilled) {
  setenv("XDG_RUNTIME_DIR", (Folder() + "/tmp").c_str(), 1);
  const std::vector<std::string> serve{"serve", "--listen", "127.0.0.1:0",
                                       "--",    "sh",       "-c"};
  std::vector<std::string> killed = serve;
  killed.emplace_back("kill -9 $PPID");
  std::vector<std::string> unharmed = serve;
  unharmed.emplace_back("true");
  EXPECT_EQ(Tool(killed).status, -1);
  EXPECT_THAT(LeftBehind(), SizeIs(1));
  EXPECT_EQ(Tool(unharmed).status, 0);
  unsetenv("XDG_RUNTIME_DIR");
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Running, KeepsTheFoldersOfARunThatGoesOn) {
  const ToolResult result = Inside(
      {"--private-settings"},
      "env -u ZTK_VIRTUAL_MIXER_CONTROL -u UMOCKDEV_DIR LD_PRELOAD= $TOOL run "
      "-- true; $PROBE read 1 8001 2; test -d $XDG_CONFIG_HOME/tarvix && echo "
      "settings");
  EXPECT_EQ(result.out, "2: 36 04\nsettings\n");
}

TEST_F(Running, LeavesFoldersThatAreNotMarked) {
  std::filesystem::create_directory(Folder() + "/tmp/umockdev.OTHERS");
  EXPECT_EQ(Inside({}, "true").status, 0);
  EXPECT_THAT(LeftBehind(), ElementsAre("umockdev.OTHERS"));
}

TEST_F(Running, RefusesToBeNested) {
  const ToolResult result = Inside({}, "$TOOL run -- true");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.err, HasSubstr("already inside a sandbox"));
}

TEST_F(Running, StartsTheUsersShellWithoutACommand) {
  setenv("SHELL", "/bin/true", 1);
  const ToolResult result = Tool({"run", "-n", "32"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, HasSubstr("A shell with 32 virtual mixers. Try:\n"));
  EXPECT_THAT(result.out, HasSubstr("  ztk-virtual-mixer turn 1 3\n"));
  EXPECT_THAT(result.out,
              EndsWith("What you set changes your own settings;\n"
                       "run --private-settings keeps them apart.\n"));
  for (const std::string &line : SplitLines(result.out)) {
    EXPECT_LE(line.size(), 40U) << line;
  }
  EXPECT_THAT(Tool({"run", "--private-settings"}).out,
              EndsWith("mixers\nWhat you set is gone when you exit.\n"));
}

TEST_F(Running, FindsItsOwnFolderInside) {
  EXPECT_EQ(
      Inside({}, "ztk-virtual-mixer turn 1 2 && $PROBE read 1 8002 2").out,
      "1 mixer: channel 1 at position 2\n2: 00 02\n");
}

}  // namespace
}  // namespace ztk::virtual_mixer
