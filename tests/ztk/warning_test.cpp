// SPDX-License-Identifier: MIT
//
// How a 101 is explained.
#include "cli_world.h"

namespace ztk::test {
namespace {

std::string Strings(const std::string &language) {
  std::string text = "<plist version=\"1.0\"><dict>";
  for (const char *key : {"WARNING1", "WARNING2", "WARNING3"}) {
    text += std::string("<key>") + key + "</key><string>" + language + " " +
            key + "\xC3\xA9</string>";
  }
  return text + "</dict></plist>";
}

RootFiles Bundle() {
  const std::string folder =
      "/System/Library/Frameworks/VRM-D6Setup.framework/Resources/";
  return {{folder + "English.lproj/Localizable.strings", Strings("English")},
          {folder + "German.lproj/Localizable.strings", Strings("German")},
          {folder + "zh_TW.lproj/Localizable.strings", Strings("Chinese")}};
}

class Warning : public CliWorld {
 protected:
  // Skips the test when the system does not allow a temporary root.
  void WithBundle(const std::vector<std::string> &options,
                  const std::string &script) {
    result_ = InTemporaryRoot(Bundle(), options, script);
    if (result_.status == kNoTemporaryRoot) {
      GTEST_SKIP() << "no mount namespace here";
    }
  }
  Result result_;
};

TEST_F(Warning, IsTheLibrarysTextInTheLanguageOfTheTerminal) {
  WithBundle({"-n", "1", "--selector", "2=1"},
             "LC_ALL=de_DE.UTF-8 ztk input set 2 1 --json");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 0);
  const std::string warning =
      "German WARNING2\xC3\xA9 (the input selector for CH2 is in position 1; "
      "CH2 Control Tone PHONO (1) is heard only in position 4: turn it to 4)";
  EXPECT_EQ(result_.err, "ztk: warning: " + warning + "\n");
  const Json json = OneObject(result_.out);
  EXPECT_EQ(json["ok"], true);
  EXPECT_EQ(json["result"], 101);
  EXPECT_EQ(json["warnings"], Json({warning}));
}

// The error says it.
TEST_F(Warning, IsNotShownBesideTheErrorWithoutAMixer) {
  WithBundle({"-n", "0"}, "ztk input set 2 1");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 3);
  EXPECT_THAT(result_.err,
              StartsWith("ztk: USB input 2 is saved, but not sent"));
  EXPECT_EQ(SplitLines(result_.err).size(), 1U);
}

TEST_F(Warning, NamesTheMixersThatAreMeant) {
  WithBundle({"-n", "3", "--selector", "2:2=1", "--selector", "3:2=0"},
             "ztk input set 2 1");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.err,
            "ztk: warning: English WARNING2\xC3\xA9 (the input selector of "
            "mixer 2 for CH2 is in position 1; CH2 Control Tone PHONO (1) is "
            "heard only in position 4: turn it to 4) (the input selector of "
            "mixer 3 for CH2 is in position 0; CH2 Control Tone PHONO (1) is "
            "heard only in position 4: turn it to 4)\n");
  WithBundle({"-n", "2", "--fault", "2:silence"}, "ztk input set 2 1");
  if (IsSkipped()) return;
  EXPECT_THAT(result_.err, Not(HasSubstr("WARNING2")));
}

TEST_F(Warning, IsNotTheOneForNoMixerWhereNothingWasRemembered) {
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  WithBundle({"-n", "0"}, "ztk input set 2 1");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 5);
  EXPECT_THAT(result_.err, StartsWith("ztk: USB input 2 is not remembered: "));
  EXPECT_EQ(SplitLines(result_.err).size(), 1U);
  WithBundle({"-n", "1", "--selector", "2=1"}, "ztk input set 2 1");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 7);
  EXPECT_THAT(Line(result_.err, 0),
              StartsWith("ztk: warning: English WARNING2\xC3\xA9 (the input "));
}

TEST_F(Warning, FollowsThePort) {
  WithBundle({"-n", "1", "--selector", "1=0", "--reply", "8006=0100"},
             "ztk input raw 1 0 1");
  if (IsSkipped()) return;
  EXPECT_THAT(result_.err,
              StartsWith("ztk: warning: English WARNING3\xC3\xA9 (the input "));
}

TEST_F(Warning, IsShownInAnyLanguageByNumberNameOrCode) {
  WithBundle({"-n", "1"},
             "ztk warning --language 3; ztk warning --language GERMAN;"
             "ztk warning --language de; ztk warning --language zh_tw;"
             "ztk warning --language 'traditional chinese';"
             "ztk warning --channel 4 --language 99");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 0) << result_.err;
  EXPECT_THAT(
      SplitLines(result_.out),
      ElementsAre("German WARNING2\xC3\xA9", "German WARNING2\xC3\xA9",
                  "German WARNING2\xC3\xA9", "Chinese WARNING2\xC3\xA9",
                  "Chinese WARNING2\xC3\xA9", "English WARNING2\xC3\xA9"));
}

TEST_F(Warning, IsFiveInALanguageThatIsNotThere) {
  WithBundle({"-n", "1"}, "ztk warning --language fr");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 5);
  EXPECT_THAT(result_.err,
              HasSubstr("the warning texts are not installed; ztk doctor"));
}

TEST_F(Warning, IsExplainedPlainlyWithoutTheBundle) {
  const Result result =
      Inside({"-n", "1", "--selector", "1=0"}, "ztk input set 1 1");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.err,
      "ztk: warning: the input selector for CH1 is in position 0; CH1 "
      "Control Tone PHONO (1) is heard only in position 4: turn it to 4\n");
  EXPECT_EQ(
      Inside({"-n", "2", "--selector", "2:1=3"}, "ztk input set 1 1").err,
      "ztk: warning: the input selector of mixer 2 for CH1 is in "
      "position 3; CH1 Control Tone PHONO (1) is heard only in position 4: "
      "turn it to 4\n");
}

TEST_F(Warning, IsExplainedForEachChannelOfAnImportAndOfItsUndo) {
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB",)"
           R"("input":{"1":"MIC","2":"CH2 Control Tone PHONO",)"
           R"("3":"CH3 Control Tone PHONO"}}}})");
  WithBundle({"-n", "1", "--selector", "2=1"},
             "ztk import $DIR/file; echo $? >&2; ztk undo; echo $? >&2");
  if (IsSkipped()) return;
  const auto warning = StartsWith(
      "ztk: warning: USB input 2: English WARNING2\xC3\xA9 (the input selector "
      "for CH2 is in position 1; ");
  EXPECT_THAT(SplitLines(result_.err), ElementsAre(warning, "0", warning, "0"));
  WithBundle({"-n", "0"}, "ztk import $DIR/file");
  if (IsSkipped()) return;
  EXPECT_EQ(SplitLines(result_.err).size(), 1U) << result_.err;
}

// Nobody can act on it.
TEST_F(Warning, IsNotShownForTheFifthChannel) {
  const Result result =
      OneMixer("ztk input set 5 1; echo $?; ztk warning --channel 5; echo $?");
  EXPECT_EQ(Line(result.out, 1), "0");
  EXPECT_EQ(Line(result.out, 2), "4");
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
}

TEST_F(Warning, RefusesWrongWords) {
  const Result result = OneMixer(
      "ztk warning --channel 6; echo $?; ztk warning --channel x; echo $?;"
      "ztk warning --language klingon; echo $?;"
      "ztk warning --language 12; echo $?");
  EXPECT_EQ(result.out, "2\n2\n2\n2\n");
  EXPECT_EQ(
      Line(result.err, 2),
      "ztk: no language \"klingon\"; accepted, by number, name or code: "
      "0 English en, 1 Japanese ja, 2 French fr, 3 German de, 4 Italian it, "
      "5 Dutch nl, 6 Spanish es, 7 Russian ru, 8 Portuguese pt, 9 Simplified "
      "Chinese zh-CN, 10 Traditional Chinese zh-TW, 11 Korean ko, 99 your own; "
      "see ztk warning --help");
  EXPECT_THAT(Requests(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
