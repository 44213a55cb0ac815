// SPDX-License-Identifier: MIT
//
// Which settings the programs inside change.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr char kSettings[] =
    "/.config/tarvix/Preferences/com.tarvix.VRM-D6autosetup.plist";
constexpr char kHistory[] = "/.local/state/tarvix/ztk-history.jsonl";

class Settings : public ToolTest {
 protected:
  Settings() : home_(Folder() + "/home") {
    std::filesystem::create_directories(home_ + "/.config/other");
    std::ofstream(home_ + "/.config/other/file") << "before\n";
    setenv("HOME", home_.c_str(), 1);
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
      unsetenv(name);
    }
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
  }

  ToolResult Private(const std::string &script) const {
    return Inside({"--private-settings"}, script);
  }
  bool Has(const std::string &path) const {
    return std::filesystem::exists(home_ + path);
  }

  const std::string home_;
};

TEST_F(Settings, AreTheUsersOwnUnlessTheyArePrivate) {
  const ToolResult result = Inside({}, "ztk boost set 2");
  EXPECT_EQ(result.out,
            "Boost level: -10 dB (2), sent to 1 mixer, remembered\n");
  EXPECT_TRUE(Has(kSettings));
  EXPECT_TRUE(Has(kHistory));
}

TEST_F(Settings, GoWithThePrivateRunThatMadeThem) {
  const ToolResult result =
      Private("ztk boost set 2; ztk boost set 1; ztk undo");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("Boost level: -10 dB (2), sent to 1 mixer, remembered",
                  "Boost level: -5 dB (1), sent to 1 mixer, remembered",
                  "Boost level: -5 dB (1) undone, -10 dB (2), sent to 1 mixer, "
                  "remembered"));
  EXPECT_FALSE(Has("/.config/tarvix"));
  EXPECT_FALSE(Has("/.local"));
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

TEST_F(Settings, AreNotThereAtFirstInAPrivateRun) {
  Inside({}, "ztk boost set 2");
  EXPECT_EQ(Private("ztk boost get; ztk undo").out,
            "Boost level is a setting of the VRM-D6. ztk shows the remembered "
            "choice.\n"
            "Boost level  -19 dB (4), default: nothing is remembered\n"
            "Nothing to undo.\n");
  EXPECT_EQ(Inside({}, "ztk boost get -q").out, "Boost level  -10 dB (2)\n");
}

TEST_F(Settings, OfOtherProgramsAreTheUsersOwnEvenThen) {
  const ToolResult result = Private(
      "cat $XDG_CONFIG_HOME/other/file; "
      "echo after >$XDG_CONFIG_HOME/other/file");
  EXPECT_EQ(result.out, "before\n");
  EXPECT_THAT(Lines("home/.config/other/file"), ElementsAre("after"));
}

TEST_F(Settings, OfOtherProgramsAreFoundWhereTheVariableSays) {
  setenv("XDG_CONFIG_HOME", (home_ + "/.config/other").c_str(), 1);
  EXPECT_EQ(Private("cat $XDG_CONFIG_HOME/file").out, "before\n");
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_TRUE(Has("/.config/other/file"));
}

TEST_F(Settings, OfAHomeSharedWithMacOSStayApartToo) {
  std::filesystem::create_directories(home_ + "/Library/Preferences");
  EXPECT_EQ(Private("ztk boost set 2").out,
            "Boost level: -10 dB (2), sent to 1 mixer, remembered\n");
  EXPECT_TRUE(std::filesystem::is_empty(home_ + "/Library/Preferences"));
}

TEST_F(Settings, ArePrivateWithoutAHomeToo) {
  unsetenv("HOME");
  EXPECT_EQ(Private("ztk boost set 2").out,
            "Boost level: -10 dB (2), sent to 1 mixer, remembered\n");
  EXPECT_THAT(LeftBehind(), IsEmpty());
}

// The probe's output goes into umockdev's socket, which makes it abort.
TEST_F(Settings, GoWithAPrivateRunThatIsAborted) {
  Private("$PROBE read 1 8001 2 <&- >&- 2>&-");
  EXPECT_THAT(LeftBehind(), IsEmpty());
  EXPECT_THAT(Lines("home/.config/other/file"), ElementsAre("before"));
}

// The library ignores a relative path.
TEST_F(Settings, ArePrivateWithARelativeTemporaryFolderToo) {
  const std::string command =
      "cd " + Folder() +
      " && TMPDIR=tmp ./ztk-virtual-mixer run "
      "--private-settings -- sh -c 'echo $XDG_CONFIG_HOME' >seen";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_THAT(Lines("seen"), ElementsAre(StartsWith("/tmp/ztk-settings.")));
}

}  // namespace
}  // namespace ztk::virtual_mixer
