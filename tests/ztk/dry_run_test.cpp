// SPDX-License-Identifier: MIT
//
// A dry run has to show what the command does, and to do nothing.
#include <array>
#include <cstdio>

#include "cli_world.h"

namespace ztk::test {
namespace {

class DryRun : public CliWorld {
 protected:
  // The requests that the dry run shows, in the form of the log.
  static std::vector<std::string> Told(const Json &json) {
    std::vector<std::string> lines;
    for (const Json &one : json.value("requests", Json::array())) {
      std::array<char, 60> line{};
      std::snprintf(line.data(), line.size(),
                    "mixer %d: %02x %02x %04x %04x %04x", one.value("mixer", 0),
                    one.value("requestType", 0U), one.value("request", 0U),
                    one.value("value", 0U), one.value("index", 0U),
                    one.value("length", 0U));
      lines.emplace_back(line.data());
    }
    return lines;
  }
  // The logged requests, without the replies.
  std::vector<std::string> Sent() const {
    std::vector<std::string> lines = Requests();
    for (std::string &line : lines) line = line.substr(0, line.find(" ->"));
    return lines;
  }

  // Every command that sends, with every choice.
  static std::vector<std::string> Commands() {
    std::vector<std::string> commands;
    const auto add = [&commands](const std::string &start, int choices) {
      for (int choice = 1; choice <= choices; ++choice) {
        commands.push_back(start + std::to_string(choice));
      }
    };
    for (const char *channel : {"1 ", "2 ", "3 ", "4 "}) {
      add(std::string("ztk input set ") + channel, 7);
    }
    add("ztk input set 5 ", 8);
    for (const char *channel : {"1 ", "2 ", "3 "}) {
      add(std::string("ztk output set ") + channel, 3);
    }
    add("ztk boost set ", 4);
    add("ztk midi set ", 4);
    for (const char *other :
         {"ztk output default", "ztk output default 2", "ztk input raw 3 0 3",
          "ztk input raw 1 0xF 9", "ztk input raw 5 2 1", "ztk input raw 5 2 4",
          "ztk input apply", "ztk output apply 2", "ztk boost apply",
          "ztk midi apply", "ztk apply", "ztk apply --product VRM-B5"}) {
      commands.emplace_back(other);
    }
    return commands;
  }
};

TEST_F(DryRun, TellsExactlyWhatIsSentThen) {
  Remember("VRM-D6", {{"Output0", 7}, {"Output4", 3}, {"MaxLevel", 2}});
  Remember("VRM-B5", {{"Input1", 2}});
  Remember("VRM-K2", {{"MidiChannel", 3}});
  std::string dry;
  std::string real;
  const std::vector<std::string> commands = Commands();
  for (const std::string &command : commands) {
    dry += command + " --dry-run --json || exit\n";
    real += command + " > /dev/null 2> $DIR/err || exit\n";
  }
  // apply sends the remembered values, so these commands come last.
  const Result told = Inside({"-n", "2"}, dry);
  EXPECT_EQ(told.status, 0) << told.err;
  EXPECT_THAT(Requests(), IsEmpty());
  std::vector<std::string> expected;
  for (const std::string &line : SplitLines(told.out)) {
    const Json json = OneObject(line);
    EXPECT_EQ(json.value("dryRun", false), true);
    // A set before an apply changes what the apply sends.
    if (json.value("command", "").find("apply") != std::string::npos) continue;
    for (const std::string &one : Told(json)) expected.push_back(one);
  }
  real = real.substr(0, real.find("ztk input apply"));
  EXPECT_EQ(Inside({"-n", "2"}, real).status, 0);
  EXPECT_EQ(Sent(), expected);
  EXPECT_GT(expected.size(), 100U);
}

TEST_F(DryRun, TellsExactlyWhatIsApplied) {
  for (const char *command :
       {"ztk input apply", "ztk output apply 2", "ztk boost apply",
        "ztk midi apply", "ztk apply", "ztk apply --product VRM-B5"}) {
    SCOPED_TRACE(command);
    Remember("VRM-D6", {{"Output0", 7}, {"Output4", 3}, {"MaxLevel", 2}});
    Remember("VRM-B5", {{"Input1", 2}});
    Remember("VRM-K2", {{"MidiChannel", 3}});
    const Result told = OneMixer(std::string(command) + " --dry-run --json");
    EXPECT_THAT(Requests(), IsEmpty());
    EXPECT_EQ(OneMixer(command).status, 0);
    EXPECT_EQ(Sent(), Told(OneObject(told.out)));
  }
}

TEST_F(DryRun, SaysWhatTheLibraryWouldRefuse) {
  Remember("VRM-K2", {{"MidiChannel", 4}});
  Remember("VRM-D6", {{"Output0", 9}, {"MaxLevel", 4}});
  for (const char *command :
       {"ztk midi apply", "ztk apply", "ztk input raw 3 0 16",
        "ztk boost set 1 --product VRM-B5"}) {
    SCOPED_TRACE(command);
    EXPECT_EQ(OneMixer(std::string(command) + " --dry-run").status, 4);
    EXPECT_EQ(OneMixer(command).status, 4);
    EXPECT_THAT(Requests(), IsEmpty());
  }
}

TEST_F(DryRun, ShowsRequestsFileAndAnnouncement) {
  Remember("VRM-D6", {{"Output1", 4}});
  const std::string before = ReadAll(home_.SettingsFile("VRM-D6"));
  const Result result = OneMixer("ztk input set 2 3 --dry-run");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.out,
      "Dry run: nothing is sent or stored. This would happen:\n"
      "  mixer 1  USB input 2: Post CH2 Fader (3)\n"
      "  mixer 1  asked for the positions of its input selectors\n"
      "  remembered  USB input 2: Cross Fader B (5) -> Post CH2 Fader (3)\n"
      "              in " +
          home_.SettingsFile("VRM-D6").string() +
          "\n"
          "  announced   USB input 2: Post CH2 Fader (3), to other programs\n");
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")), before);
  EXPECT_THAT(Requests(), IsEmpty());
  const Json json = OneObject(OneMixer("ztk midi set 2 --dry-run --json").out);
  EXPECT_EQ(json.value("writes", Json()),
            Json({{{"file", home_.SettingsFile("VRM-K2").string()},
                   {"key", "MidiChannel"},
                   {"before", nullptr},
                   {"after", 1}}}));
  EXPECT_EQ(json.value("announcements", Json()),
            Json::parse(R"([{"name":"VRM-K2 MidiChannel Change",
                             "userInfo":{"ProductID":1,"Index":1}}])"));
  EXPECT_FALSE(HasSettings("VRM-K2"));
}

TEST_F(DryRun, TellsAValueThatStaysFromOneThatChanges) {
  Remember("VRM-D6", {{"Output0", 6}, {"Output1", 4}});
  const Result result = OneMixer(
      "ztk export > $DIR/club.json; ztk input set 1 1 > /dev/null;"
      "ztk import $DIR/club.json --dry-run");
  EXPECT_THAT(result.out, HasSubstr("  USB input 1: CH1 Control Tone PHONO (1) "
                                    "-> REC OUT (7)\n"));
  EXPECT_THAT(result.out,
              HasSubstr("  USB input 2: Cross Fader B (5), unchanged\n"));
}

TEST_F(DryRun, ShowsEachRequestAndEachFileOnce) {
  WriteAll(home_.path() / "club.json", R"({"version":1,"settings":{
      "VRM-D6":{"input":{"1":"MIC","2":"MIC"},"boost":"-5 dB"}}})");
  const Result result =
      Inside({"-n", "3"}, "ztk import $DIR/club.json --dry-run");
  EXPECT_EQ(result.out,
            "Dry run: nothing is sent or stored. This would happen:\n"
            "  mixers 1, 2, 3  USB input 1: MIC (6)\n"
            "  mixers 1, 2, 3  asked for the positions of its input selectors\n"
            "  mixers 1, 2, 3  USB input 2: MIC (6)\n"
            "  mixers 1, 2, 3  Boost level: -5 dB (1)\n"
            "  remembered  USB input 1: nothing -> MIC (6)\n"
            "  remembered  USB input 2: nothing -> MIC (6)\n"
            "  remembered  Boost level: nothing -> -5 dB (1)\n"
            "              in " +
                home_.SettingsFile("VRM-D6").string() +
                "\n"
                "  announced   USB input 1: MIC (6), to other programs\n"
                "  announced   USB input 2: MIC (6), to other programs\n"
                "  announced   Boost level: -5 dB (1), to other programs\n");
}

TEST_F(DryRun, LeavesOutMixersThatCannotBeOpened) {
  const Result result =
      Inside({"-n", "2", "--forbid", "1"}, "ztk boost set 1 --dry-run --json");
  EXPECT_EQ(Told(OneObject(result.out)),
            std::vector<std::string>({"mixer 2: 40 03 0300 8003 0000"}));
  EXPECT_THAT(
      Inside({"-n", "2", "--forbid", "1"}, "ztk boost set 1 --dry-run").out,
      HasSubstr(
          "  1 of 2 mixers cannot be opened and would receive nothing\n"));
  EXPECT_THAT(NoMixer("ztk boost set 1 --dry-run").out,
              HasSubstr("no request, as no mixer is attached"));
}

TEST_F(DryRun, SaysWhereThereIsNoMessageBus) {
  bus_.Stop();
  EXPECT_THAT(OneMixer("ztk input set 2 post --dry-run").out,
              EndsWith("\n  announced   USB input 2: Post CH2 Fader (3), to "
                       "other programs, if there is a message bus\n"));
}

TEST_F(DryRun, GivesTheWarningAboutAnotherModelThatTheCommandGives) {
  Remember("VRM-B5", {{"Input1", 2}});
  const std::string warning =
      "ztk: warning: USB output audio is a setting of the VRM-B5. The attached "
      "mixer is a VRM-D6";
  for (const char *command : {"ztk output set 2 aux", "ztk output apply 2",
                              "ztk apply", "ztk output default 2"}) {
    SCOPED_TRACE(command);
    const Result dry = OneMixer(std::string(command) + " --dry-run");
    EXPECT_EQ(LastLine(dry.err), warning);
    EXPECT_EQ(dry.status, 0);
    EXPECT_THAT(Requests(), IsEmpty());
    EXPECT_EQ(LastLine(OneMixer(command).err), warning);
    EXPECT_THAT(NoMixer(std::string(command) + " --dry-run").err, IsEmpty());
  }
  for (const char *command : {"ztk undo", "ztk import $DIR/club.json"}) {
    SCOPED_TRACE(command);
    OneMixer("ztk export > $DIR/club.json; ztk output set 2 1");
    EXPECT_THAT(OneMixer(std::string(command) + " --dry-run").err, IsEmpty());
    EXPECT_THAT(OneMixer(command).err, IsEmpty());
  }
}

TEST_F(DryRun, OfResetSaysThatThereIsNothingToForget) {
  EXPECT_EQ(OneMixer("ztk reset --dry-run").out,
            "Nothing is remembered: nothing to forget.\n");
}

TEST_F(DryRun, SaysThatNothingWouldBeSent) {
  Remember("VRM-D6", {{"Output0", 2}});
  EXPECT_THAT(OneMixer("ztk reset --dry-run").out,
              HasSubstr("happen:\n  no request\n  remembered "));
  OneMixer("ztk boost set 1; ztk boost set 2");
  Remember("VRM-D6", {{"MaxLevel", 3}});
  EXPECT_THAT(OneMixer("ztk undo --dry-run").out, HasSubstr("  no request\n"));
  EXPECT_THAT(
      Inside({"-n", "1", "--forbid", "1"}, "ztk boost set 1 --dry-run").out,
      HasSubstr("  no request, as no mixer can be opened\n"));
}

TEST_F(DryRun, AnnouncesNothing) {
  const Result result = OneMixer(
      "ztk watch > $DIR/seen 2> $DIR/ready & watcher=$!\n"
      "trap 'kill $watcher' EXIT\n"
      "until grep -q watching $DIR/ready; do sleep 0.01; done\n"
      "ztk boost set 1 --dry-run; ztk output default --dry-run\n"
      "ztk input set 1 mic --dry-run; ztk boost set 2 > /dev/null\n"
      "until grep -q Boost $DIR/seen; do sleep 0.01; done");
  EXPECT_THAT(Lines("seen"), ElementsAre("Boost level: -10 dB (2)"));
}

}  // namespace
}  // namespace ztk::test
