// SPDX-License-Identifier: MIT
//
// Tests the complete library with files at absolute paths. The files exist only
// in a mount namespace of the test.
#include "ZTKFunc.h"
#include "build_config.h"
#include "support/library_world.h"

namespace ztk::test {
namespace {

using virtual_mixer::MixerModel;

constexpr char kSystem[] = "/System/Library/CoreServices/SystemVersion.plist";
constexpr char kReceipt[] =
    "/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist";
constexpr char kNewDriver[] =
    "/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist";
constexpr char kOldDriver[] =
    "/System/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist";
constexpr char kUtility[] =
    "/Applications/Tarvix/VRM-D6/VRM-D6 Setup.app/Contents/Info.plist";
constexpr char kNewLibrary[] =
    "/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist";
constexpr char kOldLibrary[] =
    "/System/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist";

std::string Dictionary(
    const std::vector<std::pair<std::string, std::string>> &texts) {
  std::string list = "<plist version=\"1.0\"><dict>";
  for (const auto &[key, text] : texts) {
    list += "<key>" + key + "</key><string>" + text + "</string>";
  }
  return list + "</dict></plist>";
}

std::string System(const std::string &version) {
  return Dictionary({{"ProductVersion", version}});
}

// All files that an installer creates, each with a different version.
RootFiles Installed(const std::string &systemVersion) {
  return {
      {kSystem, System(systemVersion)},
      {kReceipt, Dictionary({{"PackageVersion", "1.1"}})},
      {kNewDriver, Dictionary({{"CFBundleShortVersionString", "2.new"},
                               {"CFBundleVersion", "wrong"}})},
      {kOldDriver, Dictionary({{"CFBundleShortVersionString", "2.old"},
                               {"CFBundleVersion", "wrong"}})},
      {kUtility, Dictionary({{"CFBundleShortVersionString", "wrong"},
                             {"CFBundleVersion", "3.3"}})},
      {kNewLibrary, Dictionary({{"CFBundleShortVersionString", "wrong"},
                                {"CFBundleVersion", "4.new"}})},
      {kOldLibrary, Dictionary({{"CFBundleShortVersionString", "wrong"},
                                {"CFBundleVersion", "4.old"}})},
  };
}

class LibraryFiles : public LibraryWorld {
 protected:
  // Runs the child with these files and stores its output. Skips the test if
  // the system does not allow a temporary root.
  void Run(const RootFiles &files, const std::vector<std::string> &arguments) {
    output_ = RunChildInTemporaryRoot(files, arguments);
    if (output_.starts_with("skip: ")) GTEST_SKIP() << output_;
  }

  std::string output_;
};

TEST_F(LibraryFiles, TheSystemVersionDecidesWhichFilesHaveTheVersions) {
  const struct {
    const char *system;
    const char *expected;
  } rows[] = {
      {"10.15.7", "new"}, {"10.11.6", "new"}, {"10.10.5", "old"},
      {"10.10", "old"},   {"10.9.5", "old"},  {"11.2", "old"},
      {"11", "old"},      {"", "old"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.system);
    Run(Installed(row.system), {"versions", "10"});
    if (IsSkipped()) return;
    const std::string place = row.expected;
    EXPECT_EQ(output_, "pkg 100 1.1\ndriver 100 2." + place +
                           "\nutility 100 3.3\nlibrary 100 4." + place + "\n");
  }
}

TEST_F(LibraryFiles, OtherProductsHaveNoVersionsEvenIfAllFilesExist) {
  for (const char *product : {"8", "11"}) {
    Run(Installed("10.15.7"), {"versions", product});
    if (IsSkipped()) return;
    EXPECT_EQ(output_,
              "pkg 102 untouched\ndriver 102 untouched\n"
              "utility 102 untouched\nlibrary 102 untouched\n");
  }
}

TEST_F(LibraryFiles, NoOtherFileIsTriedIfAFileOrKeyIsMissing) {
  RootFiles files = Installed("10.10.5");
  files.erase(kOldDriver);
  files.erase(kOldLibrary);
  files.erase(kUtility);
  files[kReceipt] = Dictionary({{"PackageFileName", "x.pkg"}});
  Run(files, {"versions", "10"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_,
            "pkg 102 untouched\ndriver 102 untouched\n"
            "utility 102 untouched\nlibrary 102 untouched\n");
}

TEST_F(LibraryFiles, WithoutASystemVersionTheOlderFilesAreRead) {
  RootFiles files = Installed("10.15.7");
  files.erase(kSystem);
  Run(files, {"versions", "10"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_,
            "pkg 100 1.1\ndriver 100 2.old\nutility 100 3.3\n"
            "library 100 4.old\n");
}

TEST_F(LibraryFiles, AVersionThatIsNotATextIsRefused) {
  RootFiles files = Installed("10.15.7");
  files[kReceipt] =
      "<plist version=\"1.0\"><dict><key>PackageVersion</key>"
      "<integer>7</integer></dict></plist>";
  Run(files, {"versions", "10"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_.substr(0, 18), "pkg 102 untouched\n");
}

// Adds a bundle with an English and a Japanese table.
void AddBundle(RootFiles *files, const std::string &place,
               const std::string &mark) {
  const std::string resources =
      place + "/VRM-D6Setup.framework/Versions/A/Resources/";
  (*files)[resources + "English.lproj/Localizable.strings"] =
      Dictionary({{"WARNING1", "English 1 " + mark},
                  {"WARNING2", "English 2 " + mark},
                  {"WARNING3", "English 3 " + mark}});
  (*files)[resources + "Japanese.lproj/Localizable.strings"] = Dictionary(
      {{"WARNING1", "Japanese 1 " + mark}, {"WARNING2", "Japanese 2 " + mark}});
}

RootFiles Bundles(const std::string &systemVersion) {
  RootFiles files = {{kSystem, System(systemVersion)}};
  AddBundle(&files, "/Library/Frameworks", "new");
  AddBundle(&files, "/System/Library/Frameworks", "old");
  return files;
}

TEST_F(LibraryFiles, TheSystemVersionDecidesWhichBundleHasTheWarning) {
  PlugMixers(1);
  const struct {
    const char *system;
    const char *expected;
  } rows[] = {{"10.11.6", "warning 100 Japanese 2 new\n"},
              {"10.10.5", "warning 100 Japanese 2 old\n"},
              {"10.9", "warning 100 Japanese 2 old\n"},
              {"11.2", "warning 100 Japanese 2 old\n"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.system);
    Run(Bundles(row.system), {"warning", "0", "101", "1"});
    if (IsSkipped()) return;
    EXPECT_EQ(output_, row.expected);
  }
}

TEST_F(LibraryFiles, ThePortStateDecidesWhichSentenceIsReturned) {
  PlugMixers(1);
  const struct {
    virtual_mixer::Bytes reply;
    const char *expected;
  } rows[] = {{{1, 0}, "warning 100 English 3 new\n"},
              {{1, 1}, "warning 100 English 2 new\n"},
              {{0, 1}, "warning 100 English 2 new\n"}};
  for (const auto &row : rows) {
    world().WithMixer(
        1, [&row](MixerModel &mixer) { mixer.SetReply(0x8006, row.reply); });
    Run(Bundles("10.15"), {"warning", "3", "101", "0"});
    if (IsSkipped()) return;
    EXPECT_EQ(output_, row.expected);
  }
}

TEST_F(LibraryFiles, TheTextIsNullIfTheLanguageDoesNotContainTheSentence) {
  PlugMixers(1);
  world().WithMixer(1, [](MixerModel &mixer) {
    mixer.SetReply(0x8006, {1, 0});
  });
  Run(Bundles("10.15"), {"warning", "0", "101", "1"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 (null)\n");
  Run(Bundles("10.15"), {"warning", "0", "101", "11"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 (null)\n");
}

TEST_F(LibraryFiles, WithoutAMixerTheUsersLanguageIsUsed) {
  PlugMixers(0);
  setenv("LANGUAGE", "", 1);
  setenv("LC_ALL", "en_GB.UTF-8", 1);
  Run(Bundles("10.15"), {"warning", "0", "101", "1"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 English 1 new\n");
  setenv("LC_ALL", "ja_JP.UTF-8", 1);
  Run(Bundles("10.15"), {"warning", "0", "101", "0"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 Japanese 1 new\n");
  Run(Bundles("10.15"), {"warning", "0", "101", "99"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 Japanese 1 new\n");
  unsetenv("LC_ALL");
  unsetenv("LANGUAGE");
}

TEST_F(LibraryFiles, AWarningIsRefusedForOtherResultsChannelsAndLanguages) {
  PlugMixers(1);
  Run(Bundles("10.15"), {"warning", "0", "100", "0"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 102 untouched\n");
  Run(Bundles("10.15"), {"warning", "4", "101", "0"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 102 untouched\n");
  EXPECT_THAT(TakeLog(), IsEmpty());
  Run(Bundles("10.15"), {"warning", "0", "101", "12"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 102 untouched\n");
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: c0 00 0000 8006 0002 -> 00 00"));
}

TEST_F(LibraryFiles, WithoutABundleTheSentenceIsNull) {
  const std::string installed =
      std::string(build::kDataDir) + "/tarvix/VRM-D6Setup.framework";
  if (std::filesystem::exists(installed)) {
    GTEST_SKIP() << installed << " is installed on this machine";
  }
  PlugMixers(1);
  Run({{kSystem, System("10.15")}}, {"warning", "0", "101", "0"});
  if (IsSkipped()) return;
  EXPECT_EQ(output_, "warning 100 (null)\n");
}

}  // namespace
}  // namespace ztk::test
