// SPDX-License-Identifier: MIT
//
// What ztk says about a remembered value that the mixers may not have.
#include <fstream>

#include "ztk/cli_world.h"

namespace ztk::test {
namespace {

class Unsent : public CliWorld {};

constexpr char kBoost[] =
    "Boost level is a setting of the VRM-D6. ztk shows the remembered choice.\n"
    "Boost level  -10 dB (2)\n";
constexpr char kNotSent[] =
    "Not sent, or not to every mixer: Boost level\n"
    "To send these choices to every mixer, run: ztk apply\n";

TEST_F(Unsent, IsNothingAfterAChangeThatEveryMixerAccepted) {
  const Result result =
      Inside({"-n", "2"}, "ztk boost set 2 -q; ztk boost get");
  EXPECT_EQ(result.out, kBoost);
}

TEST_F(Unsent, IsAChangeThatAMixerRefused) {
  const Result result = Inside(
      {"-n", "2"},
      "ztk-virtual-mixer fault -m 2 stall >&2; ztk boost set 2 -q;"
      "ztk-virtual-mixer fault none >&2; ztk boost get; ztk boost get -q");
  EXPECT_EQ(result.out,
            std::string(kBoost) + kNotSent + "Boost level  -10 dB (2)\n");
}

TEST_F(Unsent, IsAChangeWithoutAMixerUntilItIsSent) {
  NoMixer("ztk boost set 2");
  Result result = OneMixer("ztk boost get; ztk boost list | tail -n 2");
  EXPECT_EQ(result.out, std::string(kBoost) + kNotSent + kNotSent);
  result = OneMixer("ztk apply -q; ztk boost get");
  EXPECT_EQ(result.out, kBoost);
}

TEST_F(Unsent, IsFollowedByTheNextStepInStatus) {
  NoMixer("ztk boost set 2; ztk input set 2 mic");
  const Result result = OneMixer("ztk status | tail -n 5");
  EXPECT_EQ(result.out,
            "Remembered\n"
            "  USB input 2   MIC (6), VRM-D6\n"
            "  Boost level   -10 dB (2), VRM-D6\n"
            "Not sent, or not to every mixer: USB input 2, Boost level\n"
            "Next: to send these choices to every mixer, run: ztk apply\n");
}

// A mixer that was switched on since may have another choice.
TEST_F(Unsent, IsWhatWasSentBeforeAMixerWasPluggedIn) {
  const Result result = OneMixer(
      "ztk boost set 2 -q; ztk input set 5 mic -q; ztk-virtual-mixer unplug 1;"
      "ztk-virtual-mixer plug 1; ztk input set 5 1 -q; ztk boost get;"
      "ztk status --json; ztk status | tail -n 2; ztk apply -q;"
      "ztk status | tail -n 1");
  EXPECT_THAT(
      result.out,
      HasSubstr(std::string(kBoost) +
                "A mixer was plugged in after this was sent: Boost level\n"
                "To send these choices to every mixer, run: ztk apply\n"));
  EXPECT_THAT(result.out, HasSubstr("\"unsent\":\"earlier\""));
  EXPECT_THAT(
      result.out,
      HasSubstr(
          "A mixer was plugged in after this was sent: Boost level\n"
          "Next: to send these choices to every mixer, run: ztk apply\n"));
  EXPECT_EQ(LastLine(result.out), "  Boost level   -10 dB (2), VRM-D6");
}

TEST_F(Unsent, IsNotClaimedOfAnEarlierValueWithoutARecord) {
  Remember("VRM-D6", {{"MaxLevel", 1}});
  EXPECT_EQ(OneMixer("ztk-virtual-mixer unplug 1 >&2;"
                     "ztk-virtual-mixer plug 1 >&2; ztk boost get")
                .out,
            kBoost);
}

TEST_F(Unsent, IsWhatARawValueOrADefaultHasReplaced) {
  Remember("VRM-D6", {{"Output0", 5}});
  Remember("VRM-B5", {{"Input0", 0}, {"Input1", 0}});
  const Result result = OneMixer(
      "ztk input raw 1 0 3 -q; ztk output default -q;"
      "ztk input get 1; ztk output get -q; ztk output get --json");
  EXPECT_THAT(
      result.out,
      HasSubstr("USB input 1  MIC (6)\n"
                "ztk has sent another value since: USB input 1\n"
                "To send these choices to every mixer, run: ztk apply\n"));
  const Json json = OneObject(LastLine(result.out));
  // The default of the first output is the remembered choice.
  EXPECT_EQ(json["channels"][0]["unsent"], nullptr);
  EXPECT_EQ(json["channels"][1]["unsent"], "replaced");
  EXPECT_EQ(json["channels"][2]["unsent"], nullptr);
  EXPECT_THAT(
      OneMixer("ztk output get").out,
      HasSubstr(
          "since: USB output 2\nTo send these choices to every mixer, run: "
          "ztk apply --product VRM-B5\n"));
}

TEST_F(Unsent, IsNotClaimedOfARawValueThatNoMixerAccepted) {
  Remember("VRM-D6", {{"Output0", 5}});
  const Result result = OneMixer(
      "ztk-virtual-mixer fault stall >&2; ztk input raw 1 0 3 -q;"
      "ztk-virtual-mixer fault none >&2; ztk input get 1 --json");
  EXPECT_EQ(OneObject(result.out)["channels"][0]["unsent"], nullptr);
}

TEST_F(Unsent, IsNotClaimedOfAValueOfAnotherProgram) {
  NoMixer("ztk boost set 3");
  Remember("VRM-D6", {{"MaxLevel", 1}});
  EXPECT_EQ(OneMixer("ztk boost get").out, kBoost);
}

TEST_F(Unsent, IsNotReadFromDamagedLines) {
  NoMixer("ztk boost set 2");
  const std::string file =
      (home_.path() / ".local/state/tarvix/ztk-sendings.txt").string();
  ASSERT_THAT(ReadAll(file),
              testing::MatchesRegex("boost 0 1 incomplete [0-9]+\n"));
  for (const char *line :
       {"", "boost", "boost 0 1 incomplete", "boost 0 1 incomplete x",
        "boost 0 -1 incomplete 5", "boost 0 1 lost 5", "boots 0 1 incomplete 5",
        "boost 99999999999 1 incomplete 5", "\x01\xff"}) {
    SCOPED_TRACE(line);
    std::ofstream(file) << line << "\n";
    EXPECT_EQ(OneMixer("ztk boost get").out, kBoost);
  }
  std::ofstream(file) << "x\nboost 0 1 incomplete 5\n";
  EXPECT_EQ(OneMixer("ztk boost get").out, std::string(kBoost) + kNotSent);
}

TEST_F(Unsent, IsAnUndoThatWasNotSent) {
  const Result result = OneMixer(
      "ztk boost set 2 -q; ztk boost set 1 -q;"
      "ztk-virtual-mixer fault stall >&2; ztk undo -q;"
      "ztk-virtual-mixer fault none >&2; ztk status --json");
  EXPECT_EQ(OneObject(result.out)["remembered"][0]["unsent"], "incomplete");
}

TEST_F(Unsent, EndsWithResetAndWithTheNextSet) {
  NoMixer("ztk boost set 2; ztk reset");
  Remember("VRM-D6", {{"MaxLevel", 1}});
  EXPECT_EQ(OneMixer("ztk boost get").out, kBoost);
  NoMixer("ztk boost set 2");
  EXPECT_EQ(OneMixer("ztk boost set 2 -q; ztk boost get").out, kBoost);
}

// Nothing is remembered, but the mixer has the former value.
TEST_F(Unsent, IsADefaultThatWasNotSent) {
  const Result result = OneMixer(
      "ztk input set 2 post -q; ztk-virtual-mixer fault stall >&2; ztk undo -q;"
      "ztk-virtual-mixer fault none >&2; ztk input get 2; ztk status;"
      "ztk input get 2 --json; ztk input set 2 1 -q; ztk status | tail -n 1");
  EXPECT_THAT(
      result.out,
      HasSubstr(
          "USB input 2  CH2 Control Tone PHONO (1), default: nothing is "
          "remembered\n"
          "Default that was not sent, or not to every mixer: USB input "
          "2\nTo send these choices to every mixer, run: ztk input set 2 1\n"));
  EXPECT_THAT(result.out,
              HasSubstr("Nothing is remembered\n"
                        "Default that was not sent, or not to every mixer: USB "
                        "input 2\nNext: to send these choices to every mixer, "
                        "run: ztk input set 2 1\n"));
  EXPECT_THAT(result.out, HasSubstr("\"unsent\":\"default\""));
  EXPECT_EQ(LastLine(result.out),
            "  USB input 2   CH2 Control Tone PHONO (1), VRM-D6");
}

// The default is what a mixer has without any choice.
TEST_F(Unsent, IsNothingAfterAResetOfTheDefault) {
  EXPECT_EQ(
      OneMixer("ztk boost set 4 -q; ztk reset -q; ztk status | tail -n 1").out,
      "Nothing is remembered\n");
  EXPECT_EQ(LastLine(Inside({"-n", "1", "--fault", "stall@w8003"},
                            "ztk boost set 4 -q; ztk reset -q; ztk status")
                         .out),
            "Next: to send these choices to every mixer, run: ztk boost set 4");
}

TEST_F(Unsent, IsAResetUntilEachMixerWasPluggedInAgain) {
  const Result result = Inside(
      {"-n", "1", "--selector", "1=1"},
      "ztk input set 1 post -q; ztk reset -q; ztk status; ztk input get 1;"
      "ztk doctor; echo again; ztk-virtual-mixer unplug >&2;"
      "ztk-virtual-mixer plug >&2; ztk status");
  const std::size_t again = result.out.find("again\n");
  ASSERT_NE(again, std::string::npos);
  const std::string before = result.out.substr(0, again);
  EXPECT_THAT(
      before,
      HasSubstr("Nothing is remembered\n"
                "Reset, but the mixer may still have it: USB input 1\n"));
  EXPECT_THAT(before, Not(HasSubstr("is silent")));
  EXPECT_THAT(result.out.substr(again), Not(HasSubstr("Reset")));
  EXPECT_THAT(result.out.substr(again), HasSubstr("USB input 1 is silent"));
}

TEST_F(Unsent, EndsWithAnUndoThatForgetsTheValue) {
  NoMixer("ztk boost set 2; ztk undo");
  Remember("VRM-D6", {{"MaxLevel", 1}});
  EXPECT_EQ(OneMixer("ztk boost get").out, kBoost);
}

TEST_F(Unsent, NamesTheCommandOfAValueThatApplyDoesNotSend) {
  NoMixer("ztk midi set 7");
  EXPECT_THAT(
      OneMixer("ztk midi get").out,
      HasSubstr(
          "\nTo send these choices to every mixer, run: ztk midi set 7\n"));
}

TEST_F(Unsent, IsNotKnownWithoutAMixerWhichIsSaidInstead) {
  NoMixer("ztk boost set 2");
  const std::string none =
      "No mixer is attached; when one is attached, run: ztk apply\n";
  EXPECT_EQ(NoMixer("ztk boost get").out, kBoost + none);
  EXPECT_EQ(NoMixer("ztk boost list | tail -n 1").out, none);
  EXPECT_EQ(LastLine(NoMixer("ztk status").out),
            "Next: plug the mixer in and switch it on, then run ztk apply; if "
            "that does not help, run ztk doctor");
  EXPECT_THAT(NoMixer("ztk midi get").out, Not(HasSubstr("ztk apply")));
}

}  // namespace
}  // namespace ztk::test
