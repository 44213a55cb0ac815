// SPDX-License-Identifier: MIT
//
// Words in the forms in which people type them.
#include "cli_world.h"

namespace ztk::test {
namespace {

class TypedWords : public CliWorld {};

TEST_F(TypedWords, NameAChannelAsStatusCallsIt) {
  const Result result = OneMixer(
      "ztk input set CH2 mic > /dev/null && ztk input get ch2; "
      "ztk input get CH6; echo $?; ztk input get CH; echo $?");
  EXPECT_EQ(
      result.out,
      "USB input audio is a setting of the VRM-D6. ztk shows the remembered "
      "choice.\n"
      "USB input 2  MIC (6)\n2\n2\n");
  EXPECT_THAT(result.err, HasSubstr("has no channel \"CH6\""));
}

TEST_F(TypedWords, NameAModelInAnyForm) {
  for (const char *model : {"8", "VRM-B5", "b5", "'VRM B5'", "vrmb5"}) {
    SCOPED_TRACE(model);
    const Result result =
        NoMixer(std::string("ztk output get 1 --json --product ") + model);
    EXPECT_EQ(OneObject(result.out)["product"], "VRM-B5");
  }
  EXPECT_EQ(NoMixer("ztk output get --product b6").status, 2);
}

TEST_F(TypedWords, ListTheModels) {
  const Result result = NoMixer("ztk models");
  EXPECT_THAT(result.out, HasSubstr("8   VRM-B5    USB output audio\n"));
  EXPECT_THAT(result.out,
              HasSubstr("10  VRM-D6    USB input audio, Boost level\n"));
}

TEST_F(TypedWords, AskForTheVersionInEveryForm) {
  for (const char *words : {"--version", "-V", "version"}) {
    SCOPED_TRACE(words);
    const Result result = NoMixer(std::string("ztk ") + words);
    EXPECT_EQ(result.out, "ztk " ZTK_PROGRAM_VERSION "\n");
    EXPECT_EQ(result.status, 0);
  }
}

TEST_F(TypedWords, AskForNoOutput) {
  for (const char *option : {"-q", "--quiet"}) {
    SCOPED_TRACE(option);
    const Result result = OneMixer(std::string("ztk boost set 1 ") + option);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.status, 0);
  }
  EXPECT_EQ(OneMixer("ztk boost apply -q; ztk undo -q; ztk reset -q").out, "");
  const Result wrong = NoMixer("ztk boost set 9 -q");
  EXPECT_THAT(wrong.err, StartsWith("ztk: Boost level has no choice"));
}

TEST_F(TypedWords, NameAUsbChannelInSeveralWays) {
  const Result result = OneMixer(
      "ztk input set usb2 mic -q; ztk input set 'USB 2' post -q;"
      "ztk input set usb 2 6 -q; ztk input get 'USB input 2' -q;"
      "ztk input get usb 2 -q; ztk output get USB 1 -q");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "USB input 2  MIC (6)\nUSB input 2  MIC (6)\n"
            "USB output 1  CH1 (1), default: nothing is remembered\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0209 8002 0000",
                                    "mixer 1: 40 03 0206 8002 0000",
                                    "mixer 1: 40 03 0209 8002 0000"));
}

TEST_F(TypedWords, NameTheOutputsThatAreAccepted) {
  const Result result = NoMixer("ztk output set 3/4 aux; ztk output set");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err,
            "ztk: USB output audio has no channel \"3/4\"; accepted: 1 to 3\n"
            "ztk: a CHANNEL is missing; accepted: 1 to 3; see ztk output set "
            "--help\n");
}

TEST_F(TypedWords, NameAChoiceAsItIsPrintedOrByOneOfItsWords) {
  Result result = OneMixer(
      "ztk boost set '-10 dB (2)'; ztk boost set -10 dB '(2)'; "
      "ztk input set 1 3 Post CH1 Fader; ztk input set 1 line");
  EXPECT_EQ(result.out,
            "Boost level: -10 dB (2), sent to 1 mixer, remembered\n"
            "Boost level: -10 dB (2), sent to 1 mixer, remembered\n"
            "USB input 1: Post CH1 Fader (3), sent to 1 mixer, remembered\n"
            "USB input 1: CH1 Control Tone LINE (2), sent to 1 mixer, "
            "remembered\n");
  EXPECT_EQ(result.status, 0);
  result = OneMixer("ztk input set 1 fader");
  EXPECT_EQ(result.err,
            "ztk: choice \"fader\" can mean: Post CH1 Fader (3), Cross Fader A "
            "(4), Cross Fader B (5); type more of it, or its number; see ztk "
            "input set --help\n");
  EXPECT_EQ(result.status, 2);
}

TEST_F(TypedWords, AskForTheAnswerWithoutNotes) {
  Remember("VRM-D6", {{"Output1", 2}});
  // Without -q, ztk says that USB input 2 is silent.
  const std::vector<std::string> options{"-n", "1", "--selector", "1=2"};
  EXPECT_EQ(Inside(options, "ztk input get 1 -q").out,
            "USB input 1  CH1 Control Tone PHONO (1), default: nothing is "
            "remembered\n");
  EXPECT_THAT(Inside(options, "ztk input get 1").out,
              HasSubstr(" is silent: "));
  EXPECT_THAT(Requests().size(), 1U);
  EXPECT_THAT(Inside(options, "ztk input get 1 -q --json").out,
              HasSubstr("\"position\":2"));
  EXPECT_EQ(NoMixer("ztk input get 2 -q").out,
            "USB input 2  Post CH2 Fader (3)\n");
  EXPECT_THAT(NoMixer("ztk input list 2 -q").out, StartsWith("\nUSB input 2"));
  EXPECT_EQ(NoMixer("ztk status -q").out,
            "No mixer is attached\nRemembered\n"
            "  USB input 2   Post CH2 Fader (3), VRM-D6\n");
  EXPECT_THAT(NoMixer("ztk export -q").out, StartsWith("{\n"));
  EXPECT_THAT(NoMixer("ztk models -q; ztk versions -q").out,
              HasSubstr("VRM-B5"));
  EXPECT_THAT(NoMixer("ztk boost set 1 --dry-run -q").out,
              StartsWith("Dry run"));
  OneMixer("ztk boost set 1");
  EXPECT_THAT(NoMixer("ztk undo --list -q").out, HasSubstr("boost set"));
}

}  // namespace
}  // namespace ztk::test
