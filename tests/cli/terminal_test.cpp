// SPDX-License-Identifier: MIT
//
// The layout of text for a terminal.
#include "cli/terminal.h"

#include <gtest/gtest.h>

namespace ztk::test {
namespace {

using cli::FillParagraphs;
using cli::Strong;
using cli::WrapLines;

TEST(WrapLines, LeavesLinesUnchangedWithoutATerminal) {
  EXPECT_EQ(
      WrapLines("a  b c d e f g\n\n  h", {.columns = 0, .emphasis = false}),
      "a  b c d e f g\n\n  h");
}

TEST(WrapLines, ShowsEmphasisOnlyWhereItIsWanted) {
  const std::string text = "  1\n" + Strong("* 2") + "\n";
  EXPECT_EQ(WrapLines(text, {.columns = 0, .emphasis = false}), "  1\n* 2\n");
  EXPECT_EQ(WrapLines(text, {.columns = 80, .emphasis = false}), "  1\n* 2\n");
  EXPECT_EQ(WrapLines(text, {.columns = 80, .emphasis = true}),
            "  1\n\033[1m* 2\033[0m\n");
}

TEST(WrapLines, BreaksLinesBetweenWords) {
  const struct {
    const char *name;
    std::size_t columns;
    std::string text;
    const char *expected;
  } rows[] = {
      {"fits exactly", 7, "ab cd e\n", "ab cd e\n"},
      {"one too many", 6, "ab cd e\n", "ab cd\n  e\n"},
      {"below the second column", 20, "  name    one two three four\n",
       "  name    one two\n          three four\n"},
      {"marks take no room", 8, Strong("ab cd ef") + "\n", "ab cd ef\n"},
      {"the second column is too far", 10, "  a long name  one two\n",
       "  a long\n    name\n    one\n    two\n"},
      {"a word that is too long", 4, "abcdefgh ij kl\n",
       "abcdefgh\n  ij\n  kl\n"},
      {"an indented word that is too long", 8, "  abcdefgh ij kl\n",
       "  abcdefgh\n    ij\n    kl\n"},
      {"a word that is too long in the middle", 8, "ab cdefghijkl mn op\n",
       "ab\n  cdefghijkl\n  mn op\n"},
      {"two words that are too long", 4, "abcdef ghijkl m\n",
       "abcdef\n  ghijkl\n  m\n"},
      {"an indentation that is too deep", 4, "      ab cd\n", "      ab\ncd\n"},
      {"only spaces", 4, "      \n", "      \n"},
      {"umlauts are one column", 5, "\xC3\xA4\xC3\xB6 \xC3\xBC\xC3\xA4\n",
       "\xC3\xA4\xC3\xB6 \xC3\xBC\xC3\xA4\n"},
      {"no end of line", 5, "ab cd ef", "ab cd\n  ef"},
      {"empty lines stay", 5, "\n\na\n", "\n\na\n"},
      {"what is to be copied", 5,
       "\x10"
       "ab cd ef\nab cd\n",
       "ab cd ef\nab cd\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(WrapLines(row.text, {.columns = row.columns, .emphasis = false}),
              row.expected);
  }
}

TEST(FillParagraphs, FillsUpSentencesAndNothingElse) {
  const struct {
    const char *name;
    std::size_t columns;
    const char *text;
    const char *expected;
  } rows[] = {
      {"sentences", 9, "ab cd\nef gh ij\n\nkl\n", "ab cd ef\ngh ij\n\nkl\n"},
      {"no indentation", 5, "ab cd ef\n", "ab cd\nef\n"},
      {"a list", 14, "ab:\n  c   d e f g h\n  i   j\n",
       "ab:\n  c   d e f g\n      h\n  i   j\n"},
      {"a whole line", 20, "ab\n\x10Try: ab cd\n", "ab\n\x10Try: ab cd\n"},
      {"a whole line that is too long", 8, "\x10Try: ab cd\n",
       "\x10Try:\n\x10  ab cd\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(FillParagraphs(row.text, row.columns), row.expected);
  }
  const std::string words =
      "1234567 1234567 1234567 1234567 1234567 1234567 "
      "1234567 1234567 1234567 1234567 1";
  EXPECT_EQ(FillParagraphs(words + " 2\n", 0), words.substr(0, 79) + "\n1 2\n");
  EXPECT_EQ(FillParagraphs(words + " 2\n", 200),
            words.substr(0, 79) + "\n1 2\n");
}

TEST(MessageLine, IsOneLineWithoutATerminal) {
  EXPECT_EQ(cli::MessageLine("ztk", "a\nb\x1B[1m"), "ztk: a b [1m\n");
}

}  // namespace
}  // namespace ztk::test
