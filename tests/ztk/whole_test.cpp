// SPDX-License-Identifier: MIT
//
// Two programs at once, and programs that are killed at any moment: the
// settings file stays valid.
#include "cli_world.h"

namespace ztk::test {
namespace {

class Whole : public CliWorld {};

TEST_F(Whole, AfterTwoHundredKills) {
  const Result result = OneMixer(
      "'" ZTK_KILL_CHILD "' 200 " + home_.SettingsFile("VRM-D6").string() +
      "; ztk undo > /dev/null 2> $DIR/e; grep -c damaged $DIR/e");
  const std::vector<std::string> lines = SplitLines(result.out);
  ASSERT_EQ(lines.size(), 2U) << result.out;
  int killed = 0;
  int changed = 0;
  ASSERT_EQ(std::sscanf(lines[0].c_str(), "killed %d of 200, changed %d",
                        &killed, &changed),
            2)
      << lines[0];
  // Otherwise the test has tried nothing.
  EXPECT_GT(killed, 0);
  EXPECT_GT(changed, 0);
  EXPECT_EQ(lines[1], "0");
}

// The library reads the file and writes it with one new value: without a lock,
// two programs would lose values.
TEST_F(Whole, WhenTwoChangeDifferentSettingsAtOnce) {
  const Result result = OneMixer(
      "for i in 1 2 3 4 5 6 7 1 2 3 4 5 6 7; do ztk input set 1 $i || echo"
      " lost; ztk input get 1; done > $DIR/one & \n"
      "for i in 1 2 3 4 1 2 3 4 1 2 3 4 1 2; do ztk boost set $i || echo"
      " lost; ztk boost get; done > $DIR/two\n"
      "wait; ztk input get 1; ztk boost get");
  EXPECT_THAT(File("one"), Not(HasSubstr("lost")));
  EXPECT_THAT(File("two"), Not(HasSubstr("lost")));
  EXPECT_EQ(Line(result.out, 1), "USB input 1  REC OUT (7)");
  EXPECT_EQ(LastLine(result.out), "Boost level  -10 dB (2)");
  EXPECT_EQ(SplitLines(
                ReadAll(home_.path() / ".local/state/tarvix/ztk-history.jsonl"))
                .size(),
            28U);
}

TEST_F(Whole, WhenOneIsStoppedInTheMiddleForTheOthersToWait) {
  // The first program waits for its mixer while the second one starts.
  const Result result = Inside(
      {"-n", "1", "--fault", "delay:600@w8003"},
      "ztk boost set 1 > /dev/null & sleep 0.3; ztk input set 1 mic; wait;"
      "ztk boost get");
  EXPECT_EQ(Line(result.out, 0),
            "USB input 1: MIC (6), sent to 1 mixer, remembered");
  EXPECT_EQ(LastLine(result.out), "Boost level  -5 dB (1)");
}

}  // namespace
}  // namespace ztk::test
