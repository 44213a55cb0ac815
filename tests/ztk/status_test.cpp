// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli_world.h"

namespace ztk::test {
namespace {

class Status : public CliWorld {};
class Versions : public CliWorld {};

TEST_F(Status, ShowsTheMixerAndWhatIsRemembered) {
  Remember("VRM-D6", {{"Output1", 2}, {"MaxLevel", 0}});
  Remember("VRM-K2", {{"MidiChannel", 40}});
  const Result result = Inside(
      {"-n", "1", "--selector", "2=3", "--reply", "8004=0100"}, "ztk status");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "Mixer 1 (VRM-D6) answers\n"
            "  firmware      4.36\n"
            "  certified     level 1\n"
            "  selectors     CH1 4   CH2 3   CH3 4   CH4 4\n"
            "  Serato        active\n"
            "Remembered\n"
            "  USB input 2   Post CH2 Fader (3), VRM-D6\n"
            "  Boost level   -5 dB (1), VRM-D6\n"
            "  MIDI channel  40, which is not a choice, VRM-K2\n");
  EXPECT_THAT(result.err, IsEmpty());
}

TEST_F(Status, TellsTheSameInJson) {
  Remember("VRM-D6", {{"Output1", 2}});
  const Json json = OneObject(
      Inside({"-n", "1", "--reply", "8007=01020304"}, "ztk status --json").out);
  EXPECT_EQ(json["ok"], true);
  EXPECT_EQ(json["connected"], true);
  EXPECT_EQ(json["found"], 1);
  EXPECT_EQ(json["reached"], 1);
  EXPECT_EQ(json["mixers"], Json::parse(R"([{
      "position":1,"reachable":true,"answers":true,"refuses":false,
      "port":"1-1","product":"VRM-D6",
      "firmware":{"number":1078,"hex":"0x0436","derived":"4.36"},
      "certificationLevel":16909060,"selectors":[4,4,4,4],
      "serato":"inactive"}])"));
  EXPECT_EQ(json["remembered"], Json::parse(R"([{
      "setting":"input","model":"VRM-D6","channel":2,"number":3,
      "text":"Post CH2 Fader","value":2,"unsent":null}])"));
}

TEST_F(Status, SaysThatNoMixerIsAttached) {
  const Result result =
      Inside({"-n", "0", "--other-devices", "4"}, "ztk status");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "No mixer is attached\nNothing is remembered\n"
            "Next: plug the mixer in and switch it on; if that does not help, "
            "run ztk doctor\n");
  const Json json = OneObject(NoMixer("ztk status --json").out);
  EXPECT_EQ(json["connected"], false);
  EXPECT_EQ(json["found"], 0);
  EXPECT_EQ(json["mixers"], Json::array());
  EXPECT_EQ(json["remembered"], Json::array());
}

TEST_F(Status, ExplainsAMixerThatMayNotBeOpened) {
  const Result result =
      Inside({"-n", "2", "--forbid", "1"}, "ztk status; ztk status --json");
  EXPECT_THAT(
      result.out,
      StartsWith(
          "2 mixers are attached, 1 answers\n"
          "Mixer 1 (VRM-D6), port 1-1, is attached but cannot be opened\n"
          "Mixer 2 (VRM-D6), port 1-2, answers, firmware 4.36\n"));
  const Json json = OneObject(LastLine(result.out) + "\n");
  EXPECT_EQ(json["found"], 2);
  EXPECT_EQ(json["reached"], 1);
  EXPECT_EQ(json["mixers"][0]["reachable"], false);
  EXPECT_THAT(json["mixers"][0]["reason"].get<std::string>(),
              StartsWith("mixer 1 is attached but cannot be opened: you have "
                         "no permission for /dev/bus/usb/001/002; "));
  EXPECT_THAT(Line(result.err, 0), HasSubstr("; ztk doctor tells why"));
}

TEST_F(Status, TellsEveryMixerInTheOrderOfTheBus) {
  const Json json = OneObject(
      Inside({"-n", "2", "--other-devices", "3", "--reply", "2:8001=0100"},
             "ztk status --json")
          .out);
  EXPECT_EQ(json["mixers"][0]["firmware"]["number"], 1078);
  EXPECT_EQ(json["mixers"][1]["firmware"]["number"], 1);
  EXPECT_EQ(json["mixers"][1]["firmware"]["derived"], "0.01");
}

TEST_F(Status, SaysWhatAMixerDoesNotAnswer) {
  const Result result = Inside({"-n", "1", "--fault", "stall@r8001"},
                               "ztk status; ztk status --json");
  EXPECT_THAT(result.out, HasSubstr("  firmware      refused by the mixer\n"));
  const Json json = OneObject(LastLine(result.out) + "\n");
  EXPECT_EQ(json["mixers"][0]["firmware"], nullptr);
  EXPECT_EQ(json["mixers"][0]["unanswered"]["firmware"],
            "refused by the mixer");
  EXPECT_EQ(json["mixers"][0]["certificationLevel"], 1);
}

TEST_F(Status, LooksAgainWhenAMixerGoesWhileItIsAsked) {
  const Result result = Inside({"-n", "3", "--fault", "1:unplug", "--reply",
                                "2:8001=0100", "--fault", "3:stall@8007"},
                               "ztk status --json");
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["found"], 2);
  EXPECT_EQ(json["reached"], 2);
  EXPECT_EQ(json["mixers"][0]["firmware"]["number"], 1);
  EXPECT_EQ(json["mixers"][1]["firmware"]["number"], 1078);
  EXPECT_EQ(result.err, "");
}

TEST_F(Status, ShowsNothingOfAMixerThatGoesWhileItIsAsked) {
  const Result result = Inside({"-n", "1", "--fault", "unplug"}, "ztk status");
  EXPECT_EQ(Line(result.out, 0), "No mixer is attached");
}

TEST_F(Status, AsksASilentMixerOnlyOnce) {
  const Result result = Inside({"-n", "1", "--fault", "silence"}, "ztk status");
  EXPECT_EQ(result.out,
            "Mixer 1 (VRM-D6) does not answer\n"
            "Nothing is remembered\n"
            "Next: switch the mixer that does not answer off and on again; if "
            "that does not help, run ztk doctor\n");
  EXPECT_EQ(Requests().size(), 1U);
  const Json json = OneObject(
      Inside({"-n", "1", "--fault", "silence@8007"}, "ztk status --json").out);
  EXPECT_EQ(json["mixers"][0]["answers"], false);
  EXPECT_EQ(json["mixers"][0]["unanswered"]["certificationLevel"], "no answer");
  EXPECT_EQ(json["mixers"][0]["unanswered"]["selectors"], "not asked");
}

// Each of them is waited for one second; together they take hardly more.
TEST_F(Status, AsksManyMixersAtTheSameTime) {
  const Result result =
      Inside({"-n", "9", "--fault", "silence"},
             "ztk-virtual-mixer fault --mixer 9 none; ztk status --json");
  EXPECT_EQ(Requests().size(), 12U);
  const Json json = OneObject(LastLine(result.out) + "\n");
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(json["mixers"][i]["answers"], false);
  }
  EXPECT_EQ(json["mixers"][8]["answers"], true);
}

TEST_F(Status, ShowsAllOfSeveralMixersWhenToldSo) {
  EXPECT_EQ(
      Inside({"-n", "2", "--fault", "2:silence"}, "ztk status --verbose").out,
      "2 mixers are attached, 1 answers\n"
      "Mixer 1 (VRM-D6), port 1-1, answers\n"
      "  firmware      4.36\n"
      "  certified     level 1\n"
      "  selectors     CH1 4   CH2 4   CH3 4   CH4 4\n"
      "  Serato        not active\n"
      "Mixer 2 (VRM-D6), port 1-2, does not answer\n"
      "Nothing is remembered\n"
      "Next: switch the mixer that does not answer off and on again; if that "
      "does not help, run ztk doctor\n");
}

TEST_F(Status, SaysWhyAChannelIsSilent) {
  Remember("VRM-D6", {{"Output1", 2}});
  const Result result =
      Inside({"-n", "1", "--selector", "1=3", "--selector", "2=0"},
             "ztk status | tail -n 1; ztk input get 1 | tail -n 1; "
             "ztk input get 2;"
             "ztk status --json");
  const char *const silent =
      "USB input 1 is silent: the input selector for CH1 is "
      "in position 3; "
      "CH1 Control Tone PHONO (1) is heard only in position 4: turn it to 4";
  EXPECT_EQ(Line(result.out, 0), silent);
  EXPECT_EQ(Line(result.out, 1), silent);
  EXPECT_EQ(Line(result.out, 3), "USB input 2  Post CH2 Fader (3)");
  EXPECT_EQ(
      OneObject(LastLine(result.out) + "\n")["silent"],
      Json::parse(R"([{"mixer":1,"channel":1,"position":3,"needed":4}])"));
  const Result two =
      Inside({"-n", "2", "--selector", "2:1=3"}, "ztk input get 1 | tail -n 1");
  EXPECT_THAT(two.out,
              StartsWith("USB input 1 is silent: the input selector of "
                         "mixer 2 for CH1 is in position 3"));
}

TEST_F(Status, TellsOnceToTurnTheSelectorOfASilentChannel) {
  const Result result = Inside({"-n", "1", "--selector", "1=3"}, "ztk status");
  EXPECT_THAT(LastLine(result.out), EndsWith(" in position 4: turn it to 4"));
  EXPECT_THAT(result.out, Not(HasSubstr("Next: ")));
}

TEST_F(Status, SaysThatAMixerRefusesEverything) {
  const Result result = Inside({"-n", "2", "--fault", "2:stall"},
                               "ztk status; ztk status --json");
  EXPECT_THAT(
      result.out,
      StartsWith("2 mixers are attached, 1 answers\n"
                 "Mixer 1 (VRM-D6), port 1-1, answers, firmware 4.36\n"
                 "Mixer 2 (VRM-D6), port 1-2, refuses requests\n"
                 "Nothing is remembered\n"
                 "Next: switch the mixer that refuses requests "
                 "off and on again; if that does not help, run ztk doctor\n"));
  const Json json = OneObject(LastLine(result.out) + "\n");
  EXPECT_EQ(json["reached"], 2);
  EXPECT_EQ(json["answering"], 1);
  EXPECT_EQ(json["mixers"][1]["answers"], true);
  EXPECT_EQ(json["mixers"][1]["refuses"], true);
}

TEST_F(Status, TellsToSwitchAllStuckMixersOffAndOn) {
  EXPECT_EQ(LastLine(Inside({"-n", "3", "--fault", "1:silence", "--fault",
                             "2:silence"},
                            "ztk status")
                         .out),
            "Next: switch the mixers that do not answer off and on again; if "
            "that does not help, run ztk doctor");
  EXPECT_EQ(
      LastLine(Inside({"-n", "3", "--fault", "1:silence", "--fault", "2:stall"},
                      "ztk status")
                   .out),
      "Next: switch the mixers that do not answer or refuse requests "
      "off and on again; if that does not help, run ztk doctor");
}

TEST_F(Status, ShowsAReplyThatIsNotWholeAsUnknown) {
  for (const char *fault : {"short:1", "bytes:ff"}) {
    SCOPED_TRACE(fault);
    const Result result = Inside({"-n", "1", "--fault", fault}, "ztk status");
    EXPECT_THAT(result.out, HasSubstr("  firmware      unknown\n"));
    EXPECT_THAT(result.out, HasSubstr("  certified     unknown\n"));
  }
  // Programs see the numbers.
  const Json json = OneObject(
      Inside({"-n", "1", "--fault", "short:1"}, "ztk status --json").out);
  EXPECT_EQ(json["mixers"][0]["firmware"]["number"], 65334);
  EXPECT_EQ(json["mixers"][0]["certificationLevel"], 16777215);
}

TEST_F(Status, SendsToTheDoctorWhenASettingsFileCannotBeRead) {
  WriteAll(home_.SettingsFile("VRM-D6"), "broken");
  EXPECT_EQ(LastLine(OneMixer("ztk status").out),
            "Next: run ztk doctor; it shows the cause and what to do");
}

TEST_F(Status, DoesNotTrustRepliesThatAreTooShortOrTooLarge) {
  const Json json = OneObject(
      Inside({"-n", "1", "--reply", "8002=0011040404", "--reply", "8004=02"},
             "ztk status --json")
          .out);
  EXPECT_EQ(json["mixers"][0]["selectors"], Json::parse("[null,4,4,4]"));
  EXPECT_EQ(json["mixers"][0]["serato"], nullptr);
}

TEST_F(Versions, SaysWhatIsNotInstalled) {
  const Result result = NoMixer("ztk versions; ztk versions --json");
  EXPECT_EQ(result.status, 0);
  for (const char *part :
       {"Package  ", "Driver   ", "Utility  ", "Library  "}) {
    EXPECT_THAT(result.out,
                HasSubstr(part + std::string("not installed (part of the macOS "
                                             "package)\n")));
  }
  EXPECT_THAT(result.out, HasSubstr("\nztk      " ZTK_PROGRAM_VERSION "\n"));
  const Json versions = OneObject(LastLine(result.out) + "\n")["versions"];
  for (const char *part : {"package", "driver", "utility", "library"}) {
    EXPECT_EQ(versions[part], nullptr);
  }
  EXPECT_EQ(versions["ztk"], ZTK_PROGRAM_VERSION);
  EXPECT_THAT(versions["loadedLibrary"].get<std::string>(),
              HasSubstr("/libZTKFunc.so." ZTK_PROGRAM_VERSION));
  EXPECT_THAT(result.out,
              HasSubstr("\nLoaded   libZTKFunc.so." ZTK_PROGRAM_VERSION "\n"));
}

TEST_F(Versions, ShowsWhatIs) {
  const Result result =
      InTemporaryRoot({{"/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist",
                        "<plist version=\"1.0\"><dict><key>PackageVersion</key>"
                        "<string>2.0.1</string></dict></plist>"}},
                      {"-n", "0"}, "ztk versions");
  if (result.status == kNoTemporaryRoot)
    GTEST_SKIP() << "no mount namespace here";
  EXPECT_THAT(result.out, StartsWith("Package  2.0.1\nDriver   not"));
}

// Unlike a missing file, it may contain settings.
TEST_F(Status, NamesAFileThatCannotBeRead) {
  std::filesystem::create_directories(home_.SettingsFile("VRM-D6"));
  const Result result = NoMixer(
      "ztk status; ztk boost get; ztk boost apply; echo $?; ztk apply;"
      "echo $?");
  EXPECT_THAT(result.out, HasSubstr("What is remembered cannot be read\n"));
  EXPECT_THAT(result.out,
              HasSubstr(", default: the file cannot be read\n5\n5"));
  const std::string file = home_.SettingsFile("VRM-D6").string();
  const std::vector<std::string> lines = SplitLines(result.err);
  ASSERT_EQ(lines.size(), 4U);
  for (const std::string &line : lines) {
    EXPECT_THAT(line, HasSubstr("cannot read " + file + ": "));
  }
}

}  // namespace
}  // namespace ztk::test
