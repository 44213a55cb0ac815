// SPDX-License-Identifier: MIT
//
// Malicious files: the reader must refuse them without crashing or hanging.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/property_list.h"

namespace {

namespace plist = ztk::platform::property_list;
using testing::ElementsAre;
using ztk::test::AsciiObject;
using ztk::test::BigEndian;
using ztk::test::Binary;
using ztk::test::BinaryWith;
using ztk::test::ContainerObject;
using ztk::test::ContentOf;
using ztk::test::Put;
using ztk::test::Repeat;
using ztk::test::TempFolder;
using ztk::test::Xml;

class BadFile : public testing::Test {
 protected:
  void SetUp() override { alarm(60); }  // ends a test that hangs
  void TearDown() override { alarm(0); }

  bool IsRead() {
    plist::Dictionary *dictionary = plist::ReadFile(path_.c_str());
    plist::Release(dictionary);
    return dictionary != nullptr;
  }
  bool IsRead(const std::string &content) {
    Put(path_, content);
    return IsRead();
  }
  bool Write() {
    plist::Dictionary *dictionary = plist::MakeDictionary();
    plist::AddEntriesOfFile(dictionary, path_.c_str());
    plist::SetInteger(dictionary, "new", 1);
    const bool written = plist::WriteAtomically(dictionary, path_.c_str());
    plist::Release(dictionary);
    return written;
  }

  const std::string fresh_ = Xml("\t<key>new</key>\n\t<integer>1</integer>\n");
  TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
};

class XmlGuard : public BadFile {};
class BinaryGuard : public BadFile {};

TEST_F(XmlGuard, RefusesEverythingThatIsNotAnXmlPropertyList) {
  const std::string good = Xml("<key>a</key><integer>1</integer>");
  ASSERT_TRUE(IsRead(good));
  const struct {
    const char *name;
    std::string content;
  } rows[] = {
      {"empty", ""},
      {"white space", " \n"},
      {"only a byte order mark", "\xEF\xBB\xBF"},
      {"old-style text", "{ a = 1; }"},
      {"JSON", "{\"a\": 1}"},
      {"truncated", good.substr(0, good.size() / 2)},
      {"last tag missing", good.substr(0, good.size() - 9)},
      {"last character missing", good.substr(0, good.size() - 2)},
      {"root is an array", "<plist><array/></plist>"},
      {"root is a text", "<plist><string>x</string></plist>"},
      {"no root", "<plist></plist>"},
      {"other XML", "<html><body/></html>"},
      {"wrong nesting", Xml("<key>a</key><array><dict></array></dict>")},
      {"value without a key", Xml("<integer>1</integer>")},
      {"NUL in a text",
       Xml("<key>a</key><string>x" + std::string(1, '\0') + "y</string>")},
      {"NUL after the end", good + std::string(1, '\0')},
      {"UTF-16", std::string("\xFE\xFF\0<\0p", 6)},
      {"unknown entity", Xml("<key>a</key><string>&lol;</string>")},
      {"own entities",
       "<!DOCTYPE plist [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]>"
       "<plist><dict/></plist>"},
      {"unpaired quote", "<plist a=\"><dict/></plist>"},
      {"\">\" in quotes", "<plist a=\">\"><dict/></plist>"},
      {"\"<\" in a tag", "<plist <dict/></plist>"},
      {"odd name", "<plist><dict\"/></plist>"},
      {"comment not closed", "<plist><dict/><!-- </plist>"},
      {"comment inside data",
       Xml("<key>a</key><data>AQID<!-- x -->BAUG</data>")},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(IsRead(row.content));
  }
}

TEST_F(XmlGuard, RefusesDeepNesting) {
  const auto nested = [](std::size_t depth) {
    return Xml("<key>a</key>" + Repeat("<array>", depth) +
               Repeat("</array>", depth));
  };
  EXPECT_TRUE(IsRead(nested(127)));  // and the root dictionary
  EXPECT_FALSE(IsRead(nested(129)));
  EXPECT_FALSE(IsRead(nested(16000)));
  EXPECT_FALSE(IsRead(nested(100000)));
  EXPECT_FALSE(IsRead(Repeat("<array>", 37000)));
}

TEST_F(XmlGuard, FindsHiddenNesting) {
  const std::string deep = Repeat("<array>", 200);
  const std::string ends = Repeat("</array>", 200);
  const struct {
    const char *name;
    std::string content;
  } rows[] = {
      {"ends in comments", Repeat("<array><!--</array>-->", 200)},
      {"ends in CDATA", Repeat("<array><![CDATA[</array>]]>", 200)},
      {"ends in attributes", Repeat("<array a=\"</array>\">", 200)},
      {"after a short instruction", "<?>" + deep + ends + "<?x?>"},
      {"after a comment like end", "<!-->" + deep + "<!-- -->" + ends},
      {"after a quoted end", "<?x \"?>\" ?>" + deep + ends},
      {"with attributes", Repeat("<array  x=\"1\">", 200) + ends},
      {"dictionaries",
       Repeat("<dict><key>a</key>", 200) + "<true/>" + Repeat("</dict>", 200)},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(IsRead(Xml("<key>a</key>" + row.content)));
  }
}

TEST_F(XmlGuard, DoesNotCountNestingInCommentsAndTexts) {
  const std::string deep = Repeat("<array>", 200);
  EXPECT_TRUE(IsRead(Xml("<!--" + deep + "-->")));
  EXPECT_TRUE(
      IsRead(Xml("<key>a</key><string><![CDATA[" + deep + "]]></string>")));
  EXPECT_TRUE(IsRead(
      Xml("<key>a</key><array>" + Repeat("<array/>", 200) + "</array>")));
}

TEST_F(XmlGuard, RefusesAMebibyteOfEntities) {
  EXPECT_FALSE(IsRead(
      Xml("<key>a</key><string>" + Repeat("&lt;", 262144) + "</string>")));
}

TEST_F(BadFile, IsRefusedAboveTheSizeLimit) {
  const std::string around = Xml("<key>a</key><string></string>");
  const std::size_t room = 262144 - around.size();
  const auto ofText = [](std::size_t length) {
    return Xml("<key>a</key><string>" + std::string(length, 'x') + "</string>");
  };
  EXPECT_TRUE(IsRead(ofText(room)));
  EXPECT_FALSE(IsRead(ofText(room + 1)));

  Put(path_, "");
  std::filesystem::resize_file(path_, 100 * 1024 * 1024);
  EXPECT_FALSE(IsRead());
}

TEST_F(BadFile, IsRefusedIfItHasRandomBytes) {
  std::mt19937 random(20240607);
  for (const char *start : {"", "bplist00", "<", "<plist>"}) {
    SCOPED_TRACE(start);
    for (int i = 0; i < 50; ++i) {
      std::string bytes = start;
      for (int n = 0; n < 300; ++n) bytes += static_cast<char>(random());
      EXPECT_FALSE(IsRead(bytes));
    }
  }
}

TEST_F(BadFile, IsNotReplacedIfItIsAFolder) {
  std::filesystem::create_directories(path_);
  EXPECT_FALSE(IsRead());
  EXPECT_FALSE(Write());
  EXPECT_TRUE(std::filesystem::is_directory(path_));
  EXPECT_THAT(ztk::test::NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(BadFile, DoesNotBlockAndIsNotReplacedIfItIsAPipe) {
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  EXPECT_FALSE(IsRead());
  EXPECT_FALSE(Write());
  EXPECT_TRUE(std::filesystem::is_fifo(path_));
  EXPECT_THAT(ztk::test::NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(BadFile, IsNotReplacedIfItIsALinkToAPipe) {
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("pipe", path_);
  EXPECT_FALSE(Write());
  EXPECT_TRUE(std::filesystem::is_fifo(folder_ / "pipe"));
  EXPECT_THAT(ztk::test::NamesIn(folder_.path()),
              ElementsAre("a.plist", "pipe"));
}

TEST_F(BadFile, IsKeptUnderTheFirstFreeNumber) {
  Put(path_ + ".unreadable-2", "of another time");
  const char *const names[] = {".unreadable-1", ".unreadable-3",
                               ".unreadable-4"};
  for (const std::string name : names) {
    SCOPED_TRACE(name);
    const std::string broken = "broken " + name;
    Put(path_, broken);
    ASSERT_TRUE(Write());
    EXPECT_EQ(ContentOf(path_), fresh_);
    EXPECT_EQ(ContentOf(path_ + name), broken);
  }
  EXPECT_EQ(ContentOf(path_ + ".unreadable-2"), "of another time");
  ASSERT_TRUE(Write());
  EXPECT_EQ(ztk::test::NamesIn(folder_.path()).size(), 5U)
      << "a readable file was kept";
}

TEST_F(BadFile, IsNotKeptIfAnotherFileIsReplaced) {
  Put(folder_ / "other.plist", "broken");
  plist::Dictionary *dictionary = plist::MakeDictionary();
  plist::AddEntriesOfFile(dictionary, (folder_ / "other.plist").c_str());
  EXPECT_TRUE(plist::WriteAtomically(dictionary, path_.c_str()));
  plist::Release(dictionary);
  EXPECT_THAT(ztk::test::NamesIn(folder_.path()),
              ElementsAre("a.plist", "other.plist"));
}

TEST_F(BadFile, IsKeptInTheFolderOfALinksTarget) {
  Put(folder_ / "real/b.plist", "broken");
  std::filesystem::create_symlink("real/b.plist", path_);
  ASSERT_TRUE(Write());
  EXPECT_TRUE(std::filesystem::is_symlink(path_));
  EXPECT_EQ(ContentOf(folder_ / "real/b.plist"), fresh_);
  EXPECT_EQ(ContentOf(folder_ / "real/b.plist.unreadable-1"), "broken");
}

TEST_F(BinaryGuard, RefusesABrokenTrailerOrTable) {
  const std::vector<std::string> objects = {ContainerObject(0xD0, {1, 2}),
                                            AsciiObject("a"), "\x10\x01"};
  const std::string good = Binary{.objects = objects}.Bytes();
  ASSERT_TRUE(IsRead(good));
  const struct {
    const char *name;
    std::string content;
  } rows[] = {
      {"head only", "bplist00"},
      {"other version", "bplist15" + good.substr(8)},
      {"truncated", good.substr(0, good.size() - 1)},
      {"root out of range", Binary{.objects = objects, .root = 3}.Bytes()},
      {"no objects", Binary{.objects = {}}.Bytes()},
      {"one object too many",
       Binary{.objects = objects, .countError = 1}.Bytes()},
      {"more objects than memory",
       Binary{.objects = objects, .countError = 1ULL << 61U}.Bytes()},
      {"table in the trailer",
       Binary{.objects = objects, .tableError = 13}.Bytes()},
      {"table before the file",
       Binary{.objects = objects, .tableError = ~0ULL - 40}.Bytes()},
      {"root is an array", Binary{.objects = {"\xA0"}}.Bytes()},
      {"root is a text", Binary{.objects = {AsciiObject("a")}}.Bytes()},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(IsRead(row.content));
  }
}

TEST_F(BinaryGuard, RefusesBrokenObjects) {
  const struct {
    const char *name;
    std::string object;
  } rows[] = {
      {"null", std::string(1, '\0')},
      {"fill", "\x0F"},
      {"set", std::string("\xC1\0\1", 3)},
      {"unknown type", "\x70"},
      {"integer of 32 bytes", "\x15" + std::string(32, '\1')},
      {"integer past the end", "\x13\x01"},
      {"real of one byte", "\x20\x01"},
      {"date of four bytes", "\x32" + std::string(4, '\1')},
      {"date NaN", "\x33" + BigEndian(0x7FF8000000000000U, 8)},
      {"date minus infinity", "\x33" + BigEndian(0xFFF0000000000000U, 8)},
      {"date in a million years", "\x33" + BigEndian(0x42C0000000000000U, 8)},
      {"data past the end", "\x4E\x01"},
      {"text past the end", "\x5Exy"},
      {"text with NUL", std::string("\x52x\0", 3)},
      {"UTF-16 with NUL", std::string("\x62\0x\0\0", 5)},
      {"UTF-16 past the end", std::string("\x64\0x\0x", 5)},
      {"length without a number", "\x5F"},
      {"length is not an integer", "\x5F\x22xxxx"},
      {"length past the end", "\x5F\x13\x01"},
      {"length beyond memory", "\x4F\x13" + BigEndian(~0ULL, 8)},
      {"text length beyond memory", "\x6F\x13" + BigEndian(1ULL << 63U, 8)},
      {"array length beyond memory", "\xAF\x13" + BigEndian(1ULL << 63U, 8)},
      {"index out of range", std::string("\xA1\0\3", 3)},
      {"array past the end", std::string("\xA2\0\1", 3)},
      {"key is a number", std::string("\xD1\0\2\0\1", 5)},
      {"contains itself", std::string("\xA1\0\2", 3)},
      {"contains the root", std::string("\xA1\0\0", 3)},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(IsRead(BinaryWith(row.object)));
  }
}

// Returns a file with `depth` nested arrays and a leaf in the last one. Each
// array contains the next one `width` times.
std::string Chain(std::uint16_t depth, std::size_t width,
                  const std::string &leaf) {
  Binary file{.objects = {ContainerObject(0xD0, {1, 2}), AsciiObject("a")}};
  for (std::uint16_t i = 0; i < depth; ++i) {
    file.objects.push_back(ContainerObject(
        0xA0,
        std::vector<std::uint16_t>(width, static_cast<std::uint16_t>(3 + i))));
  }
  file.objects.push_back(leaf);
  return file.Bytes();
}

TEST_F(BinaryGuard, RefusesDeepNesting) {
  EXPECT_TRUE(IsRead(Chain(127, 1, "\x09")));  // and the root dictionary
  EXPECT_FALSE(IsRead(Chain(128, 1, "\x09")));
  EXPECT_FALSE(IsRead(Chain(30000, 1, "\x09")));
}

TEST_F(BinaryGuard, FindsDeepNestingInASharedObject) {
  // "a" contains 100 nested arrays. "b" contains `above` nested arrays with
  // those of "a" inside.
  const auto file = [](std::uint16_t above) {
    Binary binary{.objects = {ContainerObject(0xD0, {1, 2, 3, 4}),
                              AsciiObject("a"), AsciiObject("b")}};
    for (std::uint16_t i = 0; i < 100; ++i) {
      const auto next = static_cast<std::uint16_t>(i == 99 ? 1 : 4 + i);
      binary.objects.push_back(ContainerObject(0xA0, {next}));
    }
    binary.objects[0] = ContainerObject(0xD0, {1, 2, 3, 103});
    for (std::uint16_t i = 0; i < above; ++i) {
      const auto next =
          static_cast<std::uint16_t>(i + 1 == above ? 3 : 104 + i);
      binary.objects.push_back(ContainerObject(0xA0, {next}));
    }
    return binary.Bytes();
  };
  EXPECT_TRUE(IsRead(file(27)));
  EXPECT_FALSE(IsRead(file(28)));
  EXPECT_FALSE(IsRead(file(60)));
}

TEST_F(BinaryGuard, RefusesSharedObjectsThatExpandTooMuch) {
  EXPECT_TRUE(IsRead(Chain(4, 14, "\x09")));     // 41,371 nodes
  EXPECT_FALSE(IsRead(Chain(5, 14, "\x09")));    // 579,195
  EXPECT_FALSE(IsRead(Chain(127, 14, "\x09")));  // beyond any number
  const std::string large =
      "\x5F\x12" + BigEndian(200000, 4) + std::string(200000, 'x');
  EXPECT_TRUE(IsRead(Chain(1, 5, large)));
  EXPECT_FALSE(IsRead(Chain(1, 6, large)));
}

TEST_F(BinaryGuard, IsNotSlowIfObjectsOverlap) {
  // Most of the 40,000 references lead to the same long text.
  constexpr std::uint32_t kCount = 40000;
  std::string bytes = "bplist00\xAF\x12" + BigEndian(kCount, 4);
  for (std::uint32_t i = 0; i < kCount; ++i) bytes += BigEndian(i % 32768, 2);
  const std::size_t text = bytes.size();
  bytes += "\x5F\x12" + BigEndian(50000, 4) + std::string(50000, 'x');
  const std::size_t table = bytes.size();
  bytes += BigEndian(8, 3);
  for (std::uint32_t i = 1; i < 32768; ++i) bytes += BigEndian(text, 3);
  bytes += std::string(6, '\0') + '\3' + '\2' + BigEndian(32768, 8) +
           BigEndian(0, 8) + BigEndian(table, 8);
  ASSERT_LE(bytes.size(), 262144U);
  EXPECT_FALSE(IsRead(bytes));
}

}  // namespace
