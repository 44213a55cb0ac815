// SPDX-License-Identifier: MIT
#include "cli_world.h"

namespace ztk::test {
namespace {

class Apply : public CliWorld {};

TEST_F(Apply, SendsWhatIsRememberedAndNothingElse) {
  Remember("VRM-D6", {{"Output1", 2}, {"Output4", 7}});
  Remember("VRM-B5", {{"Input0", 2}});
  Remember("VRM-K2", {{"MidiChannel", 1}});
  const Result result = OneMixer("ztk apply");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(
      result.out,
      "USB input 2: Post CH2 Fader (3), sent\n"
      "USB input 5: MIC (8), sent\n"
      "Not sent: what is remembered for the VRM-B5; ztk apply --all sends "
      "it too\n"
      "Not sent: what is remembered for the VRM-K2; ztk apply --all sends "
      "it too\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0206 8002 0000",
                                    "mixer 1: 40 03 0509 8002 0000"));
}

TEST_F(Apply, SendsTheBoostLevelWithTheInputs) {
  Remember("VRM-D6", {{"MaxLevel", 3}, {"Output0", 0}});
  const Result result = OneMixer("ztk apply --json");
  EXPECT_EQ(result.status, 0) << result.err;
  const Json json = OneObject(result.out);
  ASSERT_EQ(json["settings"].size(), 2U);
  EXPECT_EQ(json["settings"][1],
            Json::parse(R"({"setting":"boost","model":"VRM-D6","channel":null,
                "number":4,"text":"-19 dB","value":3,"accepted":true})"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0103 8002 0000",
                                    "mixer 1: 40 03 0000 8003 0000"));
}

TEST_F(Apply, LeavesEverythingAloneWhenNothingIsRemembered) {
  for (const char *command :
       {"ztk apply", "ztk apply --product VRM-B5", "ztk input apply",
        "ztk output apply", "ztk boost apply", "ztk midi apply"}) {
    SCOPED_TRACE(command);
    const Result result = OneMixer(command);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, StartsWith("Nothing is remembered for "));
    EXPECT_THAT(Writes(), IsEmpty());
  }
}

TEST_F(Apply, TellsOfEachSettingWhetherTheMixerHasAcceptedIt) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output1", 2}});
  const Result result =
      Inside({"-n", "1", "--fault", "stall@w8003"}, "ztk apply");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out,
            "USB input 2: Post CH2 Fader (3), sent\n"
            "Boost level: -5 dB (1), not accepted\n");
}

TEST_F(Apply, TakesAnotherModelsFamily) {
  Remember("VRM-D6", {{"Output1", 2}});
  Remember("VRM-B5", {{"Input1", 2}});
  Remember("VRM-K2", {{"MidiChannel", 3}});
  EXPECT_EQ(OneMixer("ztk apply --product VRM-B5").status, 0);
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0204 8016 0000"));
  EXPECT_EQ(OneMixer("ztk apply --product 1").status, 0);
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8004 0000"));
}

TEST_F(Apply, NamesTheModelsThatItLeavesOut) {
  Remember("VRM-D6", {{"Output1", 2}});
  EXPECT_FALSE(OneObject(OneMixer("ztk apply --json").out).contains("leftOut"));
  Remember("VRM-K2", {{"MidiChannel", 3}});
  for (const char *options : {"", "--dry-run"}) {
    SCOPED_TRACE(options);
    const Json json =
        OneObject(OneMixer(std::string("ztk apply --json ") + options).out);
    EXPECT_EQ(json["leftOut"], Json({"VRM-K2"}));
  }
  Remember("VRM-D6", {});
  EXPECT_EQ(OneMixer("ztk apply").out, "MIDI channel: CH 4 (4), sent\n");
  // A user who names a model knows which settings are left out.
  EXPECT_EQ(OneMixer("ztk apply --product VRM-D6").out,
            "Nothing is remembered for the VRM-D6: nothing to send.\n");
}

TEST_F(Apply, SendsWhatIsRememberedForEveryModelWhenToldSo) {
  Remember("VRM-D6", {{"Output1", 2}});
  Remember("VRM-B5", {{"Input1", 2}});
  const Result result = OneMixer("ztk apply --all; echo $?");
  EXPECT_EQ(
      result.out,
      "USB input 2: Post CH2 Fader (3), sent\nUSB output 2: AUX (3), sent\n"
      "0\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0206 8002 0000",
                                    "mixer 1: 40 03 0204 8016 0000"));
  EXPECT_EQ(OneMixer("ztk apply --all --product VRM-B5").status, 2);
}

TEST_F(Apply, SendsOneChannelWhenToldSo) {
  Remember("VRM-D6", {{"Output0", 5}, {"Output1", 5}});
  const Result result = OneMixer("ztk input apply 2; ztk input apply 3");
  EXPECT_EQ(Line(result.out, 1),
            "Nothing is remembered for USB input 3: nothing to send.");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0209 8002 0000"));
}

TEST_F(Apply, ReportsAValueThatTheLibraryRefuses) {
  Remember("VRM-K2", {{"MidiChannel", 9}});
  const Result result = OneMixer("ztk midi apply --json");
  EXPECT_EQ(result.status, 4);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["settings"][0]["accepted"], false);
  EXPECT_EQ(json["error"]["code"], "rejected");
  EXPECT_THAT(result.err, HasSubstr("MIDI channel: CH 10 (10)"));
  EXPECT_THAT(result.err,
              HasSubstr("; apply can only re-send channels 1 to 4; for 5 to 16 "
                        "use set again: ztk midi set 10\n"));
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Apply, IsNotPromisedForAHighMidiChannel) {
  const std::string note =
      "  apply can only re-send channels 1 to 4; for 5 to 16 use set again\n";
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-K2":{"midi":"CH 5"}}})");
  EXPECT_EQ(
      OneMixer("ztk midi set 4; ztk midi set 5; ztk import $DIR/file").out,
      "MIDI channel: CH 4 (4), sent to 1 mixer, remembered\n"
      "MIDI channel: CH 5 (5), sent to 1 mixer, remembered\n" +
          note + "MIDI channel: CH 5 (5), sent to 1 mixer, remembered\n" +
          note);
  EXPECT_THAT(NoMixer("ztk midi set 4").err,
              testing::EndsWith("run: ztk apply --product VRM-K2\n"));
  EXPECT_THAT(NoMixer("ztk midi set 5").err,
              testing::EndsWith("when one is attached, run: ztk midi set 5\n"));
}

TEST_F(Apply, SendsTheOthersWhenOneIsRefused) {
  Remember("VRM-D6", {{"Output0", 5}, {"MaxLevel", 4}});
  const Result result = OneMixer("ztk apply");
  EXPECT_EQ(result.status, 4);
  EXPECT_THAT(result.out, HasSubstr("USB input 1: MIC (6), sent\n"));
  EXPECT_THAT(result.out,
              HasSubstr("Boost level: 4, which is not a choice, refused\n"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0109 8002 0000"));
}

// The library would use the value of the next channel for this number.
TEST_F(Apply, NeverSendsAValueOfAnotherChannel) {
  Remember("VRM-D6", {{"Output0", 9}});
  Remember("VRM-B5", {{"Input0", 4}});
  const Result result =
      OneMixer("ztk apply; echo =$?; ztk output apply; echo =$?");
  EXPECT_THAT(Line(result.out, 2), "=4");
  EXPECT_THAT(Line(result.out, 4), "=4");
  EXPECT_THAT(result.err, HasSubstr("USB input 1: 9, which is not a choice"));
  EXPECT_THAT(result.err, HasSubstr("USB output 1: 4, which is not a choice"));
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Apply, SendsAPlaceholderThatAnotherProgramHasSet) {
  Remember("VRM-D6", {{"Output0", 7}});
  EXPECT_EQ(OneMixer("ztk apply").status, 0);
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 010f 8002 0000"));
}

TEST_F(Apply, IsThreeWithoutAMixerAndStillReportsARefusedValue) {
  Remember("VRM-D6", {{"Output0", 5}});
  const Result result = NoMixer("ztk apply");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out, "USB input 1: MIC (6)\n");
  Remember("VRM-D6", {{"Output0", 5}, {"MaxLevel", 4}});
  EXPECT_EQ(NoMixer("ztk apply").status, 4);
}

TEST_F(Apply, IsRejectedForAModelWithoutSettings) {
  const Result result = OneMixer(
      "ztk apply --product VRM-Q9; echo $?;"
      "ztk boost apply --product VRM-B5; echo $?;"
      "ztk input apply --product VRM-B5; echo $?");
  EXPECT_EQ(result.out, "4\n4\n4\n");
  EXPECT_THAT(result.err, HasSubstr("VRM-D6, VRM-B5, VRM-K2\n"));
}

TEST_F(Apply, SkipsAValueThatIsNoNumber) {
  WriteAll(home_.SettingsFile("VRM-D6"),
           "<plist version=\"1.0\"><dict><key>Output0</key><array/>"
           "<key>Output1</key><string>5</string></dict></plist>");
  EXPECT_EQ(OneMixer("ztk apply").out, "USB input 2: MIC (6), sent\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0209 8002 0000"));
}

TEST_F(Apply, WarnsThatTheAttachedMixerIsOfAnotherModel) {
  Remember("VRM-B5", {{"Input0", 2}, {"Input1", 2}});
  EXPECT_EQ(OneMixer("ztk apply").err,
            "ztk: warning: USB output audio is a setting of the VRM-B5. The "
            "attached mixer is a VRM-D6\n");
  EXPECT_EQ(SplitLines(OneMixer("ztk output apply").err).size(), 1U);
  EXPECT_THAT(NoMixer("ztk apply").err, Not(HasSubstr("attached is a")));
}

TEST_F(Apply, WarnsOfEachSilentChannel) {
  Remember("VRM-D6", {{"Output0", 0}, {"Output1", 0}, {"Output2", 5}});
  const Result result = Inside({"-n", "1", "--selector", "1=2", "--selector",
                                "2=3", "--selector", "3=2"},
                               "ztk apply; ztk input apply 2");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.err,
      "ztk: warning: USB input 1 is silent: the input "
      "selector for CH1 is in position 2; CH1 Control Tone PHONO (1) is heard "
      "only in position 4: turn it to 4\n"
      "ztk: warning: USB input 2 is silent: the input "
      "selector for CH2 is in position 3; CH2 Control Tone PHONO (1) is heard "
      "only in position 4: turn it to 4\n"
      "ztk: warning: USB input 2 is silent: the input "
      "selector for CH2 is in position 3; CH2 Control Tone PHONO (1) is heard "
      "only in position 4: turn it to 4\n");
  EXPECT_EQ(OneMixer("ztk apply").err, "");
}

}  // namespace
}  // namespace ztk::test
