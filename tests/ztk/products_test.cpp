// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include <gtest/gtest.h>

#include "cli/strings.h"
#include "ztk/report.h"

namespace ztk::program {
namespace {

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

TEST(ProductName, NamesEveryModel) {
  EXPECT_EQ(ProductName(0), "VRM-Q8X");
  EXPECT_EQ(ProductName(1), "VRM-K2");
  EXPECT_EQ(ProductName(8), "VRM-B5");
  EXPECT_EQ(ProductName(10), "VRM-D6");
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

}  // namespace
}  // namespace ztk::program
