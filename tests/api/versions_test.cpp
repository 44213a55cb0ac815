// SPDX-License-Identifier: MIT
#include "api/api_test.h"

namespace ztk::test {
namespace {

constexpr char kPkgFile[] =
    "/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist";
constexpr char kUtilityFile[] =
    "/Applications/Tarvix/VRM-D6/VRM-D6 Setup.app/Contents/Info.plist";
constexpr char kNewDriver[] =
    "/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist";
constexpr char kOldDriver[] =
    "/System/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist";
constexpr char kNewLibrary[] =
    "/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist";
constexpr char kOldLibrary[] =
    "/System/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist";

using VersionFunction = ZTKResult (*)(std::uint32_t productId,
                                      ZTKTextRef *outText);

class VersionTest : public ApiTest {
 protected:
  VersionTest() { InstallEverything(); }

  // Makes all files, for older and newer systems. Each file has another text
  // under each key.
  static void InstallEverything() {
    CurrentWorld().files = {{kSystemFile, {{"ProductVersion", "10.13.6"}}},
                            {kPkgFile, {{"PackageVersion", "package"}}},
                            {kUtilityFile, Info("utility")},
                            {kNewDriver, Info("new driver")},
                            {kOldDriver, Info("old driver")},
                            {kNewLibrary, Info("new library")},
                            {kOldLibrary, Info("old library")}};
  }

  static void SetSystem(const fake::Value &version) {
    CurrentWorld().files[kSystemFile] = {{"ProductVersion", version}};
  }

  static std::string ResultOf(VersionFunction function) {
    ZTKTextRef text = kUntouchedText;
    const ZTKResult result = function(10, &text);
    return std::to_string(result) + " " + Plain(text);
  }

  // Returns the files that were read since the last call of this function.
  static Steps FilesRead() {
    Steps files;
    const std::string verb = "read file ";
    for (const std::string &call : TakeCalls()) {
      if (call.rfind(verb, 0) == 0) files.push_back(call.substr(verb.size()));
    }
    return files;
  }

 private:
  static fake::Entries Info(const std::string &piece) {
    return {{"CFBundleShortVersionString", piece + " short"},
            {"CFBundleVersion", piece + " build"}};
  }
};

// System versions, and whether they are newer ones.
const struct {
  const char *version;
  bool newer;
} kSystems[] = {{"10.15.7", true},
                {"10.11", true},
                {"10.11.6", true},
                {"10.100", true},
                {"10.10", false},
                {"10.10.5", false},
                {"10.9.5", false},
                {"10.9", false},
                // Only the second number counts.
                {"11.2", false},
                {"11.10.9", false},
                {"12.11", true},
                {"9.11", true},
                // Nothing to compare.
                {"11", false},
                {"", false},
                {"10.", false},
                {".", false},
                {"10..11", false},
                {"ten", false}};

class GetPkgVersionText : public VersionTest {};

TEST_F(GetPkgVersionText, ReadsTheReceiptAndNothingElse) {
  EXPECT_EQ(ResultOf(ZTK_GetPkgVersionText), "100 package");
  EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kPkgFile,
                                       "release dictionary"));
}

TEST_F(GetPkgVersionText, RejectsAMissingReceiptAndAMissingKey) {
  CurrentWorld().files[kPkgFile] = {{"CFBundleVersion", "1"}};
  EXPECT_EQ(ResultOf(ZTK_GetPkgVersionText), "102 untouched");
  CurrentWorld().files.erase(kPkgFile);
  EXPECT_EQ(ResultOf(ZTK_GetPkgVersionText), "102 untouched");
  EXPECT_EQ(CurrentWorld().held, Held{});
}

class GetUtilityVersionText : public VersionTest {};

TEST_F(GetUtilityVersionText, ReadsTheBuildVersionAndNothingElse) {
  EXPECT_EQ(ResultOf(ZTK_GetUtilityVersionText), "100 utility build");
  EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kUtilityFile,
                                       "release dictionary"));
}

TEST_F(GetUtilityVersionText, RejectsAMissingFileAndAMissingBuildVersion) {
  CurrentWorld().files[kUtilityFile] = {{"CFBundleShortVersionString", "1"}};
  EXPECT_EQ(ResultOf(ZTK_GetUtilityVersionText), "102 untouched");
  CurrentWorld().files.erase(kUtilityFile);
  EXPECT_EQ(ResultOf(ZTK_GetUtilityVersionText), "102 untouched");
}

class GetDriverVersionText : public VersionTest {};

TEST_F(GetDriverVersionText, ReturnsTheShortVersionAndNotTheBuildVersion) {
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "100 new driver short");
  CurrentWorld().files[kNewDriver] = {{"CFBundleVersion", "1"}};
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "102 untouched");
}

TEST_F(GetDriverVersionText, TheSecondNumberOfTheSystemVersionSelectsTheFile) {
  for (const auto &row : kSystems) {
    SCOPED_TRACE(row.version);
    SetSystem(row.version);
    EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText),
              row.newer ? "100 new driver short" : "100 old driver short");
    EXPECT_THAT(FilesRead(),
                ElementsAre(kSystemFile, row.newer ? kNewDriver : kOldDriver));
  }
}

TEST_F(GetDriverVersionText, ReadsTheOlderFileIfTheSystemVersionIsUnknown) {
  SetSystem(1011);
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "100 old driver short");
  SetSystem(std::monostate{});
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "100 old driver short");
  CurrentWorld().files[kSystemFile] = {{"ProductBuildVersion", "10.15"}};
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "100 old driver short");
  CurrentWorld().files.erase(kSystemFile);
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "100 old driver short");
  EXPECT_THAT(FilesRead(),
              ElementsAre(kSystemFile, kOldDriver, kSystemFile, kOldDriver,
                          kSystemFile, kOldDriver, kSystemFile, kOldDriver));
}

TEST_F(GetDriverVersionText, DoesNotTryTheOtherFile) {
  SetSystem("10.10");
  CurrentWorld().files.erase(kOldDriver);
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "102 untouched");
  EXPECT_THAT(FilesRead(), ElementsAre(kSystemFile, kOldDriver));

  InstallEverything();
  CurrentWorld().files.erase(kNewDriver);
  EXPECT_EQ(ResultOf(ZTK_GetDriverVersionText), "102 untouched");
  EXPECT_THAT(FilesRead(), ElementsAre(kSystemFile, kNewDriver));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

class GetLibraryVersionText : public VersionTest {};

TEST_F(GetLibraryVersionText, ReturnsTheBuildVersion) {
  EXPECT_EQ(ResultOf(ZTK_GetLibraryVersionText), "100 new library build");
  CurrentWorld().files[kNewLibrary] = {{"CFBundleShortVersionString", "1"}};
  EXPECT_EQ(ResultOf(ZTK_GetLibraryVersionText), "102 untouched");
}

TEST_F(GetLibraryVersionText, TheSecondNumberOfTheSystemVersionSelectsTheFile) {
  for (const auto &row : kSystems) {
    SCOPED_TRACE(row.version);
    SetSystem(row.version);
    EXPECT_EQ(ResultOf(ZTK_GetLibraryVersionText),
              row.newer ? "100 new library build" : "100 old library build");
    EXPECT_THAT(FilesRead(), ElementsAre(kSystemFile, row.newer ? kNewLibrary
                                                                : kOldLibrary));
  }
}

TEST_F(GetLibraryVersionText, DoesNotTryTheOtherFile) {
  CurrentWorld().files.erase(kNewLibrary);
  EXPECT_EQ(ResultOf(ZTK_GetLibraryVersionText), "102 untouched");
  EXPECT_THAT(FilesRead(), ElementsAre(kSystemFile, kNewLibrary));

  InstallEverything();
  CurrentWorld().files.erase(kSystemFile);
  CurrentWorld().files.erase(kOldLibrary);
  EXPECT_EQ(ResultOf(ZTK_GetLibraryVersionText), "102 untouched");
  EXPECT_THAT(FilesRead(), ElementsAre(kSystemFile, kOldLibrary));
}

constexpr VersionFunction kAllFour[] = {
    ZTK_GetPkgVersionText, ZTK_GetDriverVersionText, ZTK_GetUtilityVersionText,
    ZTK_GetLibraryVersionText};

class VersionTexts : public VersionTest {
 protected:
  static void SetEveryVersion(const fake::Value &version) {
    for (auto &[path, entries] : CurrentWorld().files) {
      if (path == kSystemFile) continue;
      entries = {{"PackageVersion", version},
                 {"CFBundleShortVersionString", version},
                 {"CFBundleVersion", version}};
    }
  }
};

TEST_F(VersionTexts, AreReturnedUnchanged) {
  for (const char *version :
       {"1.0.0", "  1.0 b2 \n", "", "not a version", "\u7248 1.0", "01.00"}) {
    SCOPED_TRACE(version);
    SetEveryVersion(version);
    for (const VersionFunction function : kAllFour) {
      EXPECT_EQ(ResultOf(function), std::string("100 ") + version);
    }
  }
}

TEST_F(VersionTexts, CountAsAbsentIfTheyAreNotTexts) {
  for (const fake::Value &version :
       {fake::Value{1}, fake::Value{std::monostate{}}}) {
    SetEveryVersion(version);
    for (const VersionFunction function : kAllFour) {
      EXPECT_EQ(ResultOf(function), "102 untouched");
    }
  }
}

TEST_F(VersionTexts, AreRefusedForOtherProductsEvenIfEveryFileExists) {
  for (const VersionFunction function : kAllFour) {
    for (const std::uint32_t product : {0u, 1u, 8u, 9u, 11u, 0xFFFFFFFFu}) {
      ZTKTextRef text = kUntouchedText;
      EXPECT_EQ(function(product, &text), 102u);
      EXPECT_EQ(Plain(text), "untouched");
    }
    EXPECT_EQ(function(10, nullptr), 102u);
    EXPECT_EQ(function(8, nullptr), 102u);
  }
}

TEST_F(VersionTexts, NeedNoMixerAndAllObjectsAreReleased) {
  CurrentWorld().bus = {Mixer()};
  for (const VersionFunction function : kAllFour) {
    EXPECT_EQ(ResultOf(function).substr(0, 3), "100");
  }
  EXPECT_THAT(TakeSteps(), IsEmpty());
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(VersionTexts, AreValidAfterTheFileIsRemoved) {
  ZTKTextRef text = nullptr;
  EXPECT_EQ(ZTK_GetPkgVersionText(10, &text), 100u);
  CurrentWorld().files.clear();
  EXPECT_EQ(Plain(text), "package");
}

}  // namespace
}  // namespace ztk::test
