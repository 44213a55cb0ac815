// SPDX-License-Identifier: MIT
#include "platform/property_list.h"

#include <cerrno>
#include <filesystem>

#include "foundation_test.h"
#include "platform/macos/dictionary.h"
#include "support/number_rows.h"
#include "support/plist_rows.h"
#include "support/temp_home.h"

namespace ztk::test {
namespace {

namespace plist = platform::property_list;

class MacPropertyList : public FoundationTest {
 protected:
  // Reads a dictionary from a file with these entries. It is released after the
  // test.
  plist::Dictionary *Reading(const std::string &entries) {
    WriteAll(File(), PropertyList(entries));
    read_ = plist::ReadFile(TextOf(File()));
    EXPECT_NE(read_, nullptr);
    return read_;
  }
  ~MacPropertyList() override { plist::Release(read_); }

  static std::string File() { return Preferences() + "/test.plist"; }

  plist::Dictionary *read_ = nullptr;
};

TEST_F(MacPropertyList, IsNotReadFromOtherFiles) {
  EXPECT_EQ(plist::ReadFile(TextOf(File())), nullptr);
  EXPECT_EQ(plist::ReadFile(nullptr), nullptr);
  WriteAll(File(), "");
  EXPECT_EQ(plist::ReadFile(TextOf(File())), nullptr);
  WriteAll(File(), "<plist version=\"1.0\"><dict><key>a");
  EXPECT_EQ(plist::ReadFile(TextOf(File())), nullptr);
  WriteAll(File(),
           "<plist version=\"1.0\"><array><string>a</string></array></plist>");
  EXPECT_EQ(plist::ReadFile(TextOf(File())), nullptr);
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  EXPECT_EQ(plist::ReadFile(TextOf(File())), nullptr);
}

TEST_F(MacPropertyList, ReturnsIntegersOfEveryValueWithAnIntValue) {
  const plist::Dictionary *list = Reading(
      "<key>integer</key><integer>-7</integer><key>real</key><real>3.9</real>"
      "<key>true</key><true/><key>false</key><false/>"
      "<key>text</key><string>5</string><key>word</key><string>five</string>");
  const struct {
    const char *key;
    std::int32_t expected;
  } rows[] = {{"integer", -7}, {"real", 3}, {"true", 1},
              {"false", 0},    {"text", 5}, {"word", 0}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.key);
    std::int32_t value = 99;
    EXPECT_TRUE(plist::IntegerValue(list, TextOf(row.key), &value));
    EXPECT_EQ(value, row.expected);
  }
}

TEST_F(MacPropertyList, ReadsTextsAsInTheTableForBothPorts) {
  NSMutableDictionary *list = [NSMutableDictionary dictionary];
  for (const NumberRow &row : kNumberRows) {
    if (kOnGNUstep && row.onAppleOnly) continue;
    SCOPED_TRACE(row.text);
    [list setObject:ObjectOf(row.text) forKey:@"key"];
    std::int32_t value = 99;
    const plist::Dictionary dictionary{.entries = list};
    EXPECT_TRUE(plist::IntegerValue(&dictionary, ZTK_TEXT("key"), &value));
    EXPECT_EQ(value, row.expected);
  }
}

TEST_F(MacPropertyList, ReadsEntriesAsInTheTableForBothPorts) {
  if (kOnGNUstep) GTEST_SKIP() << "GNUstep reads numbers differently";
  for (const EntryRow &row : kEntryRows) {
    if (row.onIntel && !kIsIntel) continue;
    SCOPED_TRACE(row.element);
    WriteAll(File(), PropertyList(std::string("<key>a</key>") + row.element));
    plist::Dictionary *list = plist::ReadFile(TextOf(File()));
    std::int32_t value = kUnreadable;
    plist::IntegerValue(list, ZTK_TEXT("a"), &value);
    EXPECT_EQ(value, row.expected);
    plist::Release(list);
  }
}

TEST_F(MacPropertyList, ReadsTheFormsAsInTheTable) {
  if (kOnGNUstep) GTEST_SKIP() << "GNUstep reads different forms of the file";
  for (const FormRow &row : FormRows()) {
    SCOPED_TRACE(row.name);
    WriteAll(File(), row.bytes);
    plist::Dictionary *list = plist::ReadFile(TextOf(File()));
    EXPECT_EQ(list != nullptr, row.read);
    std::int32_t value = 0;
    EXPECT_EQ(plist::IntegerValue(list, ZTK_TEXT("a"), &value), row.read);
    EXPECT_EQ(value, row.read ? 5 : 0);
    plist::Release(list);
  }
}

TEST_F(MacPropertyList, ReturnsNoIntegerOfOtherValues) {
  const plist::Dictionary *list = Reading(
      "<key>array</key><array><integer>1</integer></array>"
      "<key>dictionary</key><dict><key>a</key><integer>1</integer></dict>"
      "<key>data</key><data>AAEC</data>"
      "<key>date</key><date>2020-01-02T03:04:05Z</date>");
  for (const char *key : {"absent", "array", "dictionary", "data", "date"}) {
    SCOPED_TRACE(key);
    std::int32_t value = 99;
    EXPECT_FALSE(plist::IntegerValue(list, TextOf(key), &value));
    EXPECT_EQ(value, 99);
  }
  std::int32_t value = 99;
  EXPECT_FALSE(plist::IntegerValue(list, nullptr, &value));
}

TEST_F(MacPropertyList, ReturnsOnlyTexts) {
  const plist::Dictionary *list = Reading(
      "<key>text</key><string>1.2.3</string><key>empty</key><string></string>"
      "<key>number</key><integer>5</integer>"
      "<key>array</key><array><string>a</string></array>");
  EXPECT_EQ(StringOf(plist::TextValue(list, ZTK_TEXT("text"))), "1.2.3");
  EXPECT_EQ(StringOf(plist::TextValue(list, ZTK_TEXT("empty"))), "");
  EXPECT_EQ(plist::TextValue(list, ZTK_TEXT("number")), nullptr);
  EXPECT_EQ(plist::TextValue(list, ZTK_TEXT("array")), nullptr);
  EXPECT_EQ(plist::TextValue(list, ZTK_TEXT("absent")), nullptr);
  EXPECT_EQ(plist::TextValue(list, nullptr), nullptr);
}

// The autorelease pool has a reference to the dictionary.
TEST_F(MacPropertyList, HasValidTextsAfterItsRelease) {
  WriteAll(File(), PropertyList("<key>a</key><string>a text</string>"));
  plist::Dictionary *list = plist::ReadFile(TextOf(File()));
  const ZTKTextRef text = plist::TextValue(list, ZTK_TEXT("a"));
  NSDictionary *entries = list->entries;
  EXPECT_EQ([entries retainCount], 2u);
  plist::Release(list);
  EXPECT_EQ([entries retainCount], 1u);
  EXPECT_EQ(StringOf(text), "a text");
}

TEST_F(MacPropertyList, ThatIsMadeBelongsOnlyToTheCaller) {
  plist::Dictionary *list = nullptr;
  @autoreleasepool {
    list = plist::MakeDictionary();
    plist::SetInteger(list, ZTK_TEXT("a"), 1);
  }
  NSDictionary *entries = [list->entries retain];
  EXPECT_EQ([entries retainCount], 2u);
  plist::Release(list);
  EXPECT_EQ([entries retainCount], 1u);
  [entries release];
  plist::Release(nullptr);
}

TEST_F(MacPropertyList, IsMergedWithAFile) {
  WriteAll(File(), PropertyList("<key>a</key><integer>1</integer>"
                                "<key>b</key><string>kept</string>"));
  plist::Dictionary *list = plist::MakeDictionary();
  plist::AddEntriesOfFile(list, TextOf(Preferences() + "/absent.plist"));
  plist::AddEntriesOfFile(list, nullptr);
  plist::AddEntriesOfFile(list, TextOf(File()));
  plist::SetInteger(list, ZTK_TEXT("a"), -2147483647 - 1);
  plist::SetInteger(list, nullptr, 1);
  EXPECT_TRUE(plist::WriteAtomically(list, TextOf(File())));
  EXPECT_FALSE(plist::WriteAtomically(list, nullptr));
  plist::Release(list);

  NSDictionary *written =
      [NSDictionary dictionaryWithContentsOfFile:ObjectOf(File())];
  EXPECT_EQ([written count], 2u);
  EXPECT_EQ([[written objectForKey:@"a"] intValue], -2147483647 - 1);
  EXPECT_TRUE([[written objectForKey:@"b"] isEqual:@"kept"]);
  EXPECT_EQ(ReadAll(File()).substr(0, 5), "<?xml");
}

// Another process without the lock changes the file between reading and
// writing.
class MacChangedMeanwhile : public MacPropertyList {
 protected:
  // Reads the file, changes it with the function, and returns the result of
  // writing.
  static int ErrorAfter(void (*happens)()) {
    plist::Dictionary *list = plist::MakeDictionary();
    plist::AddEntriesOfFile(list, TextOf(File()));
    plist::SetInteger(list, ZTK_TEXT("a"), 1);
    happens();
    int error = -1;
    EXPECT_FALSE(plist::WriteAtomically(list, TextOf(File()), &error));
    plist::Release(list);
    return error;
  }
  static void Replace() {
    WriteAll(File() + ".new", Other());
    std::filesystem::rename(File() + ".new", File());
  }
  static std::string Other() {
    return PropertyList("<key>b</key><integer>2</integer>");
  }
};

TEST_F(MacChangedMeanwhile, IsNotReplaced) {
  WriteAll(File(), PropertyList("<key>a</key><integer>7</integer>"));
  EXPECT_EQ(ErrorAfter(Replace), ESTALE);
  EXPECT_EQ(ReadAll(File()), Other());
  std::filesystem::remove(File());
  EXPECT_EQ(ErrorAfter(Replace), ESTALE);
  EXPECT_EQ(ReadAll(File()), Other());
  EXPECT_EQ(ErrorAfter([] { std::filesystem::remove(File()); }), ESTALE);
  EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(MacChangedMeanwhile, IsNotKeptIfItWasDamagedBefore) {
  WriteAll(File(), "not a property list <");
  EXPECT_EQ(ErrorAfter(Replace), ESTALE);
  EXPECT_EQ(ReadAll(File()), Other());
  EXPECT_FALSE(std::filesystem::exists(File() + ".unreadable-1"));
}

TEST_F(MacPropertyList, KeepsTheOtherEntriesAfterARemoval) {
  plist::Dictionary *list = plist::MakeDictionary();
  plist::SetInteger(list, ZTK_TEXT("a"), 1);
  plist::SetInteger(list, ZTK_TEXT("b"), 2);
  plist::RemoveEntry(list, ZTK_TEXT("a"));
  plist::RemoveEntry(list, ZTK_TEXT("missing"));
  plist::RemoveEntry(list, nullptr);
  std::int32_t value = 0;
  EXPECT_FALSE(plist::IntegerValue(list, ZTK_TEXT("a"), &value));
  EXPECT_TRUE(plist::IntegerValue(list, ZTK_TEXT("b"), &value));
  plist::Release(list);
}

TEST_F(MacPropertyList, IsNotWrittenWithoutAFolder) {
  plist::Dictionary *list = plist::MakeDictionary();
  plist::SetInteger(list, ZTK_TEXT("a"), 1);
  EXPECT_FALSE(plist::WriteAtomically(
      list, TextOf(Preferences() + "/absent/test.plist")));
  plist::Release(list);
}

}  // namespace
}  // namespace ztk::test
