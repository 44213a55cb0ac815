// SPDX-License-Identifier: MIT
//
// Arguments at the limits of single functions of the reader, which a whole file
// cannot show, and null arguments.
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/linux/plist_guards.h"
#include "platform/linux/plist_xml_numbers.h"
#include "platform/property_list.h"

namespace {

namespace plist = ztk::platform::property_list;
using ztk::test::BinaryWith;

// libplist refuses an integer of 32 bytes too, after it has allocated memory.
TEST(IsSafeBinary, AcceptsIntegersOfAtMostSixteenBytes) {
  EXPECT_TRUE(plist::IsSafeBinary(BinaryWith("\x14" + std::string(16, '\1'))));
  EXPECT_FALSE(plist::IsSafeBinary(BinaryWith("\x15" + std::string(32, '\1'))));
}

TEST(NormalizeNumbers, RefusesAnElementThatDoesNotContainOnlyANumber) {
  const struct {
    const char *xml;
    bool expected;
  } rows[] = {
      {"<integer>5</integer>", true}, {"<integer/>", false},
      {"<integer/>5</dict>", false},  {"<integer />5</dict>", false},
      {"<integer>5", false},          {"<integer>5<!-- x --></integer>", false},
      {"<real>5.0</real>", true},     {"<real/>5.0</dict>", false},
      {"<real>5.0", false},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.xml);
    std::string xml = row.xml;
    EXPECT_EQ(plist::NormalizeNumbers(&xml), row.expected);
    EXPECT_EQ(xml, row.xml);
  }
}

TEST(PropertyList, IgnoresNullArguments) {
  const ztk::test::TempFolder folder;
  const std::string path = folder / "a.plist";
  plist::Dictionary *dictionary = plist::MakeDictionary();

  plist::SetInteger(nullptr, "a", 1);
  plist::SetInteger(dictionary, nullptr, 1);
  plist::RemoveEntry(nullptr, "a");
  plist::RemoveEntry(dictionary, nullptr);
  EXPECT_EQ(plist::AddEntriesOfFile(nullptr, path.c_str()),
            plist::ReadResult{});
  EXPECT_EQ(plist::AddEntriesOfFile(dictionary, nullptr), plist::ReadResult{});
  std::int32_t value = 7;
  EXPECT_FALSE(plist::IntegerValue(nullptr, "a", &value));
  EXPECT_FALSE(plist::IntegerValue(dictionary, nullptr, &value));
  EXPECT_EQ(value, 7);
  EXPECT_EQ(plist::TextValue(nullptr, "a"), nullptr);
  EXPECT_EQ(plist::TextValue(dictionary, nullptr), nullptr);
  EXPECT_EQ(plist::ReadFile(nullptr), nullptr);
  EXPECT_EQ(plist::BeginChange(nullptr), nullptr);
  plist::EndChange(nullptr);

  int error = 0;
  EXPECT_FALSE(plist::WriteAtomically(nullptr, path.c_str(), &error));
  EXPECT_EQ(error, EINVAL);
  error = 0;
  EXPECT_FALSE(plist::WriteAtomically(dictionary, nullptr, &error));
  EXPECT_EQ(error, EINVAL);
  EXPECT_TRUE(ztk::test::NamesIn(folder.path()).empty());
  plist::Release(dictionary);
  plist::Release(nullptr);
}

}  // namespace
