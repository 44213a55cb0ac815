// SPDX-License-Identifier: MIT
#include <regex>
#include <set>

#include "cli/program.h"
#include "cli_world.h"
#include "ztk/model/settings.h"

namespace ztk::test {
namespace {

class Help : public CliWorld {
 protected:
  static void CheckWidth(const std::string &text) {
    for (const std::string &line : SplitLines(text)) {
      EXPECT_LE(line.size(), 80U) << line;
    }
  }
  static std::string OnOneLine(const std::string &text) {
    return std::regex_replace(text, std::regex("\\s+"), " ");
  }
};

TEST_F(Help, TellsTheExitCodes) {
  const Result result = NoMixer("ztk --help");
  EXPECT_EQ(result.status, 0);
  for (const char *line :
       {"0  done", "1  ztk doctor has found a problem",
        "2  invalid command line or import file; nothing was sent",
        "3  no mixer is attached, or none has accepted", "4  rejected",
        "5  another error", "6  some mixers accepted",
        "7  sent, but not remembered",
        "\n  130  interrupted by Ctrl-C. Exception: Ctrl-C ends ztk watch "
        "with 0, or with 5\n       if there was no message bus\n",
        "\nExamples:\n  ztk status\n",
        "\n  ztk input set 2 \"post ch2 fader\"\n",
        "USB output audio of the VRM-B5"}) {
    EXPECT_THAT(result.out, HasSubstr(line));
  }
  EXPECT_THAT(result.err, IsEmpty());
  CheckWidth(result.out);
}

TEST_F(Help, ShowsAnExampleAndTheModelWithEveryCommand) {
  std::string script;
  for (const cli::Command &command : cli::ThisProgram().commands) {
    script += "ztk " + command.path + " --help > '" + home_.path().string() +
              "/" + command.path + "'; echo $?;";
  }
  const Result result = NoMixer(script);
  for (const std::string &status : SplitLines(result.out)) {
    EXPECT_EQ(status, "0");
  }
  for (const cli::Command &command : cli::ThisProgram().commands) {
    SCOPED_TRACE(command.path);
    const std::string help = File(command.path);
    EXPECT_THAT(help, HasSubstr("Example: " + command.examples.front() + "\n"));
    EXPECT_THAT(help, HasSubstr("ztk " + command.path));
    EXPECT_THAT(help, HasSubstr("--json"));
    EXPECT_THAT(OnOneLine(help), HasSubstr(OnOneLine(command.note)));
    CheckWidth(help);
  }
}

TEST_F(Help, SaysToWhichModelEachSettingBelongs) {
  const Result result = NoMixer(
      "ztk input --help; ztk output set --help; ztk boost --help;"
      "ztk midi list --help");
  for (const char *line : {"USB input audio of the VRM-D6: ",
                           "USB output audio is a setting of the VRM-B5.",
                           "Boost level of the VRM-D6: ",
                           "MIDI channel is a setting of the VRM-K2."}) {
    EXPECT_THAT(result.out, HasSubstr(line));
  }
}

TEST_F(Help, IsGivenForTheWordToo) {
  for (const char *command :
       {"", "status", "input", "input set", "--json", "input set --json"}) {
    SCOPED_TRACE(command);
    const std::string words = command;
    const Result result = NoMixer("ztk help " + words);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, NoMixer("ztk " + words + " --help").out);
    EXPECT_THAT(result.err, IsEmpty());
  }
  EXPECT_EQ(NoMixer("ztk --json help").out, NoMixer("ztk --help --json").out);
  const Result wrong = NoMixer("ztk help statsu");
  EXPECT_EQ(wrong.status, 2);
  EXPECT_THAT(wrong.err,
              StartsWith("ztk: no command \"statsu\"; nearest: status; "));
  EXPECT_EQ(NoMixer("ztk help input lst").status, 2);
}

TEST_F(Help, SaysWhichChoicesAreNotSentAgain) {
  for (const char *command : {"midi", "midi list", "midi set", "midi apply"}) {
    SCOPED_TRACE(command);
    EXPECT_THAT(
        OnOneLine(NoMixer(std::string("ztk ") + command + " --help").out),
        HasSubstr("apply can only re-send channels 1 to 4; for 5 to 16 use set "
                  "again."));
  }
  EXPECT_THAT(NoMixer("ztk boost set --help").out, Not(HasSubstr("again")));
}

TEST_F(Help, TellsTheVersion) {
  const Result result = NoMixer("ztk --version; ztk --version --json");
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "ztk " ZTK_PROGRAM_VERSION);
  EXPECT_EQ(OneObject(lines[1])["version"], ZTK_PROGRAM_VERSION);
}

// Runs every example of the help. Other tests cover watch, which does not end,
// and the commands that need systemd.
TEST_F(Help, GivesExamplesThatWork) {
  // The file for the import.
  std::string script =
      "cd $DIR; ztk boost set 1 > /dev/null; ztk export > club.json\n"
      "set -x\n";
  for (const cli::Command &command : cli::ThisProgram().commands) {
    if (command.path == "watch" || command.path == "warning" ||
        command.path == "doctor" || command.path.starts_with("autoapply "))
      continue;
    script += "{ " + command.examples.front() + "; } > /dev/null || exit\n";
  }
  const Result result = OneMixer(script);
  EXPECT_EQ(result.status, 0) << result.err;
}

TEST_F(Help, GivesAnExampleOfWatchingThatWorks) {
  const Result result = OneMixer(
      "ztk watch --json > $DIR/seen 2> $DIR/ready & watcher=$!\n"
      "until grep -q watching $DIR/ready; do sleep 0.01; done\n"
      "kill -INT $watcher; wait $watcher");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(NoMixer("ztk watch --help").out,
              HasSubstr("Example: ztk watch --json\n"));
}

TEST_F(Help, GivesAnExampleOfAWarningThatWorks) {
  const Result result = InTemporaryRoot(
      {{"/System/Library/Frameworks/VRM-D6Setup.framework/Resources/"
        "German.lproj/Localizable.strings",
        "<plist version=\"1.0\"><dict><key>WARNING3</key>"
        "<string>Selbst</string><key>WARNING2</key><string>Selbst</string>"
        "</dict></plist>"}},
      {}, "ztk warning --language de");
  if (result.status == kNoTemporaryRoot) {
    GTEST_SKIP() << "no mount namespace here";
  }
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, "Selbst\n");
  EXPECT_THAT(NoMixer("ztk warning --help").out,
              HasSubstr("Example: ztk warning --language de\n"));
}

TEST_F(Help, GivesExamplesForEverySetting) {
  for (const cli::Group &group : cli::ThisProgram().groups) {
    if (group.name == "autoapply") continue;  // needs a systemd
    EXPECT_EQ(OneMixer(group.example).status, 0) << group.example;
  }
  EXPECT_EQ(OneMixer("ztk input set 2 \"post ch2 fader\"").status, 0);
}

TEST(Commands, HaveNamesOfTheirOwn) {
  std::set<std::string> paths;
  for (const cli::Command &command : cli::ThisProgram().commands) {
    EXPECT_TRUE(paths.insert(command.path).second) << command.path;
    EXPECT_EQ(command.examples.front().rfind("ztk " + command.path, 0), 0U);
  }
  EXPECT_EQ(paths.size(), 32U);
}

}  // namespace
}  // namespace ztk::test
