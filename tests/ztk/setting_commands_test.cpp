// SPDX-License-Identifier: MIT
#include "cli_world.h"

namespace ztk::test {
namespace {

class InputSet : public CliWorld {};
class InputRaw : public CliWorld {};
class OutputSet : public CliWorld {};
class OutputDefault : public CliWorld {};
class BoostSet : public CliWorld {};
class MidiSet : public CliWorld {};
class List : public CliWorld {};
class Get : public CliWorld {};
class Json_ : public CliWorld {};

TEST_F(InputSet, SendsRemembersAndReadsTheSelector) {
  const Result result = OneMixer("ztk input set 2 3");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "USB input 2: Post CH2 Fader (3), sent to 1 mixer, remembered\n");
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_THAT(Requests(),
              ElementsAre("mixer 1: 40 03 0206 8002 0000",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")),
              HasSubstr("<key>Output1</key>"));
}

TEST_F(BoostSet, TellsWhereADamagedSettingsFileIsKept) {
  const std::string file = home_.SettingsFile("VRM-D6").string();
  WriteAll(file, "broken");
  const Result result = OneMixer("ztk boost set 1");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err,
            "ztk: warning: the settings file was damaged; its other settings "
            "are not remembered any longer; it is kept as " +
                file +
                ".unreadable-1; to bring it back, once it is repaired: "
                "mv " +
                file + ".unreadable-1 " + file + "\n");
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6").string() + ".unreadable-1"),
            "broken");
}

// An older kept file has another name.
TEST_F(BoostSet, NamesTheFileThatWasKeptLast) {
  const std::string file = home_.SettingsFile("VRM-D6").string();
  WriteAll(file + ".unreadable-1", "older");
  WriteAll(file, "broken");
  EXPECT_THAT(OneMixer("ztk boost set 1").err,
              HasSubstr("; it is kept as " + file + ".unreadable-2; "));
}

TEST_F(BoostSet, TellsWhereAFileIsKeptThatTheUserMayNotRead) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  const Result result = NoMixer(
      "run=\"setpriv --reuid 65534 --clear-groups env HOME=$DIR/home\"\n"
      "$run ztk --version > /dev/null || exit 97\n"
      "chmod 755 $DIR; folder=$DIR/home/.config/tarvix/Preferences\n"
      "mkdir -p $folder; echo old > $folder/com.tarvix.VRM-D6autosetup.plist\n"
      "chmod 0 $folder/*; chown -R 65534 $DIR/home\n"
      "$run ztk boost set 1; ls $folder");
  if (result.status == 97)
    GTEST_SKIP() << "the program cannot be run by others";
  EXPECT_THAT(result.err,
              HasSubstr("ztk: warning: the settings file could not be read, as "
                        "you have no permission; its other settings are not "
                        "remembered any longer; it is kept as "));
  const std::string file =
      home_.path().string() +
      "/home/.config/tarvix/Preferences/com.tarvix.VRM-D6autosetup.plist";
  EXPECT_THAT(result.err, HasSubstr("; to bring it back: chmod u+rw " + file +
                                    ".unreadable-1 && mv " + file +
                                    ".unreadable-1 " + file + "\n"));
  EXPECT_THAT(result.out, HasSubstr("com.tarvix.VRM-D6autosetup.plist\n"
                                    "com.tarvix.VRM-D6autosetup.plist."
                                    "unreadable-1\n"));
}

TEST_F(InputSet, FindsTheChoiceByNumberTextAndBeginning) {
  const Result result = OneMixer(
      "ztk input set 1 'post ch1 fader' && ztk input set 1 cross fader b &&"
      "ztk input set 1 RE && ztk input set 5 8");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0106 8002 0000",
                                    "mixer 1: 40 03 0108 8002 0000",
                                    "mixer 1: 40 03 010a 8002 0000",
                                    "mixer 1: 40 03 0509 8002 0000"));
}

TEST_F(InputSet, ListsWhatAnAmbiguousBeginningCanMean) {
  const Result result = OneMixer("ztk input set 1 cross");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(
      result.err,
      "ztk: choice \"cross\" can mean: Cross Fader A (4), Cross Fader B (5); "
      "type more of it, or its number; see ztk input set --help\n");
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(InputSet, ListsWhatIsAcceptedForAWrongOrMissingChoice) {
  const Result result =
      OneMixer("ztk input set 1 nothing; ztk input set 1; ztk input set 1 ''");
  EXPECT_EQ(result.status, 2);
  const std::vector<std::string> lines = SplitLines(result.err);
  ASSERT_EQ(lines.size(), 3U);
  for (const std::string &line : lines) {
    EXPECT_THAT(line, HasSubstr("accepted: CH1 Control Tone PHONO (1), "));
    EXPECT_THAT(line, HasSubstr(", REC OUT (7)"));
  }
}

TEST_F(InputSet, DoesNotTakeThePlaceholder) {
  const Result result = OneMixer(
      "ztk input set 1 'PARAM ERROR'; echo $?; ztk input set 1 8; echo $?;"
      "ztk input set 5 9; echo $?");
  EXPECT_EQ(result.out, "2\n2\n2\n");
  EXPECT_THAT(result.err, Not(HasSubstr("PARAM ERROR (8)")));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(InputSet, IsRejectedForAnotherModel) {
  const Result result = OneMixer("ztk input set 1 3 --product VRM-K2 --json");
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(OneObject(result.out)["error"]["code"], "rejected");
  EXPECT_THAT(result.err,
              HasSubstr("USB input audio is a setting of the VRM-D6"));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(InputRaw, SendsTheValueAndRemembersNothing) {
  const Result result = OneMixer("ztk input raw 3 0 3; ztk input raw 3 0xF 9");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(Line(result.out, 0),
            "USB input 3: HIGH 0, SOURCE 3, sent to 1 mixer, not remembered");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 1303 8002 0000",
                                    "mixer 1: 40 03 0309 8002 0000"));
  EXPECT_FALSE(HasSettings("VRM-D6"));
}

TEST_F(InputRaw, IsRejectedForASourceThatTheLibraryRefuses) {
  const Result result = OneMixer("ztk input raw 3 0 16 --json");
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(OneObject(result.out)["error"]["code"], "rejected");
  EXPECT_THAT(result.err,
              HasSubstr("SOURCE is too large: 16; accepted: 0 to 15"));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(InputRaw, NeedsNumbers) {
  const Result result = OneMixer(
      "ztk input raw 3 x 1; echo $?; ztk input raw 3 0; echo $?;"
      "ztk input raw 3; echo $?; ztk input raw; echo $?");
  EXPECT_EQ(result.out, "2\n2\n2\n2\n");
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(OutputSet, BelongsToTheB5AndKeepsItsFile) {
  const Result result = OneMixer("ztk output set 2 aux --json");
  EXPECT_EQ(result.status, 0);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["command"], "output set");
  EXPECT_EQ(json["ok"], true);
  EXPECT_EQ(json["setting"], "output");
  EXPECT_EQ(json["model"], "VRM-B5");
  EXPECT_EQ(json["channel"], 2);
  EXPECT_EQ(json["number"], 3);
  EXPECT_EQ(json["text"], "AUX");
  EXPECT_EQ(json["value"], 2);
  EXPECT_EQ(json["result"], 100);
  EXPECT_EQ(json["remembered"], true);
  EXPECT_EQ(json["mixers"]["answered"], 1);
  EXPECT_EQ(json["announced"], true);
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0204 8016 0000"));
  EXPECT_TRUE(HasSettings("VRM-B5"));
  EXPECT_FALSE(HasSettings("VRM-D6"));
}

TEST_F(OutputSet, HasThreeChannels) {
  const Result result = OneMixer("ztk output set 4 aux");
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.err, HasSubstr("accepted: 1 to 3"));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(OutputDefault, SendsOneOrAllAndRemembersNothing) {
  const Result result = OneMixer("ztk output default 3; ztk output default");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(Line(result.out, 0),
            "USB output 3: default AUX (3), sent to 1 mixer, not remembered");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0304 8016 0000",
                                    "mixer 1: 40 03 0100 8016 0000",
                                    "mixer 1: 40 03 0201 8016 0000",
                                    "mixer 1: 40 03 0304 8016 0000"));
  EXPECT_FALSE(HasSettings("VRM-B5"));
}

TEST_F(BoostSet, TakesALevelHoweverItIsTyped) {
  for (const char *words :
       {"-10", "'-10 dB'", "-10dB", "-10 dB", "10dB", "2", "-- -10"}) {
    SCOPED_TRACE(words);
    const Result result = OneMixer(std::string("ztk boost set ") + words);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out,
              "Boost level: -10 dB (2), sent to 1 mixer, remembered\n");
    EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0200 8003 0000"));
  }
}

// "4" is the fourth choice, so "5" is no level beside it.
TEST_F(BoostSet, TakesABareNumberForTheOneOfAChoice) {
  const Result result = OneMixer("ztk boost set 5");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(
      result.err,
      "ztk: Boost level has no choice \"5\"; nearest: -5 dB (1); accepted: "
      "-5 dB (1), -10 dB (2), -15 dB (3), -19 dB (4)\n");
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(BoostSet, IsRejectedForAModelThatCanOnlyBeListed) {
  const Result result = OneMixer(
      "ztk boost set 1 --product VRM-B5; echo $?;"
      "ztk boost get --product VRM-B5; echo $?;"
      "ztk boost list --product VRM-B5 > /dev/null; echo $?");
  EXPECT_EQ(result.out, "4\n4\n0\n");
  EXPECT_THAT(result.err, HasSubstr("Boost level is a setting of the VRM-D6"));
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(MidiSet, BelongsToTheK2) {
  const Result result = OneMixer("ztk midi set 'ch 10' --product VRM-K2");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(
      result.out,
      "MIDI channel: CH 10 (10), sent to 1 mixer, remembered\n"
      "  apply can only re-send channels 1 to 4; for 5 to 16 use set again\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0900 8004 0000"));
  EXPECT_TRUE(HasSettings("VRM-K2"));
}

TEST_F(List, MarksTheRememberedChoice) {
  Remember("VRM-D6", {{"Output1", 4}});
  const Result result = NoMixer("ztk input list 2");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "USB input audio is a setting of the VRM-D6.\n"
            "A * marks the remembered choice, or the default if nothing is "
            "remembered.\n"
            "\n"
            "USB input 2\n"
            "  1  CH2 Control Tone PHONO\n"
            "  2  CH2 Control Tone LINE\n"
            "  3  Post CH2 Fader\n"
            "  4  Cross Fader A\n"
            "* 5  Cross Fader B\n"
            "  6  MIC\n"
            "  7  REC OUT\n"
            "No mixer is attached; when one is attached, run: ztk apply\n");
}

TEST_F(List, SaysWhenTheMarkIsADefault) {
  const Result result = NoMixer("ztk boost list");
  EXPECT_THAT(result.out, HasSubstr("Boost level (nothing is remembered; * "
                                    "marks the default)"));
  EXPECT_THAT(result.out, HasSubstr("\n* 4  -19 dB\n"));
}

TEST_F(List, AlignsTwoDigits) {
  const Result result = NoMixer("ztk midi list");
  EXPECT_THAT(result.out, HasSubstr("\n*  1  CH 1\n"));
  EXPECT_THAT(result.out, HasSubstr("\n  10  CH 10\n"));
  EXPECT_THAT(result.out,
              HasSubstr("MIDI channel is a setting of the VRM-K2."));
}

TEST_F(List, ShowsAllChannelsAndNoPlaceholder) {
  const Json json = OneObject(NoMixer("ztk input list --json").out);
  ASSERT_EQ(json["channels"].size(), 5U);
  EXPECT_EQ(json["channels"][0]["choices"].size(), 7U);
  EXPECT_EQ(json["channels"][4]["choices"].size(), 8U);
  EXPECT_EQ(json["channels"][4]["choices"][7]["text"], "MIC");
  EXPECT_EQ(json["channels"][4]["choices"][7]["number"], 8);
  EXPECT_THAT(json.dump(), Not(HasSubstr("PARAM ERROR")));
}

TEST_F(Get, TellsRememberedValuesFromDefaults) {
  Remember("VRM-D6", {{"Output0", 2}});
  const Result result = NoMixer("ztk input get");
  EXPECT_EQ(
      result.out,
      "USB input audio is a setting of the VRM-D6. ztk shows the remembered "
      "choices.\n"
      "USB input 1  Post CH1 Fader (3)\n"
      "USB input 2  CH2 Control Tone PHONO (1), default: nothing is "
      "remembered\n"
      "USB input 3  CH3 Control Tone PHONO (1), default: nothing is "
      "remembered\n"
      "USB input 4  CH4 Control Tone PHONO (1), default: nothing is "
      "remembered\n"
      "USB input 5  REC OUT (1), default: nothing is remembered\n"
      "No mixer is attached; when one is attached, run: ztk apply\n");
  const Json json = OneObject(NoMixer("ztk input get 1 --json").out);
  EXPECT_EQ(json["channels"],
            Json::parse(R"([{"channel":1,"number":3,"text":"Post CH1 Fader",
                             "value":2,"remembered":true,"unsent":null}])"));
}

TEST_F(Get, SaysWhyThereIsNothingToReadForAnotherModel) {
  const Result result = OneMixer("ztk input get --product VRM-B5");
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "ztk: nothing can be read for the VRM-B5: USB input audio is a "
            "setting of the VRM-D6. Leave --product out\n");
}

TEST_F(Get, ShowsAnyNumberThatStandsInTheFile) {
  Remember("VRM-D6", {{"Output0", 77}, {"MaxLevel", -3}});
  const Result result = NoMixer("ztk input get 1; ztk boost get");
  EXPECT_THAT(result.out,
              HasSubstr("USB input 1  77, which is not a choice\n"));
  EXPECT_THAT(result.out,
              HasSubstr("Boost level  -3, which is not a choice\n"));
  const Json json = OneObject(NoMixer("ztk boost get --json").out);
  EXPECT_EQ(json["channels"],
            Json::parse(R"([{"channel":null,"number":null,"text":null,
                             "value":-3,"remembered":true,"unsent":null}])"));
}

TEST_F(Json_, IsUnderstoodBeforeAndAfterTheCommand) {
  for (const char *command :
       {"ztk --json boost get", "ztk boost --json get", "ztk boost get --json",
        "ztk --json boost get --json"}) {
    SCOPED_TRACE(command);
    EXPECT_EQ(OneObject(NoMixer(command).out)["command"], "boost get");
  }
}

TEST_F(Json_, TellsErrorsTooOnBothStreams) {
  const Result result = NoMixer("ztk input set 9 1 --json");
  EXPECT_EQ(result.status, 2);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["command"], "input set");
  EXPECT_EQ(json["ok"], false);
  EXPECT_EQ(json["error"]["code"], "usage");
  EXPECT_EQ("ztk: " + json["error"]["message"].get<std::string>() + "\n",
            result.err);
}

}  // namespace
}  // namespace ztk::test
