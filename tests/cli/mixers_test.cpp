// SPDX-License-Identifier: MIT
//
// Whether the program tells the truth about who was reached.
#include "cli_world.h"

namespace ztk::test {
namespace {

constexpr char kRule[] = "/usr/lib/udev/rules.d/70-tarvix-mixer.rules";

class Reach : public CliWorld {};

TEST_F(Reach, IsThreeWithoutAMixerAndTheValueIsRemembered) {
  const Result result = NoMixer("ztk input set 2 3 --json");
  EXPECT_EQ(result.status, 3);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["ok"], false);
  EXPECT_EQ(json["result"], 101);
  EXPECT_EQ(json["remembered"], true);
  EXPECT_EQ(json["mixers"]["found"], 0);
  EXPECT_EQ(json["mixers"]["reached"], 0);
  EXPECT_EQ(json["error"]["code"], "no-mixer");
  EXPECT_THAT(result.err, HasSubstr("no mixer is attached"));
  EXPECT_THAT(result.err, HasSubstr("run: ztk input apply"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")), HasSubstr("Output1"));
}

TEST_F(Reach, ExplainsAMixerThatMayNotBeOpened) {
  const Result result =
      Inside({"-n", "1", "--forbid", "1"}, "ztk boost set 2 --json");
  EXPECT_EQ(result.status, 3);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["mixers"]["found"], 1);
  EXPECT_EQ(json["mixers"]["reached"], 0);
  EXPECT_EQ(json["mixers"]["notOpened"], Json({1}));
  EXPECT_EQ(json["remembered"], true);
  EXPECT_EQ(json["error"]["code"], "no-mixer");
  EXPECT_THAT(result.err, HasSubstr("attached but cannot be opened"));
  EXPECT_THAT(result.err, HasSubstr(kRule));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Reach, WarnsOfOneMixerAmongSeveralThatMayNotBeOpened) {
  const Result result =
      Inside({"-n", "3", "--forbid", "2"}, "ztk boost set 2 --json");
  EXPECT_EQ(result.status, 0);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["mixers"]["found"], 3);
  EXPECT_EQ(json["mixers"]["reached"], 2);
  EXPECT_EQ(json["mixers"]["notOpened"], Json({2}));
  EXPECT_EQ(json["warnings"].size(), 1U);
  EXPECT_THAT(result.err, StartsWith("ztk: warning: mixer 2 is attached"));
  EXPECT_THAT(result.err, HasSubstr(kRule));
  EXPECT_THAT(Requests(), ElementsAre("mixer 1: 40 03 0200 8003 0000",
                                      "mixer 3: 40 03 0200 8003 0000"));
}

TEST_F(Reach, SendsToEveryMixer) {
  const Result result = Inside({"-n", "2"}, "ztk input set 1 mic");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "USB input 1: 6 MIC, sent to 2 mixers, remembered\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0109 8002 0000",
                                    "mixer 2: 40 03 0109 8002 0000"));
}

TEST_F(Reach, IsFiveWhenTheValueCouldNotBeRemembered) {
  // A file where the folder should be.
  WriteAll(home_.path() / ".config/tarvix/Preferences", "");
  const Result result = OneMixer("ztk boost set 1 --json");
  EXPECT_EQ(result.status, 5);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json["remembered"], false);
  EXPECT_EQ(json["mixers"]["reached"], 1);
  EXPECT_EQ(json["error"]["code"], "failed");
  EXPECT_THAT(result.err, HasSubstr("sent to 1 mixer, but not remembered"));
  EXPECT_THAT(result.err, HasSubstr(".config/tarvix/Preferences"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

TEST_F(Reach, IsThreeForWhatIsNeverRemembered) {
  const Result result =
      NoMixer("ztk input raw 1 0 5; echo $?; ztk output default 2; echo $?");
  EXPECT_THAT(Line(result.out, 1), "3");
  EXPECT_THAT(Line(result.out, 3), "3");
  EXPECT_FALSE(HasSettings("VRM-D6"));
  EXPECT_FALSE(HasSettings("VRM-B5"));
}

}  // namespace
}  // namespace ztk::test
