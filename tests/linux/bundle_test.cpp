// SPDX-License-Identifier: MIT
#include "platform/bundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/linux/bundle_search.h"
#include "platform/linux/languages.h"
#include "platform/text.h"
#include "support/language_rows.h"

namespace {

using namespace ztk::platform::bundle;
using testing::ElementsAre;
using testing::IsEmpty;
using ztk::test::Put;
using ztk::test::TempFolder;
using ztk::test::Variable;

// The environment prefers no language in these tests.
class NoLanguage : public testing::Test {
 protected:
  Variable language_{"LANGUAGE", std::nullopt};
  Variable all_{"LC_ALL", std::nullopt};
  Variable messages_{"LC_MESSAGES", std::nullopt};
  Variable lang_{"LANG", std::nullopt};
};

std::string Table(const std::string &text) {
  return ztk::test::Xml("<key>WARNING1</key><string>" + text + "</string>\n");
}

TEST(FindBundle, ReturnsThePathIfItIsAFolder) {
  const TempFolder folder;
  std::filesystem::create_directories(folder / "here/B.framework");
  std::filesystem::create_directories(folder / "data/tarvix/B.framework");
  EXPECT_EQ(FindBundle(folder / "here/B.framework", folder / "data"),
            folder / "here/B.framework");
}

TEST(FindBundle, OtherwiseSearchesTheSameNameInTheDataFolder) {
  const TempFolder folder;
  std::filesystem::create_directories(folder / "data/tarvix/B.framework");
  for (const char *path : {"/Library/Frameworks/B.framework",
                           "/Library/Frameworks/B.framework/", "B.framework"}) {
    SCOPED_TRACE(path);
    EXPECT_EQ(FindBundle(path, folder / "data"),
              folder / "data/tarvix/B.framework");
  }
}

TEST(FindBundle, ReturnsAnEmptyTextIfThereIsNoFolder) {
  const TempFolder folder;
  std::filesystem::create_directories(folder / "data/tarvix");
  Put(folder / "data/tarvix/File.framework", "no folder");
  for (const char *path : {"", "/", "/x/..", "/x/.", "/x/File.framework",
                           "/Library/Frameworks/B.framework"}) {
    SCOPED_TRACE(path);
    EXPECT_EQ(FindBundle(path, folder / "data"),
              std::string(path) == "/" ? "/" : "");
  }
}

TEST(AtPath, ReturnsNullIfThereIsNoFolder) {
  const TempFolder folder;
  EXPECT_EQ(AtPath((folder / "None.framework").c_str()), nullptr);
  EXPECT_EQ(AtPath(nullptr), nullptr);
  Release(nullptr);
}

TEST(ResourcePath, IsTheFirstFolderThatExists) {
  const TempFolder folder;
  const std::string path = folder / "B.framework";
  const auto resources = [&path] {
    Bundle *bundle = AtPath(path.c_str());
    const ztk::platform::text::OwnedText made(ResourcePath(bundle));
    Release(bundle);
    return std::string(made.get());
  };
  std::filesystem::create_directories(path);
  EXPECT_EQ(resources(), path);
  std::filesystem::create_directories(path + "/Versions/A/Resources");
  EXPECT_EQ(resources(), path + "/Versions/A/Resources");
  std::filesystem::create_directory_symlink("Versions/A/Resources",
                                            path + "/Resources");
  EXPECT_EQ(resources(), path + "/Resources");
  EXPECT_EQ(ResourcePath(nullptr), nullptr);
}

TEST(FolderNames, BeginWithTheExactLocaleAndEndWithTheLanguage) {
  const struct {
    const char *locale;
    std::vector<std::string> expected;
  } rows[] = {
      {"ja_JP.UTF-8", {"ja_JP", "ja", "Japanese"}},
      {"de_AT@euro", {"de_AT", "de", "German"}},
      {"nl", {"nl", "Dutch"}},
      {"en_GB.UTF-8", {"en_GB", "en", "English"}},
      {"fr_CA", {"fr_CA", "fr", "French"}},
      {"it_IT", {"it_IT", "it", "Italian"}},
      {"es_MX.utf8", {"es_MX", "es", "Spanish"}},
      {"ru_RU.KOI8-R", {"ru_RU", "ru"}},
      {"pt_BR", {"pt_BR", "pt"}},
      {"ko_KR.UTF-8", {"ko_KR", "ko"}},
      {"zh_CN.UTF-8", {"zh_CN", "zh"}},
      {"zh_TW", {"zh_TW", "zh"}},
      {"zh_HK", {"zh_HK", "zh_TW", "zh"}},
      {"zh_MO", {"zh_MO", "zh_TW", "zh"}},
      {"zh_SG", {"zh_SG", "zh_CN", "zh"}},
      {"zh", {"zh", "zh_CN"}},
      {"zh_Hant", {"zh_Hant", "zh_TW", "zh"}},
      {"zh_Hans_TW", {"zh_Hans_TW", "zh_CN", "zh"}},
      {"zh-Hant-HK", {"zh_Hant_HK", "zh_TW", "zh"}},
      {"zh-Hans-HK", {"zh_Hans_HK", "zh_CN", "zh"}},
      {"", {}},
      {"../../x", {}},
      {"de/../..", {}},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.locale);
    EXPECT_EQ(FolderNames(row.locale), row.expected);
  }
}

TEST(FolderNames, SelectTheSameFolderAsMacOS) {
  const std::span<const char *const> folders = ztk::test::kLanguageFolders;
  for (const ztk::test::LanguageRow &row : ztk::test::kLanguageRows) {
    SCOPED_TRACE(row.language);
    std::string first;
    for (const std::string &name : FolderNames(row.language)) {
      const bool exists =
          std::find(folders.begin(), folders.end(), name) != folders.end();
      if (first.empty() && exists) first = name;
    }
    EXPECT_EQ(first, row.folder);
  }
}

class PreferredLocales : public NoLanguage {};

TEST_F(PreferredLocales, AreEmptyWithoutALocale) {
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), IsEmpty());
}

TEST_F(PreferredLocales, UseTheFirstVariableThatIsSet) {
  const Variable lang("LANG", "de_DE.UTF-8");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(),
              ElementsAre("de_DE.UTF-8"));
  const Variable messages("LC_MESSAGES", "fr_FR");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), ElementsAre("fr_FR"));
  const Variable all("LC_ALL", "it_IT");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), ElementsAre("it_IT"));
  const Variable emptyAll("LC_ALL", "");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), ElementsAre("fr_FR"));
}

TEST_F(PreferredLocales, BeginWithTheLanguageList) {
  const Variable lang("LANG", "de_DE.UTF-8");
  const Variable language("LANGUAGE", "sv:nl::ja_JP");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(),
              ElementsAre("sv", "nl", "ja_JP", "de_DE.UTF-8"));
}

TEST_F(PreferredLocales, EndAtAnEntryForTheCLocale) {
  const Variable lang("LANG", "de_DE.UTF-8");
  const Variable language("LANGUAGE", "sv:C:nl");
  EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), ElementsAre("sv"));
}

TEST_F(PreferredLocales, IgnoreTheLanguageListInTheCLocale) {
  const Variable language("LANGUAGE", "nl");
  for (const char *plain : {"C", "POSIX", "C.UTF-8", ""}) {
    SCOPED_TRACE(plain);
    const Variable lang("LANG", plain);
    EXPECT_THAT(ztk::platform::bundle::PreferredLocales(), IsEmpty());
  }
}

class LocalizedText : public NoLanguage {
 protected:
  void SetUp() override {
    Put(resources_ + "/English.lproj/Localizable.strings",
        ztk::test::Xml("<key>WARNING1</key><string>English one</string>\n"
                       "<key>WARNING2</key><string>English two</string>\n"));
    Put(resources_ + "/German.lproj/Localizable.strings", Table("Deutsch"));
    Put(resources_ + "/zh_TW.lproj/Localizable.strings", Table("Taiwan"));
    Put(resources_ + "/ru.lproj/Localizable.strings",
        ztk::test::Binary{.objects = {ztk::test::ContainerObject(0xD0, {1, 2}),
                                      ztk::test::AsciiObject("WARNING1"),
                                      ztk::test::Utf16Object({0x0434, 0x0430})}}
            .Bytes());
    Put(resources_ + "/French.lproj/Localizable.strings",
        "\"WARNING1\" = \"old-style text\";\n");
    bundle_ = AtPath((folder_ / "B.framework").c_str());
    ASSERT_NE(bundle_, nullptr);
  }
  void TearDown() override { Release(bundle_); }

  std::string Text(const char *key, const char *table = "Localizable") {
    const ZTKTextRef text =
        ztk::platform::bundle::LocalizedText(bundle_, key, table);
    return text == nullptr ? "(null)" : text;
  }

  TempFolder folder_;
  std::string resources_ = folder_ / "B.framework/Resources";
  Bundle *bundle_ = nullptr;
};

TEST_F(LocalizedText, IsInThePreferredLanguage) {
  const struct {
    const char *lang;
    const char *expected;
  } rows[] = {
      {"de_AT.UTF-8", "Deutsch"},    {"zh_HK", "Taiwan"},
      {"ru_RU", "\xD0\xB4\xD0\xB0"}, {"C", "English one"},
      {"sv_SE", "English one"},      {"fr_FR", "English one"},
      {"../German", "English one"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.lang);
    const Variable lang("LANG", row.lang);
    EXPECT_EQ(Text("WARNING1"), row.expected);
  }
}

TEST_F(LocalizedText, ReturnsTheKeyIfThePreferredLanguageDoesNotContainIt) {
  const Variable lang("LANG", "de_DE.UTF-8");
  EXPECT_EQ(Text("WARNING2"), "WARNING2");
}

TEST_F(LocalizedText, UsesTheFirstLanguageThatHasTheTable) {
  const Variable lang("LANG", "de_DE.UTF-8");
  const Variable language("LANGUAGE", "sv:ru:de");
  EXPECT_EQ(Text("WARNING1"), "\xD0\xB4\xD0\xB0");
}

TEST_F(LocalizedText, ReturnsTheKeyIfNoLanguageContainsIt) {
  const std::string key = "WARNING9";
  const ZTKTextRef text =
      ztk::platform::bundle::LocalizedText(bundle_, key.c_str(), "Localizable");
  EXPECT_NE(text, key.c_str()) << "the caller may free its text";
  EXPECT_STREQ(text, "WARNING9");
  EXPECT_EQ(Text("WARNING1", "Other"), "WARNING1");
}

TEST_F(LocalizedText, IsNullForANullBundle) {
  EXPECT_EQ(
      ztk::platform::bundle::LocalizedText(nullptr, "WARNING1", "Localizable"),
      nullptr);
}

TEST_F(LocalizedText, IsValidAfterTheBundleIsReleasedAndStoredOnlyOnce) {
  const ZTKTextRef text =
      ztk::platform::bundle::LocalizedText(bundle_, "WARNING1", "Localizable");
  Release(bundle_);
  bundle_ = AtPath((folder_ / "B.framework").c_str());
  EXPECT_STREQ(text, "English one");
  EXPECT_EQ(
      ztk::platform::bundle::LocalizedText(bundle_, "WARNING1", "Localizable"),
      text);
}

}  // namespace
