// SPDX-License-Identifier: MIT
#include "platform/common/number_rules.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

#include "platform/common/interned_text.h"
#include "support/number_rows.h"

namespace {

using namespace ztk::platform::common;

TEST(IntegerFromInteger, ReturnsTheLow32Bits) {
  EXPECT_EQ(IntegerFromInteger(5), 5);
  EXPECT_EQ(IntegerFromInteger(0xFFFFFFFFFFFFFFFEU), -2);
  EXPECT_EQ(IntegerFromInteger(0x80000000U), -2147483647 - 1);
  EXPECT_EQ(IntegerFromInteger(0x100000007U), 7);
}

TEST(IntegerFromReal, RoundsTowardsZeroAndIsTheLowestOutOfRange) {
  const struct {
    double real;
    std::int32_t expected;
  } rows[] = {
      {2.9, 2},
      {-2.9, -2},
      {-0.0, 0},
      {2147483646.9, 2147483646},
      {2147483647.0, 2147483647},
      {2147483647.9, 2147483647},
      {2147483648.0, -2147483647 - 1},
      {-2147483648.9, -2147483647 - 1},
      {1e300, -2147483647 - 1},
      {-1e300, -2147483647 - 1},
      {std::numeric_limits<double>::infinity(), -2147483647 - 1},
      {-std::numeric_limits<double>::infinity(), -2147483647 - 1},
      {std::numeric_limits<double>::quiet_NaN(), -2147483647 - 1},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.real);
    EXPECT_EQ(IntegerFromReal(row.real), row.expected);
  }
}

TEST(IntegerFromBoolean, IsOneOrZero) {
  EXPECT_EQ(IntegerFromBoolean(true), 1);
  EXPECT_EQ(IntegerFromBoolean(false), 0);
}

TEST(IntegerFromText, ReadsTheLeadingNumber) {
  for (const ztk::test::NumberRow &row : ztk::test::kNumberRows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(IntegerFromText(row.text), row.expected);
  }
}

TEST(IntegerFromText, StopsAtABrokenCharacter) {
  EXPECT_EQ(IntegerFromText("\xC2"), 0);
  EXPECT_EQ(IntegerFromText("\xE3\x80"), 0);
  EXPECT_EQ(IntegerFromText("\xFF 5"), 0);
}

TEST(Intern, ReturnsOneCopyOfEqualTextsThatNeverMoves) {
  const std::string first = "10.13.6";
  const std::string second = "10.13.6";
  const char *text = Intern(first);
  EXPECT_NE(text, first.c_str());
  EXPECT_STREQ(text, "10.13.6");

  for (int i = 0; i < 5000; ++i) Intern("other " + std::to_string(i));
  EXPECT_EQ(Intern(second), text);
  EXPECT_STREQ(text, "10.13.6");
  EXPECT_NE(Intern("10.13"), text);
  EXPECT_STREQ(Intern(""), "");
}

TEST(Intern, StopsAtAZeroByte) {
  EXPECT_EQ(Intern(std::string_view("ab\0cd", 5)), Intern("ab"));
}

}  // namespace
