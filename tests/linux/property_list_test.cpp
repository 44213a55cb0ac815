// SPDX-License-Identifier: MIT
//
// Reads and rewrites valid files.
#include "platform/property_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <locale.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "support/number_rows.h"
#include "support/plist_rows.h"

namespace {

namespace plist = ztk::platform::property_list;
using testing::HasSubstr;
using ztk::test::BigEndian;
using ztk::test::BinaryWith;
using ztk::test::ContentOf;
using ztk::test::Put;
using ztk::test::TempFolder;
using ztk::test::Variable;
using ztk::test::Xml;

using Dictionary =
    std::unique_ptr<plist::Dictionary, void (*)(plist::Dictionary *)>;

class File : public testing::Test {
 protected:
  Dictionary Read() { return {plist::ReadFile(path_.c_str()), plist::Release}; }
  // Returns the value of "a" in a file with this content.
  std::string IntegerOf(const std::string &content) {
    Put(path_, content);
    const Dictionary dictionary = Read();
    if (dictionary == nullptr) return "unread";
    std::int32_t value = 12345;
    const bool found = plist::IntegerValue(dictionary.get(), "a", &value);
    if (!found && value != 12345) return "changed";
    return found ? std::to_string(value) : "none";
  }
  std::string TextOf(const std::string &content) {
    Put(path_, content);
    const Dictionary dictionary = Read();
    if (dictionary == nullptr) return "unread";
    const ZTKTextRef text = plist::TextValue(dictionary.get(), "a");
    return text == nullptr ? "none" : text;
  }
  // Sets "new" to 1 in a file with this content, and returns the new content.
  std::string Rewritten(const std::string &content) {
    Put(path_, content);
    const Dictionary dictionary(plist::MakeDictionary(), plist::Release);
    plist::AddEntriesOfFile(dictionary.get(), path_.c_str());
    plist::SetInteger(dictionary.get(), "new", 1);
    EXPECT_TRUE(plist::WriteAtomically(dictionary.get(), path_.c_str()));
    return ContentOf(path_);
  }

  TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
};

class IntegerValue : public File {};
class TextValue : public File {};
class ReadFile : public File {};
class SetInteger : public File {};
class RemoveEntry : public File {};
class Rewriting : public File {};

TEST_F(IntegerValue, ConvertsEveryKindOfEntry) {
  const struct {
    const char *name;
    std::string content;
    const char *expected;
  } rows[] = {
      {"integer", Xml("<key>a</key><integer>7</integer>"), "7"},
      {"negative", Xml("<key>a</key><integer>-7</integer>"), "-7"},
      {"wide", Xml("<key>a</key><integer>4294967303</integer>"), "7"},
      {"unsigned", Xml("<key>a</key><integer>18446744073709551615</integer>"),
       "-1"},
      {"leading zero", Xml("<key>a</key><integer>010</integer>"), "10"},
      {"zeros and sign", Xml("<key>a</key><integer> -0099</integer>"), "-99"},
      {"zeros only", Xml("<key>a</key><integer>000</integer>"), "0"},
      {"hexadecimal", Xml("<key>a</key><integer>0x10</integer>"), "16"},
      {"real", Xml("<key>a</key><real>-2.75</real>"), "-2"},
      {"huge real", Xml("<key>a</key><real>1e40</real>"), "-2147483648"},
      {"nan", Xml("<key>a</key><real>nan</real>"), "-2147483648"},
      {"true", Xml("<key>a</key><true/>"), "1"},
      {"false", Xml("<key>a</key><false/>"), "0"},
      {"text", Xml("<key>a</key><string>5</string>"), "5"},
      {"no number", Xml("<key>a</key><string>x</string>"), "0"},
      {"empty text", Xml("<key>a</key><string/>"), "0"},
      {"date", Xml("<key>a</key><date>2011-11-11T11:11:11Z</date>"), "none"},
      {"data", Xml("<key>a</key><data>AQID</data>"), "none"},
      {"array", Xml("<key>a</key><array><integer>1</integer></array>"), "none"},
      {"dictionary", Xml("<key>a</key><dict/>"), "none"},
      {"absent", Xml("<key>b</key><integer>1</integer>"), "none"},
      {"empty file", Xml(""), "none"},
      {"binary byte", BinaryWith("\x10\x07"), "7"},
      {"binary negative", BinaryWith("\x13" + BigEndian(~0ULL - 6, 8)), "-7"},
      {"binary 16 bytes",
       BinaryWith("\x14" + BigEndian(0, 8) + BigEndian(0xFFFFFFFF00000009U, 8)),
       "9"},
      {"binary float", BinaryWith("\x22" + BigEndian(0x40600000, 4)), "3"},
      {"binary real", BinaryWith("\x23" + BigEndian(0xC00A000000000000U, 8)),
       "-3"},
      {"binary true", BinaryWith("\x09"), "1"},
      {"binary text",
       BinaryWith("\x52"
                  "15"),
       "15"},
      {"binary uid", BinaryWith("\x80\x07"), "none"},
      {"binary date", BinaryWith("\x33" + BigEndian(0x41B0000000000000U, 8)),
       "none"},
      {"binary data", BinaryWith("\x41\x07"), "none"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(IntegerOf(row.content), row.expected);
  }
}

TEST_F(IntegerValue, IsThatOfTheTableForBothPorts) {
  for (const ztk::test::EntryRow &row : ztk::test::kEntryRows) {
    SCOPED_TRACE(row.element);
    const std::string content = Xml(std::string("<key>a</key>") + row.element);
    EXPECT_EQ(IntegerOf(content), row.expected == ztk::test::kUnreadable
                                      ? "unread"
                                      : std::to_string(row.expected));
  }
}

TEST_F(TextValue, IsTheTextOfATextEntry) {
  const struct {
    const char *name;
    std::string content;
    const char *expected;
  } rows[] = {
      {"text", Xml("<key>a</key><string>1.0.2</string>"), "1.0.2"},
      {"spaces", Xml("<key>a</key><string> x\n</string>"), " x\n"},
      {"entities", Xml("<key>a</key><string>&lt;&amp;&gt;&#228;</string>"),
       "<&>\xC3\xA4"},
      {"CDATA", Xml("<key>a</key><string>x<![CDATA[<y>]]>z</string>"), "x<y>z"},
      {"empty", Xml("<key>a</key><string/>"), ""},
      {"integer", Xml("<key>a</key><integer>1</integer>"), "none"},
      {"absent", Xml(""), "none"},
      {"binary", BinaryWith("\x53xyz"), "xyz"},
      {"UTF-16", BinaryWith(ztk::test::Utf16Object({0xE4, 0xD83D, 0xDE00})),
       "\xC3\xA4\xF0\x9F\x98\x80"},
      {"control", Xml("<key>a</key><string>x&#1;y&#9;</string>"),
       "x\xEF\xBF\xBDy\t"},
      {"not UTF-8", Xml("<key>a</key><string>\xE4x\xC0\x80</string>"),
       "\xEF\xBF\xBDx\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"surrogate", Xml("<key>a</key><string>&#xD800;</string>"),
       "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"beyond Unicode", Xml("<key>a</key><string>\xF4\x90\x80\x80</string>"),
       "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"last of Unicode", Xml("<key>a</key><string>\xF4\x8F\xBF\xBD</string>"),
       "\xF4\x8F\xBF\xBD"},
      {"cut off at the end", Xml("<key>a</key><string>\xE2\x82</string>"),
       "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"binary control", BinaryWith("\x52x\x1F"), "x\xEF\xBF\xBD"},
      {"binary not ASCII", BinaryWith("\x52x\xFF"), "x\xEF\xBF\xBD"},
      {"no character", BinaryWith(ztk::test::Utf16Object({'x', 0xFFFE})),
       "x\xEF\xBF\xBD"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(TextOf(row.content), row.expected);
  }
}

TEST_F(TextValue, DoesNotOverwriteAnotherText) {
  Put(path_, Xml("<key>a</key><string>one</string>"
                 "<key>b</key><string>two</string>"));
  const Dictionary dictionary = Read();
  const ZTKTextRef one = plist::TextValue(dictionary.get(), "a");
  const ZTKTextRef two = plist::TextValue(dictionary.get(), "b");
  EXPECT_STREQ(one, "one");
  EXPECT_STREQ(two, "two");
}

TEST_F(TextValue, IsValidAfterReleaseAndStoredOnlyOnce) {
  Put(path_, Xml("<key>a</key><string>10.13.6</string>"));
  const ZTKTextRef text = plist::TextValue(Read().get(), "a");
  EXPECT_STREQ(text, "10.13.6");
  EXPECT_EQ(plist::TextValue(Read().get(), "a"), text);
}

TEST_F(ReadFile, AcceptsOrdinaryVariationsOfXml) {
  const std::string entry = "<key>a</key><integer>4</integer>";
  const std::string body = "<plist><dict>" + entry + "</dict></plist>";
  const struct {
    const char *name;
    std::string content;
  } rows[] = {
      {"no prolog", body},
      {"byte order mark", "\xEF\xBB\xBF" + Xml(entry)},
      {"white space before", " \n\t" + body},
      {"comments", Xml("<!-- <array> -->" + entry + "<!-- \" -->")},
      {"no plist element", "<dict>" + entry + "</dict>"},
      {"Windows lines", Xml("\r\n" + entry + "\r\n")},
      {"an element in an instruction",
       body + "<?x > <integer> ?><?>" + "<?x > <!-- ?><?x > <![CDATA[ ?>"},
      {"an element in a comment", Xml("<!-- <integer>x -->" + entry)},
      {"attributes", "<plist version=\"1.0\" a=\"b c\"><dict >" + entry +
                         "</dict ></plist >"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(IntegerOf(row.content), "4");
  }
}

// Deliberate: the rows with differsOnLinux are read differently by Foundation.
TEST_F(ReadFile, AcceptsTheSameFormsAsFoundation) {
  for (const ztk::test::FormRow &row : ztk::test::FormRows()) {
    SCOPED_TRACE(row.name);
    const bool expected = row.read != row.differsOnLinux;
    EXPECT_EQ(IntegerOf(row.bytes), expected ? "5" : "unread");
  }
}

TEST_F(ReadFile, OfAMissingFileCreatesNothing) {
  EXPECT_EQ(Read(), nullptr);
  EXPECT_EQ(plist::ReadFile((folder_ / "no/folder.plist").c_str()), nullptr);
  EXPECT_TRUE(ztk::test::NamesIn(folder_.path()).empty());
}

TEST_F(SetInteger, ReplacesAValueOfAnyKind) {
  for (const char *old : {"<integer>1</integer>", "<string>x</string>",
                          "<dict><key>b</key><true/></dict>"}) {
    SCOPED_TRACE(old);
    Put(path_, Xml(std::string("<key>a</key>") + old));
    const Dictionary dictionary = Read();
    for (const std::int32_t value : {3, 0, -1, 2147483647, -2147483647 - 1}) {
      plist::SetInteger(dictionary.get(), "a", value);
      std::int32_t found = 12345;
      EXPECT_TRUE(plist::IntegerValue(dictionary.get(), "a", &found));
      EXPECT_EQ(found, value);
      ASSERT_TRUE(plist::WriteAtomically(dictionary.get(), path_.c_str()));
      EXPECT_EQ(IntegerOf(ContentOf(path_)), std::to_string(value));
    }
  }
}

TEST_F(RemoveEntry, KeepsTheOtherEntries) {
  Put(path_, Xml("<key>a</key><integer>1</integer>"
                 "<key>b</key><string>kept</string>"));
  const Dictionary dictionary = Read();
  plist::RemoveEntry(dictionary.get(), "a");
  plist::RemoveEntry(dictionary.get(), "missing");
  plist::RemoveEntry(dictionary.get(), nullptr);
  ASSERT_TRUE(plist::WriteAtomically(dictionary.get(), path_.c_str()));
  EXPECT_EQ(IntegerOf(ContentOf(path_)), "none");
  EXPECT_NE(ContentOf(path_).find("kept"), std::string::npos);
}

TEST_F(Rewriting, KeepsEntriesOfEveryKind) {
  const std::string entries =
      "\t<key>array</key>\n\t<array>\n\t\t<integer>1</integer>\n"
      "\t\t<string>x</string>\n\t</array>\n"
      "\t<key>data</key>\n\t<data>\n\tAQIDBA==\n\t</data>\n"
      "\t<key>date</key>\n\t<date>2011-11-11T11:11:11Z</date>\n"
      "\t<key>dict</key>\n\t<dict>\n\t\t<key>in</key>\n\t\t<true/>\n\t</dict>\n"
      "\t<key>empty array</key>\n\t<array/>\n"
      "\t<key>empty dict</key>\n\t<dict/>\n"
      "\t<key>false</key>\n\t<false/>\n"
      "\t<key>largest</key>\n\t<integer>18446744073709551615</integer>\n"
      "\t<key>least</key>\n\t<integer>-9223372036854775808</integer>\n"
      "\t<key>real</key>\n\t<real>3.25</real>\n"
      "\t<key>tenth</key>\n\t<real>0.10000000000000001</real>\n"
      "\t<key>te&amp;&lt;&gt;xt</key>\n\t<string> &lt;&amp;&gt; \xC3\xA4\"' "
      "</string>\n"
      "\t<key></key>\n\t<string></string>\n";
  const std::string added = "\t<key>new</key>\n\t<integer>1</integer>\n";
  EXPECT_EQ(Rewritten(Xml(entries)), Xml(entries + added));
}

TEST_F(Rewriting, WritesAnIntegerWithALeadingZeroAsADecimalOne) {
  const std::string text =
      "\t<key>text</key>\n\t<string>&lt;integer&gt;010</string>\n";
  EXPECT_EQ(Rewritten(Xml("<key>a</key><integer>010</integer><key>text</key>"
                          "<string><![CDATA[<integer>010]]></string>")),
            Xml("\t<key>a</key>\n\t<integer>10</integer>\n" + text +
                "\t<key>new</key>\n\t<integer>1</integer>\n"));
}

// The files contain the letter a with two dots in every encoding that is read.
TEST_F(Rewriting, ConvertsOtherEncodingsToUtf8) {
  const auto declared = [](const std::string &encoding) {
    return "<?xml version='1.0' encoding='" + encoding +
           "'?><plist><dict><key>a</key><string>\xE4</string></dict></plist>";
  };
  const auto utf16 = [](bool bigEndian) {
    std::string text;
    for (const char c : std::string("<plist><dict><key>a</key><string>\xE4"
                                    "</string></dict></plist>")) {
      text += bigEndian ? std::string("\0", 1) + c : c + std::string("\0", 1);
    }
    return text;
  };
  const struct {
    const char *name;
    std::string content;
  } rows[] = {
      {"Latin-1", declared("ISO-8859-1")},
      {"lower case", declared("iso-8859-1")},
      {"Latin-9", declared("ISO-8859-15")},
      {"Windows", declared("windows-1252")},
      {"UTF-16, mark, little", "\xFF\xFE" + utf16(false)},
      {"UTF-16, mark, big", "\xFE\xFF" + utf16(true)},
      {"UTF-16, little", utf16(false)},
      {"UTF-16, big", utf16(true)},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Rewritten(row.content),
              Xml("\t<key>a</key>\n\t<string>\xC3\xA4</string>\n"
                  "\t<key>new</key>\n\t<integer>1</integer>\n"));
  }
  EXPECT_EQ(ztk::test::NamesIn(folder_.path()).size(), 1U);
}

TEST_F(Rewriting, KeepsTheOldFileIfItCannotReadAllCharacters) {
  const std::string rows[] = {
      "<?xml version=\"1.0\" encoding=\"KOI8-R\"?><plist><dict/></plist>",
      Xml("<key>a</key><string>\xE4 without a declaration</string>"),
      "\xFF\xFE<\0odd"};
  int number = 0;
  for (const std::string &content : rows) {
    Rewritten(content);
    EXPECT_EQ(ContentOf(path_ + ".unreadable-" + std::to_string(++number)),
              content);
  }
}

TEST_F(Rewriting, TurnsABinaryFileIntoXml) {
  EXPECT_EQ(Rewritten(BinaryWith("\x53xyz")),
            Xml("\t<key>a</key>\n\t<string>xyz</string>\n"
                "\t<key>new</key>\n\t<integer>1</integer>\n"));
}

TEST_F(Rewriting, CleansTextsAndKeysThatXmlCannotContain) {
  const std::string binary =
      ztk::test::Binary{.objects = {ztk::test::ContainerObject(0xD0, {1, 2}),
                                    ztk::test::AsciiObject("k\x01"),
                                    ztk::test::ContainerObject(0xA0, {3}),
                                    ztk::test::AsciiObject("\x02\xFF\t")}}
          .Bytes();
  EXPECT_EQ(Rewritten(binary),
            Xml("\t<key>k\xEF\xBF\xBD</key>\n\t<array>\n"
                "\t\t<string>\xEF\xBF\xBD\xEF\xBF\xBD\t</string>\n\t</array>\n"
                "\t<key>new</key>\n\t<integer>1</integer>\n"));
}

TEST_F(Rewriting, WritesEveryDateInTheStrictForm) {
  const struct {
    const char *name;
    std::string content;
    const char *expected;
  } rows[] = {
      {"first", Xml("<key>a</key><date>0001-01-01T00:00:00Z</date>"),
       "<date>0001-01-01T00:00:00Z</date>"},
      {"early", Xml("<key>a</key><date>0812-03-04T05:06:07Z</date>"),
       "<date>0812-03-04T05:06:07Z</date>"},
      {"broken", Xml("<key>a</key><date/>"), "Z</date>"},
      {"year 33689", BinaryWith("\x33" + BigEndian(0x426D1A94A2000000U, 8)),
       "<date>9999-12-31T23:59:59Z</date>"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_THAT(Rewritten(row.content), HasSubstr(row.expected));
  }
}

// Sets a locale with a decimal comma: an installed one, or one that is made in
// the folder.
bool SetCommaLocale(const std::string &folder) {
  for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8",
                           "nl_NL.UTF-8", "it_IT.UTF-8", "ru_RU.UTF-8"}) {
    if (setlocale(LC_ALL, name) != nullptr) return true;
  }
  const std::string command = "localedef -i de_DE -f UTF-8 '" + folder +
                              "/de_DE.UTF-8' >/dev/null 2>&1";
  if (std::system(command.c_str()) != 0) return false;
  setenv("LOCPATH", folder.c_str(), 1);
  return setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
}

TEST_F(Rewriting, KeepsRealsInALocaleWithADecimalComma) {
  const Variable restored("LOCPATH", std::nullopt);
  const TempFolder locales;
  if (!SetCommaLocale(locales.path())) {
    GTEST_SKIP() << "no locale with a decimal comma";
  }
  ASSERT_STREQ(localeconv()->decimal_point, ",");
  EXPECT_THAT(Rewritten(Xml("<key>a</key><real>3.25</real>")),
              HasSubstr("<real>3.25</real>"));
  EXPECT_STREQ(localeconv()->decimal_point, ",")
      << "the locale must be restored";
  setlocale(LC_ALL, "C");
}

TEST_F(Rewriting, MakesAFileThatAStrictReaderAccepts) {
  if (std::system("python3 -c 'import plistlib' >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no python3 with plistlib";
  }
  Rewritten(ztk::test::Binary{
      .objects = {ztk::test::ContainerObject(0xD0, {1, 2, 3, 4, 5, 6}),
                  ztk::test::AsciiObject("k\x01&<"),
                  ztk::test::AsciiObject("date"),
                  ztk::test::AsciiObject("real"),
                  ztk::test::AsciiObject("\x02\xFF<]]>"),
                  "\x33" + BigEndian(0xC22D63C8C5000000U, 8),
                  "\x23" + BigEndian(0x7FF0000000000000U, 8)}}
                .Bytes());
  const std::string command =
      "python3 -c 'import plistlib,sys\n"
      "for i in sorted(plistlib.load(open(sys.argv[1],\"rb\")).items()):"
      "print(ascii(i))' '" +
      path_ + "' 2>&1";
  FILE *pipe = popen(command.c_str(), "r");
  std::array<char, 4096> output = {};
  const std::size_t length =
      std::fread(output.data(), 1, output.size() - 1, pipe);
  EXPECT_EQ(pclose(pipe), 0);
  EXPECT_EQ(std::string(output.data(), length),
            "('date', datetime.datetime(1, 1, 1, 0, 0))\n"
            "('k\\ufffd&<', '\\ufffd\\ufffd<]]>')\n"
            "('new', 1)\n"
            "('real', inf)\n");
}

}  // namespace
