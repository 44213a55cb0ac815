// SPDX-License-Identifier: MIT
#include "cli/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ztk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Quoted, KeepsToOneShortLine) {
  EXPECT_EQ(cli::Quoted("a\nb\x1B[1m\x7F"), "\"a b [1m \"");
  EXPECT_EQ(cli::Quoted(std::string(61, 'x')),
            "\"" + std::string(60, 'x') + "...\"");
  EXPECT_EQ(cli::Quoted(std::string(60, 'x')),
            "\"" + std::string(60, 'x') + "\"");
}

TEST(Padded, FillsUpAndNeverCuts) {
  EXPECT_EQ(cli::Padded("ab", 4), "ab  ");
  EXPECT_EQ(cli::Padded("abcde", 4), "abcde");
}

TEST(ParseNumber, TakesDecimalDigitsAndNothingElse) {
  EXPECT_EQ(cli::ParseNumber("0"), 0U);
  EXPECT_EQ(cli::ParseNumber("4294967295"), 4294967295U);
  for (const char *word :
       {"", "-1", "+1", " 1", "1 ", "1.5", "0x1", "4294967296"}) {
    SCOPED_TRACE(word);
    EXPECT_EQ(cli::ParseNumber(word), std::nullopt);
  }
}

TEST(ParseNumber, TakesTheBoundsAndNothingBeyond) {
  EXPECT_EQ(cli::ParseNumber("2", 2, 5), 2U);
  EXPECT_EQ(cli::ParseNumber("5", 2, 5), 5U);
  EXPECT_EQ(cli::ParseNumber("1", 2, 5), std::nullopt);
  EXPECT_EQ(cli::ParseNumber("6", 2, 5), std::nullopt);
}

TEST(ParseDecimalOrHex, TakesBothAndNothingElse) {
  EXPECT_EQ(cli::ParseDecimalOrHex("15"), 15U);
  EXPECT_EQ(cli::ParseDecimalOrHex("0x1F"), 31U);
  EXPECT_EQ(cli::ParseDecimalOrHex("4294967295"), 4294967295U);
  for (const char *word : {"", "0x", "x1", "-1", "1 ", "4294967296", "1.5"}) {
    SCOPED_TRACE(word);
    EXPECT_EQ(cli::ParseDecimalOrHex(word), std::nullopt);
  }
}

TEST(ParseHex, TakesDigitsWithoutAPrefix) {
  EXPECT_EQ(cli::ParseHex("800a"), 0x800AU);
  EXPECT_EQ(cli::ParseHex("0x1"), std::nullopt);
}

TEST(LinesOf, NeedsNoEndOfTheLastLine) {
  EXPECT_THAT(cli::LinesOf(""), IsEmpty());
  EXPECT_THAT(cli::LinesOf("a"), ElementsAre("a"));
  EXPECT_THAT(cli::LinesOf("a\n"), ElementsAre("a"));
  EXPECT_THAT(cli::LinesOf("\na\n\nb"), ElementsAre("", "a", "", "b"));
  EXPECT_THAT(cli::LinesOf("\n\n"), ElementsAre("", ""));
}

}  // namespace
}  // namespace ztk::test
