// SPDX-License-Identifier: MIT
//
// What happens when the output cannot be written.
#include "cli_world.h"

namespace ztk::test {
namespace {

class Output : public CliWorld {};

TEST_F(Output, IsFiveOnAFullDisk) {
  const Result result = OneMixer("ztk status > /dev/full");
  EXPECT_EQ(result.status, 5);
  EXPECT_THAT(result.err, StartsWith("ztk: cannot write the output: No space"));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
}

TEST_F(Output, IsSilentlyFiveOnAPipeWithoutAReader) {
  // The reader has ended before the writer starts.
  const Result result = OneMixer(
      "mkfifo $DIR/pipe; exec 3<>$DIR/pipe; exec 4>$DIR/pipe; exec 3<&-;"
      "ztk --help >&4; echo $?; ztk status >&4; echo $?");
  EXPECT_EQ(result.out, "5\n5\n");
  EXPECT_EQ(result.err, "");
}

TEST_F(Output, IsFiveWhenItIsClosedAndSoForJson) {
  const Result result = OneMixer(
      "ztk status >&-; echo $?; ztk boost set 1 --json >&-; echo $?;"
      "ztk nonsense --json >&-; echo $?");
  EXPECT_EQ(result.out, "5\n5\n5\n");
}

TEST_F(Output, NeverReachesAMixerThroughAClosedStream) {
  const Result result = OneMixer("ztk boost set 1 >&- 2>&- <&-; echo $?");
  EXPECT_EQ(result.out, "5\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

TEST_F(Output, HasNoColourAndNoControlCharacters) {
  const Result result = OneMixer(
      "ztk status; ztk input list; ztk boost list; ztk input set 1 zz");
  for (const char character : result.out + result.err) {
    EXPECT_TRUE(character == '\n' || (character >= ' ' && character <= '~'));
  }
}

}  // namespace
}  // namespace ztk::test
