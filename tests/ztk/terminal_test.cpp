// SPDX-License-Identifier: MIT
//
// The output in a terminal, and the effects of Ctrl-C.
#include "cli_world.h"
#include "support/pseudo_terminal.h"

namespace ztk::test {
namespace {

class Terminal : public CliWorld {
 protected:
  void SetUp() override {
    CliWorld::SetUp();
    setenv("TERM", "xterm", 1);
    for (const char *name : {"NO_COLOR", "CLICOLOR"}) unsetenv(name);
  }

  // The words before the command of a sandbox.
  std::vector<std::string> Sandbox(const std::vector<std::string> &options,
                                   const std::string &script) const {
    std::vector<std::string> words{ZTK_VIRTUAL_MIXER, "run", "--log",
                                   (home_.path() / "requests").string()};
    words.insert(words.end(), options.begin(), options.end());
    for (const char *word : {"--", "sh", "-c"}) words.emplace_back(word);
    words.push_back(script);
    return words;
  }

  std::string Shown(const std::string &script, unsigned short columns) const {
    PseudoTerminal terminal(Sandbox({"-n", "1"}, script), columns);
    terminal.End();
    return terminal.shown();
  }
};

TEST_F(Terminal, MakesTheCurrentChoiceStandOut) {
  const std::string shown = Shown("ztk boost list", 80);
  EXPECT_THAT(shown, HasSubstr("\033[1m* 4  -19 dB\033[0m\n"));
  EXPECT_THAT(shown, HasSubstr("\n  3  -15 dB\n"));
}

TEST_F(Terminal, ShowsWhatIsChosenWithoutACommand) {
  Remember("VRM-D6", {{"Output1", 2}});
  const std::string shown = Shown("ztk; echo =$?", 80);
  EXPECT_THAT(
      shown, StartsWith("1 mixer is attached.\n\n"
                        "USB input audio of the VRM-D6, remembered or default\n"
                        "  USB input 1        CH1 "));
  EXPECT_THAT(shown, HasSubstr("\n  USB input 2        Post CH2 Fader (3)\n"));
  EXPECT_THAT(shown, HasSubstr(", default\n"));
  EXPECT_THAT(shown, HasSubstr("\nNext:\n  ztk input set "));
  EXPECT_THAT(shown, HasSubstr("=0\n"));
  EXPECT_LE(SplitLines(shown).size(), 26U);
}

TEST_F(Terminal, IsPlainWhereTheUserWantsIt) {
  for (const char *wish : {"NO_COLOR=1", "CLICOLOR=0", "TERM=dumb", "TERM="}) {
    SCOPED_TRACE(wish);
    const std::string shown = Shown(std::string(wish) + " ztk boost list", 80);
    EXPECT_THAT(shown, HasSubstr("\n* 4  -19 dB\n"));
    EXPECT_THAT(shown, Not(HasSubstr("\033")));
  }
  // An empty value does not count.
  EXPECT_THAT(Shown("NO_COLOR= ztk boost list", 80), HasSubstr("\033[1m"));
}

TEST_F(Terminal, GivesAPipeNothingButText) {
  const std::string shown = Shown(
      "export CLICOLOR_FORCE=1 FORCE_COLOR=1; ztk boost list | cat; "
      "ztk boost list --json",
      80);
  EXPECT_THAT(shown, HasSubstr("\n* 4  -19 dB\n"));
  EXPECT_THAT(shown, Not(HasSubstr("\033")));
}

TEST_F(Terminal, KeepsToANarrowWidth) {
  Remember("VRM-D6", {{"Output1", 0}, {"MaxLevel", 1}});
  const std::string shown = Shown(
      "NO_COLOR=1; export NO_COLOR; ztk status; ztk input list; ztk get;"
      "ztk input get; ztk apply; ztk versions; ztk midi list; ztk --help",
      40);
  for (const std::string &line : SplitLines(shown)) {
    EXPECT_LE(line.size(), 40U) << line;
  }
  EXPECT_THAT(shown, HasSubstr("  selectors     CH1 4   CH2 4   CH3 4\n"
                               "                CH4 4\n"));
}

TEST_F(Terminal, ShowsHelpInANarrowWidth) {
  std::string script;
  for (const char *command : {"", "run", "serve", "fault", "reply", "show"}) {
    script += std::string("ztk-virtual-mixer ") + command + " --help;";
  }
  for (const char *command : {"", "input set", "autoapply", "undo", "doctor"}) {
    script += std::string("ztk ") + command + " --help;";
  }
  const std::string shown = Shown(script, 40);
  for (const std::string &line : SplitLines(shown)) {
    // Commands that are copied, and a word that is longer than its column.
    if (line.rfind("  ztk", 0) == 0 || line.rfind("  sudo", 0) == 0) continue;
    EXPECT_LE(line.size(), 40U) << line;
  }
  EXPECT_THAT(shown, HasSubstr("\nExample:\n  ztk input set 2 \"post ch2 "
                               "fader\"\n"));
}

// A line end within the command would be pasted into a shell with it.
TEST_F(Terminal, NeverBreaksACommandThatIsToBeTyped) {
  const std::string shown = Shown(
      "ztk-virtual-mixer unplug; ztk-virtual-mixer plug; "
      "ztk-virtual-mixer fault silence@r8001;"
      "unset ZTK_VIRTUAL_MIXER_CONTROL; ztk doctor",
      40);
  EXPECT_THAT(shown, HasSubstr("\n          type:  for on in 0 1; do echo $on "
                               "| sudo tee /sys/bus/usb/devices/1-1/authorized;"
                               " done\n"));
}

TEST_F(Terminal, ShowsThatItWaitsForSilentMixers) {
  PseudoTerminal terminal(
      Sandbox({"-n", "3", "--fault", "silence"}, "ztk boost set 1"), 80);
  EXPECT_TRUE(terminal.WaitFor("ztk: sending to 3 mixers\n"));
  EXPECT_TRUE(terminal.WaitFor(
      "\r\033[KWaiting for 3 mixers, at most 3 s; Ctrl-C ends"));
  EXPECT_TRUE(terminal.WaitFor(
      "\r\033[KWaiting for 3 mixers, 1 of at most 3 s; Ctrl-C"));
  EXPECT_EQ(terminal.End(), 3);
  // It is removed before the answer is shown.
  EXPECT_THAT(terminal.shown(), HasSubstr("\r\033[KBoost level: -5 dB (1)"));
}

TEST_F(Terminal, ShortensWhatIsWaitedForInANarrowTerminal) {
  PseudoTerminal terminal(Sandbox({"--fault", "silence"}, "ztk status"), 40);
  EXPECT_TRUE(terminal.WaitFor("\r\033[KWaiting for a mixer; Ctrl-C ends"));
  EXPECT_EQ(terminal.End(), 0);
}

TEST_F(Terminal, ShowsOnADumbTerminalOnceThatItWaits) {
  PseudoTerminal terminal(
      Sandbox({"--fault", "delay:1000@8001*1"}, "TERM=dumb ztk status"), 80);
  EXPECT_EQ(terminal.End(), 0);
  EXPECT_THAT(terminal.shown(),
              StartsWith("Waiting for a mixer, at most 2 s; Ctrl-C ends\nMixer "
                         "1 (VRM-D6) does not answer"));
}

TEST_F(Terminal, SaysNothingOfWaitingElsewhere) {
  const Result result =
      Inside({"--fault", "delay:1000@8001*1"}, "ztk status > $DIR/o");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.err, IsEmpty());
}

TEST_F(Terminal, EndsOnCtrlCWithOneLineAndStatus130) {
  PseudoTerminal terminal(Sandbox({"--fault", "delay:2000"},
                                  "trap : INT; ztk boost set 1; echo =$?"),
                          80);
  ASSERT_TRUE(terminal.WaitFor("Ctrl-C ends"));
  terminal.Type("\x03");
  terminal.End();
  EXPECT_THAT(terminal.shown(), HasSubstr("\r\033[Kztk: interrupted; "));
  EXPECT_THAT(terminal.shown(), HasSubstr("\n=130\n"));
  EXPECT_FALSE(HasSettings("VRM-D6"));
}

TEST_F(Terminal, EndsOnCtrlCWithAnObject) {
  PseudoTerminal terminal(
      Sandbox({"--fault", "delay:2000"},
              "trap : INT; ztk status --json > $DIR/out.json; echo =$?"),
      80);
  ASSERT_TRUE(terminal.WaitFor("Ctrl-C ends"));
  terminal.Type("\x03");
  EXPECT_TRUE(terminal.WaitFor("=130"));
  const Json json = OneObject(File("out.json"));
  EXPECT_EQ(json["command"], "status");
  EXPECT_EQ(json["ok"], false);
  EXPECT_EQ(json["error"]["code"], "interrupted");
}

TEST_F(Terminal, IsNotInterruptedWhereTheSignalIsIgnored) {
  const Result result = Inside(
      {"--fault", "delay:300*1"},
      "trap '' INT; ztk boost set 1 > $DIR/o & until [ -s $DIR/requests ];"
      "do sleep 0.01; done; kill -INT $!; wait $!; echo $?");
  EXPECT_EQ(result.out, "0\n");
  EXPECT_EQ(File("o"), "Boost level: -5 dB (1), sent to 1 mixer, remembered\n");
}

// The next output, such as the prompt of a shell, starts on a new line.
TEST_F(Terminal, EndsWatchingOnCtrlCWithStatus0) {
  PseudoTerminal terminal(
      Sandbox({"-n", "1"}, "trap : INT; ztk watch; echo =$?"), 80);
  ASSERT_TRUE(terminal.WaitFor("watching for changes; Ctrl-C ends\n"));
  terminal.Type("\x03");
  EXPECT_TRUE(terminal.WaitFor("^C\n=0\n"));
}

class Picking : public Terminal {};

TEST_F(Picking, TakesANumberOrTextFromTheList) {
  for (const char *answer : {"3\n", "post\n", "POST CH2\n"}) {
    SCOPED_TRACE(answer);
    PseudoTerminal terminal(Sandbox({"-n", "1"}, "ztk input set 2"), 80);
    EXPECT_TRUE(
        terminal.WaitFor("\033[1m* 1  CH2 Control Tone PHONO\033[0m\n"));
    EXPECT_TRUE(terminal.WaitFor(
        "  7  REC OUT\nUSB input 2, number or text (empty to leave): "));
    terminal.Type(answer);
    EXPECT_EQ(terminal.End(), 0);
    EXPECT_THAT(terminal.shown(),
                HasSubstr("\nUSB input 2: Post CH2 Fader (3), sent to 1 mixer, "
                          "remembered\n"));
    EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0206 8002 0000"));
    Remember("VRM-D6", {});
  }
}

TEST_F(Picking, AsksAgainAfterAWrongWord) {
  PseudoTerminal terminal(Sandbox({"-n", "1"}, "ztk boost set"), 40);
  ASSERT_TRUE(
      terminal.WaitFor("Boost level, number or text (empty to leave): "));
  terminal.Type("12\n");
  EXPECT_TRUE(terminal.WaitFor("no choice \"12\"; nearest: -19 dB (4)\n"));
  terminal.Type("-1\n");
  EXPECT_TRUE(terminal.WaitFor("\"-1\" can mean: -10 dB (2), -15 dB (3),\n"));
  EXPECT_TRUE(
      terminal.WaitFor("Boost level, number or text (empty to leave): "));
  terminal.Type("-10\n");
  EXPECT_EQ(terminal.End(), 0);
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0200 8003 0000"));
}

TEST_F(Picking, AsksForTheChannelToo) {
  PseudoTerminal terminal(Sandbox({"-n", "1"}, "ztk input set"), 80);
  ASSERT_TRUE(terminal.WaitFor("\n  5  USB input 5\n"));
  ASSERT_TRUE(terminal.WaitFor("USB input audio, channel (empty to leave): "));
  terminal.Type("9\n");
  EXPECT_TRUE(terminal.WaitFor("no channel \"9\"; nearest: 5"));
  terminal.Type("ch2\n");
  EXPECT_TRUE(
      terminal.WaitFor("USB input 2, number or text (empty to leave): "));
  terminal.Type("6\n");
  EXPECT_EQ(terminal.End(), 0);
  EXPECT_THAT(terminal.shown(), HasSubstr("USB input 2: MIC (6), sent"));
}

TEST_F(Picking, SendsNothingWithoutAnAnswer) {
  for (const char *answer : {"\n", "  \n", "\x04"}) {
    PseudoTerminal terminal(Sandbox({"-n", "1"}, "ztk midi set; echo =$?"), 80);
    ASSERT_TRUE(
        terminal.WaitFor("MIDI channel, number or text (empty to leave): "));
    terminal.Type(answer);
    EXPECT_TRUE(terminal.WaitFor("ztk: nothing was chosen for MIDI channel"));
    EXPECT_TRUE(terminal.WaitFor("\n=2\n"));
    EXPECT_THAT(Requests(), IsEmpty());
    EXPECT_FALSE(HasSettings("VRM-K2"));
  }
}

TEST_F(Picking, EndsOnCtrlC) {
  PseudoTerminal terminal(
      Sandbox({"-n", "1"}, "trap : INT; ztk midi set; echo =$?"), 80);
  ASSERT_TRUE(
      terminal.WaitFor("MIDI channel, number or text (empty to leave): "));
  terminal.Type("\x03");
  EXPECT_TRUE(
      terminal.WaitFor("^C\nztk: interrupted; nothing was changed\n=130\n"));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Picking, IsNotForScripts) {
  for (const char *script :
       {"ztk midi set < /dev/null", "ztk midi set --json > $DIR/o",
        "ztk midi set | cat", "ztk midi set --json"}) {
    SCOPED_TRACE(script);
    PseudoTerminal terminal(Sandbox({"-n", "1"}, script), 80);
    terminal.End();
    EXPECT_THAT(terminal.shown(),
                HasSubstr("ztk: a CHOICE is missing for MIDI channel; "));
    EXPECT_THAT(terminal.shown(), Not(HasSubstr("number or text")));
  }
}

}  // namespace
}  // namespace ztk::test
