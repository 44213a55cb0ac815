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

// A terminal would act on each of these.
TEST(OneLine, LeavesNothingThatControlsATerminal) {
  const struct {
    const char *text;
    const char *expected;
  } rows[] = {{"a\x1B[31mb\nc\x7F", "a [31mb c "},
              {"C1: \xC2\x9B", "C1:  "},
              {"bidi: \xE2\x80\xAE \xE2\x81\xA6", "bidi:    "},
              {"not UTF-8: \x9B\xFF\xC3",
               "not UTF-8: \xEF\xBF\xBD\xEF\xBF\xBD"
               "\xEF\xBF\xBD"},
              {"too long: \xC0\x9B", "too long: \xEF\xBF\xBD\xEF\xBF\xBD"},
              {"kept: \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8E\xA7",
               "kept: \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8E\xA7"}};
  for (const auto &row : rows) {
    EXPECT_EQ(cli::OneLine(row.text), row.expected);
  }
}

}  // namespace
}  // namespace ztk::model
