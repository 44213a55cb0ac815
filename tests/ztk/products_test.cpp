// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include <gtest/gtest.h>

#include "cli/strings.h"

namespace ztk::model {
namespace {

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
}  // namespace ztk::model
