// SPDX-License-Identifier: MIT
#include <set>

#include "cli_world.h"
#include "commands.h"
#include "families.h"

namespace ztk::test {
namespace {

class Help : public CliWorld {
 protected:
  static void CheckWidth(const std::string &text) {
    for (const std::string &line : SplitLines(text)) {
      EXPECT_LE(line.size(), 80U) << line;
    }
  }
};

TEST_F(Help, TellsTheExitCodes) {
  const Result result = NoMixer("ztk --help");
  EXPECT_EQ(result.status, 0);
  for (const char *line :
       {"0  done", "2  the words were wrong; nothing was sent",
        "3  no mixer was reached", "4  rejected", "5  something else failed",
        "Example: ztk input set 2 \"post ch2 fader\"",
        "USB output audio of the VRM-B5"}) {
    EXPECT_THAT(result.out, HasSubstr(line));
  }
  EXPECT_THAT(result.err, IsEmpty());
  CheckWidth(result.out);
}

TEST_F(Help, ShowsAnExampleAndTheModelWithEveryCommand) {
  std::string script;
  for (const cli::Command &command : cli::Commands()) {
    script += "ztk " + command.path + " --help > '" + home_.path().string() +
              "/" + command.path + "'; echo $?;";
  }
  const Result result = NoMixer(script);
  for (const std::string &status : SplitLines(result.out)) {
    EXPECT_EQ(status, "0");
  }
  for (const cli::Command &command : cli::Commands()) {
    SCOPED_TRACE(command.path);
    const std::string help = File(command.path);
    EXPECT_THAT(help, HasSubstr("Example: " + command.example + "\n"));
    EXPECT_THAT(help, HasSubstr("ztk " + command.path));
    EXPECT_THAT(help, HasSubstr("--json"));
    EXPECT_THAT(help, HasSubstr(command.note));
    CheckWidth(help);
  }
}

TEST_F(Help, SaysToWhichModelEachSettingBelongs) {
  const Result result = NoMixer(
      "ztk input --help; ztk output set --help; ztk boost --help;"
      "ztk midi list --help");
  for (const char *line : {"USB input audio belongs to the VRM-D6.",
                           "USB output audio belongs to the VRM-B5.",
                           "Boost level belongs to the VRM-D6.",
                           "MIDI channel belongs to the VRM-K2."}) {
    EXPECT_THAT(result.out, HasSubstr(line));
  }
}

TEST_F(Help, TellsTheVersion) {
  const Result result = NoMixer("ztk --version; ztk --version --json");
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "ztk 1.0.0");
  EXPECT_EQ(OneObject(lines[1])["version"], "1.0.0");
}

// Every example is run, so that none of them is a lie. Watching is tested by
// itself, as it does not end.
TEST_F(Help, GivesExamplesThatWork) {
  std::string script = "set -x\n";
  for (const cli::Command &command : cli::Commands()) {
    if (command.path == "watch" || command.path == "warning") continue;
    script += command.example + " > /dev/null || exit\n";
  }
  const Result result = OneMixer(script);
  EXPECT_EQ(result.status, 0) << result.err;
}

TEST(Commands, HaveNamesOfTheirOwn) {
  std::set<std::string> paths;
  for (const cli::Command &command : cli::Commands()) {
    EXPECT_TRUE(paths.insert(command.path).second) << command.path;
    EXPECT_EQ(command.example.rfind("ztk " + command.path, 0), 0U);
  }
  EXPECT_EQ(paths.size(), 23U);
}

}  // namespace
}  // namespace ztk::test
