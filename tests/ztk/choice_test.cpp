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
  CheckAll({{"first", kRouting, "1", "1 CH1 Tone PHONO"},
            {"last", kRouting, "7", "7 REC OUT"},
            {"leading zero", kRouting, "03", "3 Post CH1 Fader"},
            {"two digits", kMidi, "10", "10 CH 10"},
            {"none", kRouting, "0", "[]"},
            {"behind the last", kRouting, "8", "[]"},
            {"too long for a number", kRouting, "99999999999999999999", "[]"},
            {"sign", kRouting, "+1", "[]"}});
}

TEST(FindChoice, FindsByTextInAnyCaseAndSpacing) {
  CheckAll({{"as listed", kRouting, "Post CH1 Fader", "3 Post CH1 Fader"},
            {"lower case", kRouting, "post ch1 fader", "3 Post CH1 Fader"},
            {"upper case", kRouting, "REC OUT", "7 REC OUT"},
            {"no spaces", kRouting, "recout", "7 REC OUT"},
            {"more spaces", kRouting, "  rec \t out ", "7 REC OUT"}});
}

TEST(FindChoice, FindsByABeginningThatOnlyOneHas) {
  CheckAll({{"one letter", kRouting, "m", "6 MIC"},
            {"a word", kRouting, "post", "3 Post CH1 Fader"},
            {"not the beginning", kRouting, "fader", "[]"},
            {"longer than the text", kRouting, "mice", "[]"}});
}

TEST(FindChoice, NamesAllThatABeginningCanMean) {
  CheckAll(
      {{"two", kRouting, "cross", "[4 Cross Fader A, 5 Cross Fader B]"},
       {"negative levels", kLevels, "-1", "[2 -10 dB, 3 -15 dB, 4 -19 dB]"}});
}

TEST(FindChoice, PrefersAWholeTextToLongerOnes) {
  CheckAll({{"with a space", kMidi, "ch 1", "1 CH 1"},
            {"without", kMidi, "ch1", "1 CH 1"}});
}

TEST(FindChoice, FindsALevelWithAndWithoutItsSign) {
  CheckAll({{"as listed", kLevels, "-10 dB", "2 -10 dB"},
            {"no space", kLevels, "-10dB", "2 -10 dB"},
            {"no unit", kLevels, "-10", "2 -10 dB"},
            {"no sign, with unit", kLevels, "19 db", "4 -19 dB"}});
}

// Otherwise 4 would mean -19 dB and 5 would mean -5 dB.
TEST(FindChoice, TakesABareNumberForNothingElse) {
  CheckAll({{"a listed one", kLevels, "3", "3 -15 dB"},
            {"a level", kLevels, "5", "[]"},
            {"two digits", kLevels, "10", "[]"}});
}

TEST(FindChoice, FindsNothingForNothing) {
  CheckAll({{"empty", kRouting, "", "[]"}, {"blank", kRouting, " \t", "[]"}});
}

}  // namespace
}  // namespace ztk::model
