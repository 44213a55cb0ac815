// SPDX-License-Identifier: MIT
//
// Tests the versions of the installed components, and from which files they are
// read.
#include "foundation_test.h"
#include "support/temp_home.h"

namespace ztk::test {
namespace {

constexpr char kSystem[] = "/System/Library/CoreServices/SystemVersion.plist";

std::string Text(const std::string &key, const std::string &value) {
  return "<key>" + key + "</key><string>" + value + "</string>";
}

class MacVersions : public TemporaryRootTest {
 protected:
  static void PutSystem(const std::string &version) {
    WriteAll(kSystem, PropertyList(Text("ProductVersion", version)));
  }
  // Makes the driver and the library in both folders. The version of each file
  // is the folder.
  static void PutEverywhere() {
    for (const std::string place : {"/Library", "/System/Library"}) {
      WriteAll(place + "/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist",
               PropertyList(
                   Text("CFBundleShortVersionString", "driver of " + place) +
                   Text("CFBundleVersion", "wrong")));
      WriteAll(place + "/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
                       "Info.plist",
               PropertyList(Text("CFBundleVersion", "library of " + place) +
                            Text("CFBundleShortVersionString", "wrong")));
    }
  }
  using Getter = ZTKResult (*)(std::uint32_t, ZTKTextRef *);
  static std::string Version(Getter getter, std::uint32_t product = 10) {
    ZTKTextRef text = ZTK_TEXT("untouched");
    const ZTKResult result = getter(product, &text);
    return std::to_string(result) + " " + StringOf(text);
  }
};

TEST_F(MacVersions, AreReadFromTheFolderForTheSystemVersion) {
  PutEverywhere();
  const struct {
    const char *system;
    const char *place;
  } rows[] = {
      {"10.15.7", "/Library"},        {"10.11.6", "/Library"},
      {"10.11", "/Library"},          {"12.100", "/Library"},
      {"10.10.5", "/System/Library"}, {"10.10", "/System/Library"},
      {"10.9.5", "/System/Library"},  {"11.2", "/System/Library"},
      {"12", "/System/Library"},      {"", "/System/Library"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.system);
    PutSystem(row.system);
    const std::string place = row.place;
    EXPECT_EQ(Version(ZTK_GetDriverVersionText), "100 driver of " + place);
    EXPECT_EQ(Version(ZTK_GetLibraryVersionText), "100 library of " + place);
  }
}

TEST_F(MacVersions, AreReadFromTheOlderFolderOnAnUnknownSystem) {
  PutEverywhere();
  EXPECT_EQ(Version(ZTK_GetDriverVersionText), "100 driver of /System/Library");
  WriteAll(kSystem,
           PropertyList("<key>ProductVersion</key><real>10.15</real>"));
  EXPECT_EQ(Version(ZTK_GetDriverVersionText), "100 driver of /System/Library");
}

TEST_F(MacVersions, AreNotReadFromTheOtherFolder) {
  PutSystem("10.9.5");
  WriteAll("/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist",
           PropertyList(Text("CFBundleShortVersionString", "1")));
  EXPECT_EQ(Version(ZTK_GetDriverVersionText), "102 untouched");
}

TEST_F(MacVersions, OfPackageAndUtilityHaveOneFile) {
  const std::string receipt =
      "/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist";
  EXPECT_EQ(Version(ZTK_GetPkgVersionText), "102 untouched");
  WriteAll(receipt, PropertyList(Text("Other", "1")));
  EXPECT_EQ(Version(ZTK_GetPkgVersionText), "102 untouched");
  WriteAll(receipt, PropertyList(Text("PackageVersion", " 1.2.3 ")));
  EXPECT_EQ(Version(ZTK_GetPkgVersionText), "100  1.2.3 ");

  WriteAll("/Applications/Tarvix/VRM-D6/VRM-D6 Setup.app/Contents/Info.plist",
           PropertyList(Text("CFBundleVersion", "4.5") +
                        Text("CFBundleShortVersionString", "wrong")));
  EXPECT_EQ(Version(ZTK_GetUtilityVersionText), "100 4.5");
  EXPECT_EQ(Version(ZTK_GetUtilityVersionText, 8), "102 untouched");
  EXPECT_EQ(Version(ZTK_GetUtilityVersionText, 11), "102 untouched");
  EXPECT_EQ(ZTK_GetUtilityVersionText(10, nullptr), 102u);
}

}  // namespace
}  // namespace ztk::test
