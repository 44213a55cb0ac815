// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "foundation_test.h"
#include "platform/paths.h"

namespace ztk::test {
namespace {

namespace text = platform::text;
using text::OwnedText;

class MacText : public FoundationTest {
 protected:
  static std::string Taken(ZTKTextRef made) {
    const OwnedText owner(made);
    return StringOf(made);
  }
};

TEST_F(MacText, IsConvertedToUpperCase) {
  EXPECT_EQ(Taken(text::UpperCase(TextOf("vrm-d6 Mixer"))), "VRM-D6 MIXER");
  EXPECT_EQ(Taken(text::UpperCase(TextOf(""))), "");
  EXPECT_EQ(text::UpperCase(nullptr), nullptr);
}

TEST_F(MacText, MayContainAnotherTextAnywhere) {
  EXPECT_TRUE(text::Contains(TextOf("MY VRM-D6 MIXER"), ZTK_TEXT("VRM-D6")));
  EXPECT_TRUE(text::Contains(TextOf("VRM-D6"), ZTK_TEXT("VRM-D6")));
  EXPECT_FALSE(text::Contains(TextOf("VRM-D"), ZTK_TEXT("VRM-D6")));
  EXPECT_FALSE(text::Contains(TextOf("vrm-d6"), ZTK_TEXT("VRM-D6")));
  EXPECT_FALSE(text::Contains(nullptr, ZTK_TEXT("VRM-D6")));
  EXPECT_FALSE(text::Contains(TextOf("VRM-D6"), nullptr));
}

TEST_F(MacText, IsInsertedIntoAFormat) {
  EXPECT_EQ(
      Taken(text::Format(ZTK_TEXT("%@ InputAudio Change"), ZTK_TEXT("VRM-D6"))),
      "VRM-D6 InputAudio Change");
  EXPECT_EQ(Taken(text::Format(
                ZTK_TEXT("%@/Preferences/com.tarvix.%@autosetup.plist"),
                ZTK_TEXT("/Users/dj/Library"), ZTK_TEXT("VRM-D6"))),
            "/Users/dj/Library/Preferences/com.tarvix.VRM-D6autosetup.plist");
  EXPECT_EQ(Taken(text::Format(ZTK_TEXT("Output%d"), 4)), "Output4");
  EXPECT_EQ(Taken(text::Format(ZTK_TEXT("Output%d"), -1)), "Output-1");
}

TEST_F(MacText, ThatIsNullMakesAFormatNull) {
  EXPECT_EQ(text::Format(nullptr, ZTK_TEXT("a")), nullptr);
  EXPECT_EQ(text::Format(ZTK_TEXT("%@"), nullptr), nullptr);
  EXPECT_EQ(text::Format(ZTK_TEXT("%@%@"), ZTK_TEXT("a"), nullptr), nullptr);
  EXPECT_EQ(text::Format(ZTK_TEXT("%@%@"), nullptr, ZTK_TEXT("a")), nullptr);
  EXPECT_EQ(text::Format(nullptr, 1), nullptr);
}

TEST_F(MacText, IsSplitAtEveryDot) {
  const ZTKTextRef version = TextOf("10.13.6");
  EXPECT_EQ(Taken(text::DotComponent(version, 0)), "10");
  EXPECT_EQ(Taken(text::DotComponent(version, 1)), "13");
  EXPECT_EQ(Taken(text::DotComponent(version, 2)), "6");
  EXPECT_EQ(text::DotComponent(version, 3), nullptr);
  EXPECT_EQ(text::DotComponent(TextOf("10"), 1), nullptr);
  EXPECT_EQ(Taken(text::DotComponent(TextOf("10..5"), 1)), "");
  EXPECT_EQ(text::DotComponent(nullptr, 0), nullptr);
}

TEST_F(MacText, IsComparedByNumbers) {
  const struct {
    const char *first;
    const char *second;
    int expected;
  } rows[] = {{"9", "10", -1}, {"10", "10", 0},  {"11", "10", 1},
              {"2", "10", -1}, {"100", "10", 1}, {"", "10", -1}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.first);
    EXPECT_EQ(text::CompareNumerically(TextOf(row.first), TextOf(row.second)),
              row.expected);
  }
  EXPECT_EQ(text::CompareNumerically(nullptr, TextOf("10")), -1);
  EXPECT_EQ(text::CompareNumerically(TextOf("10"), nullptr), 1);
  EXPECT_EQ(text::CompareNumerically(nullptr, nullptr), 0);
}

// A constant text has no reference count. A made text has one reference, which
// the caller owns.
TEST_F(MacText, ThatIsMadeBelongsOnlyToTheCaller) {
  ZTKTextRef made = nullptr;
  @autoreleasepool {
    made = text::Format(ZTK_TEXT("a text that is %@"), ZTK_TEXT("long enough"));
  }
  EXPECT_EQ([(NSString *)made retainCount], 1u);
  text::Release(made);
  @autoreleasepool {
    made = text::UpperCase(TextOf("a text that is long enough"));
  }
  EXPECT_EQ([(NSString *)made retainCount], 1u);
  text::Release(made);
  text::Release(nullptr);
}

TEST_F(MacText, OfTheLibraryFolderIsThatOfTheUser) {
  EXPECT_EQ(Taken(platform::paths::UserLibrary()),
            std::string(std::getenv("HOME")) + "/Library");
}

}  // namespace
}  // namespace ztk::test
