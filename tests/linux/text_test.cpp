// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ztk::platform::text;

// Returns a copy of the text, or "(null)", and releases the text.
std::string Take(ZTKTextRef made) {
  const OwnedText holder(made);
  return made == nullptr ? "(null)" : made;
}

TEST(UpperCase, MapsAsciiLettersOnly) {
  EXPECT_EQ(Take(UpperCase("vrm-d6 az AZ 09")), "VRM-D6 AZ AZ 09");
  EXPECT_EQ(Take(UpperCase("gr\xC3\xBC\xC3\x9F"
                           "e {`")),
            "GR\xC3\xBC\xC3\x9F"
            "E {`");
  EXPECT_EQ(Take(UpperCase("")), "");
}

TEST(Contains, FindsAPartAnywhere) {
  EXPECT_TRUE(Contains("MY VRM-D6 SETUP", "VRM-D6"));
  EXPECT_TRUE(Contains("VRM-D6", "VRM-D6"));
  EXPECT_TRUE(Contains("VRM-D6", ""));
  EXPECT_FALSE(Contains("VRM-D", "VRM-D6"));
  EXPECT_FALSE(Contains("vrm-d6", "VRM-D6"));
}

TEST(Format, ReplacesTextsInOrderAndTheNumber) {
  EXPECT_EQ(Take(Format("%@ BoostLevel Change", "VRM-D6")),
            "VRM-D6 BoostLevel Change");
  EXPECT_EQ(Take(Format("%@/Preferences/com.tarvix.%@autosetup.plist", "/home",
                        "VRM-D6")),
            "/home/Preferences/com.tarvix.VRM-D6autosetup.plist");
  EXPECT_EQ(Take(Format("Output%d", 4)), "Output4");
  EXPECT_EQ(Take(Format("%d", -2147483647 - 1)), "-2147483648");
}

TEST(Format, DoesNotInterpretTheInsertedTexts) {
  EXPECT_EQ(Take(Format("%@|%@", "%@ %d", "100%")), "%@ %d|100%");
}

TEST(Format, KeepsOtherPercentSigns) {
  EXPECT_EQ(Take(Format("%% %s %", "x")), "% %s %");
  EXPECT_EQ(Take(Format("%@%@", "only")), "only");
}

TEST(Format, ReturnsNullForANullText) {
  EXPECT_EQ(Take(Format("%@", nullptr)), "(null)");
}

// The functions may be called from any thread, so each result has its own
// memory.
TEST(OwnedTexts, DoNotOverwriteEachOther) {
  const OwnedText upper(UpperCase("one"));
  const OwnedText upperToo(UpperCase("two"));
  const OwnedText format(Format("%@ %@", "one", "x"));
  const OwnedText formatToo(Format("%d", 2));
  const OwnedText part(DotComponent("1.2", 0));
  const OwnedText partToo(DotComponent("1.2", 1));
  EXPECT_STREQ(upper.get(), "ONE");
  EXPECT_STREQ(upperToo.get(), "TWO");
  EXPECT_STREQ(format.get(), "one x");
  EXPECT_STREQ(formatToo.get(), "2");
  EXPECT_STREQ(part.get(), "1");
  EXPECT_STREQ(partToo.get(), "2");
}

TEST(DotComponent, CountsFromZero) {
  const struct {
    ZTKTextRef text;
    unsigned position;
    std::string expected;
  } rows[] = {
      {"10.13.6", 0, "10"}, {"10.13.6", 1, "13"},
      {"10.13.6", 2, "6"},  {"10.13.6", 3, "(null)"},
      {"11", 0, "11"},      {"11", 1, "(null)"},
      {"11.", 1, ""},       {".5", 0, ""},
      {"a..b", 1, ""},      {"", 0, ""},
      {"", 1, "(null)"},    {"1.2", 0xFFFFFFFF, "(null)"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.text) + " at " + std::to_string(row.position));
    EXPECT_EQ(Take(DotComponent(row.text, row.position)), row.expected);
  }
}

TEST(CompareNumerically, ComparesDigitsAsNumbers) {
  const struct {
    ZTKTextRef first;
    ZTKTextRef second;
    int sign;
  } rows[] = {
      {"9", "10", -1},
      {"10", "10", 0},
      {"11", "10", 1},
      {"010", "10", 0},
      {"0", "000", 0},
      {"2", "10", -1},
      {"", "10", -1},
      {"", "", 0},
      {"10a", "10", 1},
      {"a9b", "a10a", -1},
      {"a", "b", -1},
      {"x", "10", 1},
      {"18446744073709551617", "18446744073709551616", 1},
      {"18446744073709551616", "1", 1},
      {"99999999999999999999999999999999999999999", "10", 1},
      {"\xC3\xA4", "z", 1},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.first) + " and " + row.second);
    const int order = CompareNumerically(row.first, row.second);
    EXPECT_EQ((order > 0) - (order < 0), row.sign);
    const int turned = CompareNumerically(row.second, row.first);
    EXPECT_EQ((turned > 0) - (turned < 0), -row.sign);
  }
}

TEST(ReleaseText, TakesNull) { Release(nullptr); }

}  // namespace
