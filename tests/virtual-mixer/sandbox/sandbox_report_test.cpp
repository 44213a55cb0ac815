// SPDX-License-Identifier: MIT
//
// Reports: ztk doctor writes them, the sandbox replays them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "virtual-mixer/tool.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::Not;

std::string Contents(const std::string &path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

class Reports : public ToolTest {
 protected:
  // The lines of a report without those that contain times.
  std::vector<std::string> LinesWithoutTimes(const std::string &name) const {
    std::vector<std::string> lines;
    for (const std::string &line : Lines(name)) {
      if (line.find("\"milliseconds\"") == std::string::npos) {
        lines.push_back(line);
      }
    }
    return lines;
  }
};

TEST_F(Reports, ThatAreReplayedAndReportedAgainAreTheSame) {
  Inside({"-n", "2", "--other-devices", "1", "--private-settings", "--reply",
          "1:8001=2103", "--selector", "2:1=9", "--fault", "1:stall@r8004",
          "--fault", "2:silence@r8006", "--fault", "2:short:2@r8007"},
         "ztk doctor --report $DIR/first >$DIR/said");
  EXPECT_THAT(Lines("said"),
              Contains("report    written to " + Folder() + "/first"));
  const std::vector<std::string> first = LinesWithoutTimes("first");
  for (const char *line :
       {R"(  "format": "ztk-report",)", R"(  "formatVersion": 1,)",
        R"(      "access": "ok",)", R"(        "product": "VRM-D6")",
        R"(          "reply": "21 03",)",
        R"(          "reply": "00 09 04 04 04",)",
        R"(          "reply": "00 00",)", R"(          "result": "refused",)",
        R"(          "result": "silent",)", R"(      "class": "09",)",
        R"(      "class": "ff",)"}) {
    EXPECT_THAT(first, Contains(line));
  }
  Inside({"--device", Folder() + "/first", "--other-devices", "1",
          "--private-settings"},
         "ztk doctor --report $DIR/second >$DIR/said");
  EXPECT_THAT(LinesWithoutTimes("second"), ElementsAreArray(first));
}

TEST_F(Reports, ChangeNothingOnTheMixer) {
  Inside({"--private-settings", "--log", Folder() + "/log"},
         "ztk doctor --report $DIR/report >$DIR/said");
  for (const std::string &line : Lines("log")) {
    // Only reads: from the device, standard or vendor.
    EXPECT_TRUE(line.starts_with("mixer 1: c0 ") ||
                line.starts_with("mixer 1: 80 "))
        << line;
  }
}

TEST_F(Reports, HaveNoPrivateData) {
  const std::string home = Folder() + "/home";
  const std::string settings = home + "/.config/tarvix/Preferences";
  std::filesystem::create_directories(settings);
  std::ofstream(settings + "/com.tarvix.VRM-D6autosetup.plist") << "damaged";
  Inside({}, "unset XDG_CONFIG_HOME; HOME=" + home +
                 " ztk doctor --report $DIR/report >$DIR/said");
  const std::string report = Contents(Folder() + "/report");
  EXPECT_THAT(report, HasSubstr("~/.config/tarvix"));
  EXPECT_THAT(report, Not(HasSubstr(home)));
  EXPECT_THAT(report, Not(HasSubstr("VIRTUAL0001")));
}

TEST_F(Reports, ThatCannotBeWrittenAreAnError) {
  const ToolResult result =
      Inside({}, "ztk doctor --report $DIR/no/such/folder");
  EXPECT_EQ(result.status, 5);
  EXPECT_THAT(result.err, HasSubstr("the report cannot be written to \"" +
                                    Folder() + "/no/such/folder\": No such"));
}

TEST_F(Reports, NameTheMixersThatAreNotReplayed) {
  Inside({"-n", "3", "--private-settings", "--forbid", "2"},
         "ztk doctor --report $DIR/report >$DIR/said");
  const ToolResult result =
      Inside({"--device", Folder() + "/report", "--private-settings"},
             "ztk-virtual-mixer show | grep -c selectors");
  EXPECT_EQ(result.out, "2\n");
  EXPECT_EQ(result.err,
            "ztk-virtual-mixer: warning: mixer 2 of the report could not be "
            "opened when the report was made; it is left out\n");
  Inside({"-n", "1", "--private-settings", "--forbid", "1"},
         "ztk doctor --report $DIR/report >$DIR/said");
  EXPECT_THAT(
      Tool({"run", "--device", Folder() + "/report", "--", "true"}).err,
      HasSubstr("/report: no mixer could be opened when the report was made"));
}

TEST_F(Reports, ThatCannotBeReplayedAreRefusedInOneLine) {
  std::ofstream(Folder() + "/newer")
      << R"({"format": "ztk-report", "formatVersion": 2})";
  const struct {
    const char *command;
    std::string file;
    const char *expected;
  } rows[] = {
      {"run", "/no/such/file", "it cannot be read: No such file or directory"},
      {"serve", "/no/such/file",
       "it cannot be read: No such file or directory"},
      {"run", "/dev/null", "it is not a regular file"},
      {"run", Folder() + "/newer", "the report has format version 2"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.file);
    const ToolResult result =
        Tool({row.command, "--device", row.file, "--", "true"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("cannot replay " + row.file + ": "));
    EXPECT_THAT(result.err, HasSubstr(row.expected));
  }
  EXPECT_THAT(Tool({"run", "--device", "x", "-n", "2"}).err,
              HasSubstr("--device and --mixers cannot be used"));
  EXPECT_EQ(Tool({"run", "--device", "", "--", "true"}).status, 2);
  EXPECT_THAT(Tool({"run", "--device", "", "--", "true"}).err,
              HasSubstr("--device needs the name of a file, not \"\""));
  EXPECT_THAT(Tool({"run", "--log", "", "--", "true"}).err,
              HasSubstr("--log needs the name of a file, not \"\""));
  EXPECT_THAT(Tool({"run", "--delays"}).err,
              HasSubstr("--delays needs --device"));
}

// tests/reports contains the reports of users that showed a fault; this is the
// expected output of ztk for each.
TEST_F(Reports, OfUsersBehaveAsTheyShould) {
  const struct {
    const char *report;
    const char *script;
    std::string expected;
  } rows[] = {
      {"example.json", "$PROBE read 1 8001 2; $PROBE read 1 8004 2",
       "2: 21 03\nEPIPE: ee ee\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.report);
    const ToolResult result = Inside({"--private-settings", "--device",
                                      std::string(REPORTS) + "/" + row.report},
                                     row.script);
    EXPECT_EQ(result.out, row.expected);
  }
}

}  // namespace
}  // namespace ztk::virtual_mixer
