// SPDX-License-Identifier: MIT
//
// Tests the bundle of texts with the function that returns a warning text.
// GNUstep's localised look-up reads only tables in the old style, so the user's
// language has such a table. The tables that are read by path are the property
// lists of the product.
#include "platform/bundle.h"

#include <filesystem>

#include "foundation_test.h"
#include "support/temp_home.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

constexpr char kNew[] = "/Library/Frameworks/VRM-D6Setup.framework";
constexpr char kOld[] = "/System/Library/Frameworks/VRM-D6Setup.framework";

class MacBundle : public TemporaryRootTest {
 protected:
  void SetUp() override {
    TemporaryRootTest::SetUp();
    if (IsSkipped()) return;
    WriteAll("/System/Library/CoreServices/SystemVersion.plist",
             PropertyList("<key>ProductVersion</key><string>10.13.6</string>"));
  }

  // Makes a bundle with the links that every framework has.
  static void PutTable(const std::string &bundle, const std::string &language,
                       const std::string &table) {
    WriteAll(bundle + "/Versions/A/Resources/" + language +
                 ".lproj/Localizable.strings",
             table);
    PutLinks(bundle);
  }
  static void PutLinks(const std::string &bundle) {
    std::error_code isThere;
    fs::create_symlink("A", bundle + "/Versions/Current", isThere);
    fs::create_symlink("Versions/Current/Resources", bundle + "/Resources",
                       isThere);
  }
  static void PutTables(const std::string &bundle, const std::string &word) {
    PutTable(bundle, "English",
             "\"WARNING1\" = \"" + word + " English 1\";\n\"WARNING2\" = \"" +
                 word + " English 2\";\n\"WARNING3\" = \"" + word +
                 " English 3\";\n");
    PutTable(bundle, "Dutch",
             PropertyList("<key>WARNING2</key><string>" + word +
                          " Dutch 2</string><key>WARNING3</key><string>" +
                          word + " Dutch 3</string>"));
  }

  static void Attach(std::vector<std::uint8_t> portInfo) {
    iokit::Device mixer = iokit::Mixer();
    mixer.replies[0x8006] = {.bytes = std::move(portInfo)};
    CurrentWorld().bus = {mixer};
  }

  static std::string Warning(std::uint32_t language) {
    ZTKTextRef text = ZTK_TEXT("untouched");
    const ZTKResult result =
        ZTK_GetWarningTextForSetUSBAudioInput(10, 1, 101, language, &text);
    return std::to_string(result) + " " + StringOf(text);
  }
};

TEST_F(MacBundle, ReturnsTheTextsOfALanguage) {
  PutTables(kNew, "new");
  Attach({0, 0});
  EXPECT_EQ(Warning(5), "100 new Dutch 2");
  Attach({1, 0});
  EXPECT_EQ(Warning(5), "100 new Dutch 3");
  Attach({1, 1});
  EXPECT_EQ(Warning(5), "100 new Dutch 2");
  Attach({0, 1});
  EXPECT_EQ(Warning(5), "100 new Dutch 2");
}

TEST_F(MacBundle, ReturnsTheTextsOfTheUsersLanguage) {
  PutTables(kNew, "new");
  EXPECT_EQ(Warning(99), "100 new English 1");
  Attach({0, 0});
  EXPECT_EQ(Warning(99), "100 new English 2");
  Attach({1, 0});
  EXPECT_EQ(Warning(99), "100 new English 3");
}

// Deliberate: without a mixer the language argument is ignored.
TEST_F(MacBundle, ReturnsTheTextOfTheUsersLanguageWithoutAMixer) {
  PutTables(kNew, "new");
  EXPECT_EQ(Warning(5), "100 new English 1");
}

TEST_F(MacBundle, IsInTheFolderForTheSystemVersion) {
  PutTables(kNew, "new");
  PutTables(kOld, "old");
  Attach({0, 0});
  EXPECT_EQ(Warning(5), "100 new Dutch 2");
  WriteAll("/System/Library/CoreServices/SystemVersion.plist",
           PropertyList("<key>ProductVersion</key><string>11.2</string>"));
  EXPECT_EQ(Warning(5), "100 old Dutch 2");
}

// This test runs in a separate process, because GNUstep does not search a path
// again where it has not found a bundle.
TEST_F(MacBundle, ReturnsNullIfItIsMissing) {
  Client client({"warn", "99", "5"});
  EXPECT_EQ(client.ReadLine(), "100 (null)");
  EXPECT_EQ(client.ReadLine(), "100 (null)");
  EXPECT_EQ(client.ReadLine(), "warned");
}

TEST_F(MacBundle, ReturnsNullIfTheTableIsMissing) {
  PutTables(kNew, "new");
  Attach({0, 0});
  EXPECT_EQ(Warning(7), "100 (null)");
  PutTable(kNew, "ru", "not a property list <");
  EXPECT_EQ(Warning(7), "100 (null)");
}

TEST_F(MacBundle, ReturnsTheKeyIfTheUsersLanguageDoesNotContainIt) {
  PutTable(kNew, "English", "\"OTHER\" = \"other\";\n");
  EXPECT_EQ(Warning(99), "100 WARNING1");
}

// Tests the tables of the product. Only the table in ASCII can be compared.
TEST_F(MacBundle, HasATableForEveryLanguage) {
  const std::string version = std::string(kNew) + "/Versions/A";
  fs::create_directories(version);
  fs::copy(ZTK_RESOURCES, version + "/Resources", fs::copy_options::recursive);
  PutLinks(kNew);
  Attach({0, 0});
  EXPECT_EQ(Warning(5),
            "100 De ingangskeuzeschakelaar van dit kanaal staat niet in de "
            "stand die voor deze instelling vereist is. Zet de "
            "ingangskeuzeschakelaar van de mixer in de juiste stand.");
  for (std::uint32_t language = 0; language < 12; ++language) {
    SCOPED_TRACE(language);
    EXPECT_EQ(Warning(language).substr(0, 4), "100 ");
    EXPECT_NE(Warning(language), "100 (null)");
  }
  EXPECT_EQ(Warning(12), "102 untouched");
}

TEST_F(MacBundle, IsReleased) {
  PutTables(kNew, "new");
  namespace bundle = platform::bundle;
  bundle::Bundle *found = bundle::AtPath(TextOf(kNew));
  ASSERT_NE(found, nullptr);
  const NSUInteger held = [(NSBundle *)found retainCount];
  [(NSBundle *)found retain];
  bundle::Release(found);
  EXPECT_EQ([(NSBundle *)found retainCount], held);
  [(NSBundle *)found release];
  bundle::Release(nullptr);
  EXPECT_EQ(bundle::AtPath(nullptr), nullptr);
  EXPECT_EQ(bundle::ResourcePath(nullptr), nullptr);
  EXPECT_EQ(bundle::LocalizedText(nullptr, ZTK_TEXT("a"), ZTK_TEXT("b")),
            nullptr);
}

}  // namespace
}  // namespace ztk::test
