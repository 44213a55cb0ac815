// SPDX-License-Identifier: MIT
//
// Whether the program reports correctly which mixers were reached.
#include "cli_world.h"

namespace ztk::test {
namespace {

class Reach : public CliWorld {
 protected:
  // The mixers in the output: found, answered, and the others with the reason.
  static std::string Told(const Json &json) {
    const Json mixers = json.value("mixers", Json::object());
    std::string told = std::to_string(mixers.value("answered", -1)) + "/" +
                       std::to_string(mixers.value("found", -1));
    for (const Json &one : mixers.value("unanswered", Json::array())) {
      told += " " + std::to_string(one.value("mixer", -1)) + ":" +
              one.value("reason", "");
    }
    return told;
  }
  static std::string ErrorWord(const Json &json) {
    return json.value("error", Json::object()).value("code", "");
  }
};

TEST_F(Reach, IsThreeWithoutAMixerAndTheValueIsRemembered) {
  const Result result = NoMixer("ztk input set 2 3 --json");
  EXPECT_EQ(result.status, 3);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["ok"], false);
  EXPECT_EQ(json["result"], 101);
  EXPECT_EQ(json["remembered"], true);
  EXPECT_EQ(json["announced"], true);
  EXPECT_EQ(Told(json), "0/0");
  EXPECT_EQ(ErrorWord(json), "no-mixer");
  EXPECT_EQ(LastLine(result.err),
            "ztk: USB input 2 is saved, but not sent: no mixer is attached; "
            "when one is attached, run: ztk apply");
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")), HasSubstr("Output1"));
}

TEST_F(Reach, ExplainsAMixerThatMayNotBeOpened) {
  const Result result =
      Inside({"-n", "1", "--forbid", "1"}, "ztk boost set 2 --json");
  EXPECT_EQ(result.status, 3);
  const Json json = OneObject(result.out);
  EXPECT_EQ(Told(json), "0/1 1:not-permitted");
  EXPECT_EQ(json["remembered"], true);
  EXPECT_EQ(ErrorWord(json), "no-mixer");
  EXPECT_THAT(result.err, HasSubstr("attached but cannot be opened: you have "
                                    "no permission for /dev/bus/usb/001/002"));
  EXPECT_THAT(result.err, HasSubstr("; ztk doctor tells why; "));
  EXPECT_THAT(result.err, HasSubstr("is saved, but not sent"));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Reach, IsSixWhenOneOfSeveralMayNotBeOpened) {
  const Result result =
      Inside({"-n", "3", "--forbid", "2"}, "ztk boost set 2 --json");
  EXPECT_EQ(result.status, 6);
  const Json json = OneObject(result.out);
  EXPECT_EQ(Told(json), "2/3 2:not-permitted");
  EXPECT_EQ(ErrorWord(json), "some-mixers");
  EXPECT_EQ(json["warnings"].size(), 1U);
  EXPECT_THAT(result.err, StartsWith("ztk: warning: mixer 2 is attached"));
  EXPECT_THAT(Line(result.err, 1),
              HasSubstr("only 2 of 3 mixers accepted the change; when the "
                        "others are ready, run: "
                        "ztk apply"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0200 8003 0000",
                                    "mixer 3: 40 03 0200 8003 0000"));
}

TEST_F(Reach, NamesAllWhenNoneOfSeveralMayBeOpened) {
  const Result result =
      Inside({"-n", "2", "--forbid", "1", "--forbid", "2"}, "ztk boost set 2");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out, "Boost level: -10 dB (2)\n");
  EXPECT_THAT(Line(result.err, 0), HasSubstr("mixer 1 is attached"));
  EXPECT_THAT(Line(result.err, 1), HasSubstr("mixer 2 is attached"));
  EXPECT_THAT(Line(result.err, 2), HasSubstr("none of 2 mixers answered"));
}

TEST_F(Reach, SendsToEveryMixer) {
  const Result result = Inside({"-n", "2"}, "ztk input set 1 mic");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "USB input 1: MIC (6), sent to 2 mixers, remembered\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0109 8002 0000",
                                    "mixer 2: 40 03 0109 8002 0000"));
}

// The library returns 100 in each of these cases. The outcome is said once.
TEST_F(Reach, TellsWhyAMixerThatWasOpenedDidNotAnswer) {
  const struct {
    const char *fault;
    const char *told;
    const char *message;
  } rows[] = {
      {"stall@w8003", "0/1 1:refused",
       "the mixer refused it; switch it off and on again, then run: "},
      {"silence@w8003", "0/1 1:silent",
       "the mixer did not answer; switch it off and on again, then run: "},
      {"unplug@w8003", "0/1 1:gone",
       "the mixer was unplugged or switched off; once it is back, run: "},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.fault);
    const Result result =
        Inside({"-n", "1", "--fault", row.fault}, "ztk boost set 2 --json");
    EXPECT_EQ(result.status, 3);
    const Json json = OneObject(result.out);
    EXPECT_EQ(Told(json), row.told);
    EXPECT_EQ(json["result"], 100);
    EXPECT_EQ(json["remembered"], true);
    EXPECT_EQ(result.err, std::string("ztk: Boost level is saved, but ") +
                              row.message + "ztk apply\n");
  }
}

// The mixer would answer a query: it refuses only the value.
TEST_F(Reach, NamesARefusedValueOfEverySettingThatTheMixerHas) {
  const struct {
    const char *fault;
    const char *command;
    int status;
    const char *told;
  } rows[] = {
      {"stall@w8002", "input set 2 3", 3, "0/1 1:refused"},
      {"silence@w8002", "input set 2 3", 3, "0/1 1:silent"},
      {"stall@w8003", "boost apply", 3, "0/1 1:refused"},
      {"silence@w8003", "apply", 3, "0/1 1:silent"},
      {"stall@w8002", "input raw 1 0 5", 3, "0/1 1:refused"},
      {"stall@w8016", "output default 1", 3, "0/1 1:refused"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.command) + " with " + row.fault);
    Remember("VRM-D6", {{"MaxLevel", 2}});
    const Result result = Inside({"-n", "1", "--fault", row.fault},
                                 "ztk " + std::string(row.command) + " --json");
    EXPECT_EQ(result.status, row.status);
    EXPECT_EQ(Told(OneObject(result.out)), row.told);
    EXPECT_EQ(ErrorWord(OneObject(result.out)), "no-mixer");
  }
}

TEST_F(Reach, SendsNothingBesideWhatTheLibrarySends) {
  EXPECT_EQ(OneMixer("ztk boost set 2").status, 0);
  EXPECT_THAT(Requests(), ElementsAre("mixer 1: 40 03 0200 8003 0000"));
}

// The library misses the mixer after one that is unplugged.
TEST_F(Reach, TellsWhichMixerWasUnpluggedByTheNumberThatItHad) {
  const Result result = Inside(
      {"-n", "3", "--fault", "1:unplug@w8003", "--fault", "3:stall@w8003"},
      "ztk boost set 2 --json");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(Told(OneObject(result.out)), "0/3 1:gone 2:busy 3:refused");
}

TEST_F(Reach, SaysNothingOfASelectorThatWasNotRead) {
  const Result result =
      Inside({"-n", "1", "--fault", "stall@r8002"}, "ztk input set 2 1");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.err, Not(HasSubstr("selector")));
}

TEST_F(Reach, SaysOnceThatTheMixerRefusedTheValue) {
  const Result result = Inside({"-n", "1", "--fault", "stall"},
                               "ztk boost set 2; ztk boost apply");
  EXPECT_EQ(result.out, "Boost level: -10 dB (2)\nBoost level: -10 dB (2)\n");
  EXPECT_EQ(
      result.err,
      "ztk: Boost level is saved, but the mixer refused it; switch it off "
      "and on again, then run: ztk apply\n"
      "ztk: the mixer refused it; switch it off and on again, then run: "
      "ztk boost apply\n");
}

TEST_F(Reach, SaysOfEachValueHowManyMixersHaveAcceptedIt) {
  const Result result =
      Inside({"-n", "2", "--fault", "2:stall@w8003"},
             "ztk input set 1 mic; ztk boost set 2; ztk apply");
  EXPECT_EQ(result.out,
            "USB input 1: MIC (6), sent to 2 mixers, remembered\n"
            "Boost level: -10 dB (2), sent to 1 of 2 mixers, remembered\n"
            "USB input 1: MIC (6), sent to 2 mixers\n"
            "Boost level: -10 dB (2), sent to 1 of 2 mixers\n");
}

TEST_F(Reach, SaysThatTheAttachedMixerIsOfAnotherModel) {
  const Result result = OneMixer("ztk output set 2 aux; ztk midi set 2");
  EXPECT_EQ(
      result.err,
      "ztk: warning: USB output audio is a setting of the VRM-B5. The "
      "attached mixer is a VRM-D6\n"
      "ztk: warning: MIDI channel is a setting of the VRM-K2. The attached "
      "mixer is a VRM-D6\n");
  EXPECT_EQ(NoMixer("ztk midi set 3 2> $DIR/err").status, 3);
  EXPECT_THAT(File("err"), Not(HasSubstr("attached is a")));
}

TEST_F(Reach, IsSevenWhenTheValueCouldNotBeRemembered) {
  // A file in place of the folder.
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  const Result result = OneMixer("ztk boost set 1 --json");
  EXPECT_EQ(result.status, 7);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["remembered"], false);
  EXPECT_EQ(Told(json), "1/1");
  EXPECT_EQ(ErrorWord(json), "not-remembered");
  EXPECT_THAT(result.err, HasSubstr("Boost level is not remembered: "));
  EXPECT_THAT(result.err, HasSubstr("; make sure that you can write to "));
  EXPECT_THAT(result.err, HasSubstr(".config/tarvix/Preferences"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

TEST_F(Reach, IsFiveWhenTheValueWentNowhere) {
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  const Result result = NoMixer("ztk boost set 1");
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(result.out, "Boost level: -5 dB (1)\n");
  EXPECT_THAT(result.err, StartsWith("ztk: Boost level is not remembered: "));
  EXPECT_THAT(result.err, HasSubstr("; and not sent: no mixer is attached\n"));
  EXPECT_THAT(result.err, HasSubstr("; make sure that you can write to "));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
}

TEST_F(Reach, IsFiveWhenWhatIsNotRememberedWasNotAnsweredEither) {
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  const Result result =
      Inside({"-n", "1", "--fault", "stall@w8003"}, "ztk boost set 1");
  EXPECT_EQ(result.status, 5);
  EXPECT_THAT(result.err, StartsWith("ztk: Boost level is not remembered: "));
  EXPECT_THAT(result.err, HasSubstr("; and the mixer refused it\n"));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
}

TEST_F(Reach, DoesNotSayThatWhatWasNotRememberedCanBeApplied) {
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  const Result result =
      Inside({"-n", "2", "--fault", "2:stall@w8003"}, "ztk boost set 1");
  EXPECT_EQ(result.status, 7);
  EXPECT_THAT(result.err, HasSubstr("warning: only 1 of 2 mixers accepted the "
                                    "change; switch the other one off and on "
                                    "again, then set it again\n"));
  EXPECT_THAT(LastLine(result.err),
              StartsWith("ztk: Boost level is not remembered: "));
}

TEST_F(Reach, IsThreeForWhatIsNeverRemembered) {
  const Result result =
      NoMixer("ztk input raw 1 0 5; echo $?; ztk output default 2; echo $?");
  EXPECT_THAT(Line(result.out, 1), "3");
  EXPECT_THAT(Line(result.out, 3), "3");
  EXPECT_FALSE(HasSettings("VRM-D6"));
  EXPECT_FALSE(HasSettings("VRM-B5"));
}

// Nobody is there to hear an announcement.
TEST_F(Reach, SaysNothingOfAMissingBus) {
  bus_.Stop();
  const Result result = OneMixer(
      "ztk boost set 1 --json; echo $?; ztk input set 1 mic; echo $?;"
      "DBUS_SESSION_BUS_ADDRESS= ztk boost set 2; echo $?");
  EXPECT_EQ(Json::parse(Line(result.out, 0))["announced"], false);
  EXPECT_EQ(Line(result.out, 1), "0");
  EXPECT_EQ(Line(result.out, 3), "0");
  EXPECT_EQ(Line(result.out, 5), "0");
  EXPECT_EQ(result.err, "");
}

TEST_F(Reach, DoesNotTakeAFrozenBusForOneThatHasHeard) {
  bus_.Suspend();
  const Result result = OneMixer("ztk boost set 1 --json");
  bus_.Resume();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(OneObject(result.out)["announced"], false);
  EXPECT_THAT(result.err, StartsWith("ztk: warning: not announced: "));
}

}  // namespace
}  // namespace ztk::test
