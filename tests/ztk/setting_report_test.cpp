// SPDX-License-Identifier: MIT
#include "ztk/report/setting_report.h"

#include <gtest/gtest.h>

namespace ztk::program {
namespace {

const std::vector<Choice> kLevels{{.number = 1, .text = "-5 dB"},
                                  {.number = 2, .text = "-10 dB"},
                                  {.number = 3, .text = "-15 dB"},
                                  {.number = 4, .text = "-19 dB"}};

TEST(NearestChoice, TakesANumberForALevelOrForTheEndOfTheList) {
  EXPECT_EQ(NearestChoice("5", kLevels), "; nearest: -5 dB (1)");
  EXPECT_EQ(NearestChoice("10", kLevels), "; nearest: -10 dB (2)");
  EXPECT_EQ(NearestChoice("9", kLevels), "; nearest: -19 dB (4)");
  EXPECT_EQ(NearestChoice("0", kLevels), "; nearest: -5 dB (1)");
}

TEST(NearestChoice, SuggestsNothingThatIsNotSimilar) {
  EXPECT_EQ(NearestChoice("headphones", kLevels), "");
  EXPECT_EQ(NearestChoice("1", {}), "");
}

TEST(ParseProduct, TakesNumbersAndNames) {
  const struct {
    const char *word;
    std::uint32_t expected;
  } rows[] = {{"0", 0},      {"10", 10},        {"VRM-K2", 1},
              {"vrm-b5", 8}, {"my VRM-D6", 10}, {"VRC-H7", 3}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.word);
    EXPECT_EQ(ParseProduct(row.word), row.expected);
  }
}

TEST(ParseProduct, RefusesTheGapsAndEverythingElse) {
  for (const char *word : {"7", "9", "11", "-1", "", "VRM", "4294967306"}) {
    SCOPED_TRACE(word);
    EXPECT_THROW(ParseProduct(word), Failure);
  }
}

TEST(SetCommand, CountsChannelsAndChoicesFromOne) {
  EXPECT_EQ(SetCommand(kInput, 1, 2), "ztk input set 2 3");
  EXPECT_EQ(SetCommand(kBoost, 0, 3), "ztk boost set 4");
}

}  // namespace
}  // namespace ztk::program
