// SPDX-License-Identifier: MIT
#include "cli/completion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample_program.h"

namespace ztk::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using Words = std::vector<std::string>;

std::string Offered(const Words &words) {
  return cli::Completions(SampleProgram(), words);
}

TEST(Completions, OfferWordsThatFit) {
  const struct {
    Words words;
    const char *expected;
  } rows[] = {
      {{""},
       "show\tShow the mixers\ninput\tThe inputs\nrun\tRun a command\n"
       "help\tShow the help of a command\n"},
      {{"SH"}, "show\tShow the mixers\n"},
      {{"input", ""}, "set\tChoose a source\n"},
      {{"help", "in"}, "input\tThe inputs\n"},
      {{"show", "--mixer", ""}, "1\tfirst\n2\tsecond\n"},
      {{"show", "--mixer=2"}, "--mixer=2\tsecond\n"},
      {{"show", "-m", "2"}, "2\tsecond\n"},
      {{"show", "--log", ""}, ":files\n"},
      {{"input", "set", ""}, "1\tCH1\n2\tCH2\n"},
      {{"run", ""}, "--\tCommand to run\n"},
      {{"run", "--", "l"}, ":command\n"},
      {{"show", "--js"}, "--json\tWrite JSON\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.words));
    EXPECT_EQ(Offered(row.words), row.expected);
  }
}

TEST(Completions, OfferAnOptionAgainOnlyWhereItMayBeRepeated) {
  EXPECT_THAT(Offered({"show", "-m", "1", "--"}), Not(HasSubstr("--mixer")));
  EXPECT_THAT(Offered({"show", "--log", "a", "--"}), HasSubstr("--log\t"));
}

TEST(CompletionScript, AsksTheProgram) {
  using cli::Shell;
  for (const Shell shell : {Shell::Bash, Shell::Fish, Shell::Zsh}) {
    const std::string script = cli::CompletionScript("a-b", shell);
    EXPECT_THAT(script, HasSubstr("__complete"));
    EXPECT_THAT(script, HasSubstr("a-b"));
    EXPECT_THAT(script, Not(HasSubstr("@PROGRAM@")));
  }
}

}  // namespace
}  // namespace ztk::test
