// SPDX-License-Identifier: MIT
#include "ztk/model/choice.h"

#include <gtest/gtest.h>

namespace ztk::model {
namespace {

const std::vector<Choice> kRouting{{.number = 1, .text = "CH1 Tone PHONO"},
                                   {.number = 2, .text = "CH1 Tone LINE"},
                                   {.number = 3, .text = "Post CH1 Fader"},
                                   {.number = 4, .text = "Cross Fader A"},
                                   {.number = 5, .text = "Cross Fader B"},
                                   {.number = 6, .text = "MIC"},
                                   {.number = 7, .text = "REC OUT"}};
const std::vector<Choice> kRouting2{{.number = 1, .text = "CH1 CD/LINE"},
                                    {.number = 2, .text = "MIC"}};
const std::vector<Choice> kLevels{{.number = 1, .text = "-5 dB"},
                                  {.number = 2, .text = "-10 dB"},
                                  {.number = 3, .text = "-15 dB"},
                                  {.number = 4, .text = "-19 dB"}};
const std::vector<Choice> kMidi{{.number = 1, .text = "CH 1"},
                                {.number = 2, .text = "CH 2"},
                                {.number = 10, .text = "CH 10"},
                                {.number = 11, .text = "CH 11"}};

struct Row {
  const char *name;
  const std::vector<Choice> &choices;
  const char *words;
  const char *expected;
};

std::string Found(const Row &row) {
  const Match match = FindChoice(row.choices, row.words);
  if (match.choice) return Described(*match.choice);
  return "[" + Described(match.candidates) + "]";
}

void CheckAll(const std::vector<Row> &rows) {
  for (const Row &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Found(row), row.expected);
  }
}

TEST(FindChoice, FindsByNumber) {
  CheckAll({{"first", kRouting, "1", "CH1 Tone PHONO (1)"},
            {"last", kRouting, "7", "REC OUT (7)"},
            {"leading zero", kRouting, "03", "Post CH1 Fader (3)"},
            {"two digits", kMidi, "10", "CH 10 (10)"},
            {"none", kRouting, "0", "[]"},
            {"behind the last", kRouting, "8", "[]"},
            {"too long for a number", kRouting, "99999999999999999999", "[]"},
            {"sign", kRouting, "+1", "[]"}});
}

TEST(FindChoice, FindsByTextInAnyCaseAndSpacing) {
  CheckAll({{"as listed", kRouting, "Post CH1 Fader", "Post CH1 Fader (3)"},
            {"lower case", kRouting, "post ch1 fader", "Post CH1 Fader (3)"},
            {"upper case", kRouting, "REC OUT", "REC OUT (7)"},
            {"no spaces", kRouting, "recout", "REC OUT (7)"},
            {"more spaces", kRouting, "  rec \t out ", "REC OUT (7)"}});
}

TEST(FindChoice, FindsByABeginningThatOnlyOneHas) {
  CheckAll({{"one letter", kRouting, "m", "MIC (6)"},
            {"a word", kRouting, "post", "Post CH1 Fader (3)"},
            {"longer than the text", kRouting, "mice", "[]"}});
}

TEST(FindChoice, FindsByAWordThatOnlyOneHas) {
  CheckAll({{"the last word", kRouting, "line", "CH1 Tone LINE (2)"},
            {"upper case", kRouting, "LINE", "CH1 Tone LINE (2)"},
            {"two words", kRouting, "tone line", "CH1 Tone LINE (2)"},
            {"the beginning of a word", kRouting, "pho", "CH1 Tone PHONO (1)"},
            {"after a slash", kRouting2, "line", "CH1 CD/LINE (1)"},
            {"several have it", kRouting, "fader",
             "[Post CH1 Fader (3), Cross Fader A (4), Cross Fader B (5)]"},
            {"inside a word", kRouting, "ine", "[]"},
            {"a number", kLevels, "10", "[]"}});
}

TEST(FindChoice, FindsByWordsThatOnlyOneHasInAnyOrder) {
  CheckAll(
      {{"not next to each other", kRouting, "post fader", "Post CH1 Fader (3)"},
       {"as people say it", kRouting, "after the fader", "Post CH1 Fader (3)"},
       {"no space", kRouting, "postfader", "Post CH1 Fader (3)"},
       {"a dash", kRouting, "post-fader", "Post CH1 Fader (3)"},
       {"dashes", kRouting, "post-ch1-fader", "Post CH1 Fader (3)"},
       {"another order", kRouting, "fader post", "Post CH1 Fader (3)"},
       {"beginnings", kRouting, "fad po", "Post CH1 Fader (3)"},
       {"beginning at the end", kRouting, "postfad", "Post CH1 Fader (3)"},
       {"after a slash", kRouting2, "line ch1", "CH1 CD/LINE (1)"},
       {"a level", kLevels, "dB 10", "-10 dB (2)"},
       {"several have them", kRouting, "fader cross",
        "[Cross Fader A (4), Cross Fader B (5)]"},
       {"the same word twice", kRouting, "post post", "[]"},
       {"one more word", kRouting, "post fader x", "[]"},
       {"a misspelled word", kRouting, "post fadr", "[]"},
       {"inside a word", kRouting, "post ader", "[]"},
       {"only a dash", kRouting, "-", "[]"},
       {"a number and a sign", kLevels, "19-", "[]"}});
}

TEST(FindChoice, FindsWhatIsPrinted) {
  CheckAll({{"in a sentence", kLevels, "-10 dB (2)", "-10 dB (2)"},
            {"other letters", kRouting, "mic(6)", "MIC (6)"},
            {"in a list", kRouting, "3  Post CH1 Fader", "Post CH1 Fader (3)"},
            {"another number", kLevels, "-10 dB (3)", "[]"},
            {"another number first", kRouting, "4 MIC", "[]"}});
}

TEST(FindChoice, NamesAllThatABeginningCanMean) {
  CheckAll(
      {{"two", kRouting, "cross", "[Cross Fader A (4), Cross Fader B (5)]"},
       {"negative levels", kLevels, "-1",
        "[-10 dB (2), -15 dB (3), -19 dB (4)]"}});
}

TEST(FindChoice, PrefersAWholeTextToLongerOnes) {
  CheckAll({{"with a space", kMidi, "ch 1", "CH 1 (1)"},
            {"without", kMidi, "ch1", "CH 1 (1)"}});
}

TEST(FindChoice, FindsALevelWithAndWithoutItsSign) {
  CheckAll({{"as listed", kLevels, "-10 dB", "-10 dB (2)"},
            {"no space", kLevels, "-10dB", "-10 dB (2)"},
            {"no unit", kLevels, "-10", "-10 dB (2)"},
            {"no sign, with unit", kLevels, "19 db", "-19 dB (4)"}});
}

// Otherwise 4 would mean -19 dB and 5 would mean -5 dB.
TEST(FindChoice, TakesABareNumberForNothingElse) {
  CheckAll({{"a listed one", kLevels, "3", "-15 dB (3)"},
            {"a level", kLevels, "5", "[]"},
            {"two digits", kLevels, "10", "[]"}});
}

TEST(FindChoice, FindsNothingForNothing) {
  CheckAll({{"empty", kRouting, "", "[]"}, {"blank", kRouting, " \t", "[]"}});
}

}  // namespace
}  // namespace ztk::model
