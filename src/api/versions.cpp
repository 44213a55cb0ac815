// SPDX-License-Identifier: MIT
#include <cstdint>

#include "ZTKFunc.h"
#include "api/install_location.h"
#include "api/product_set.h"
#include "outcome/outcome.h"
#include "platform/property_list.h"
#include "store/file_outcome.h"

using namespace ztk;

namespace {

namespace plist = platform::property_list;

constexpr ProductSet kServed{10};

const ZTKTextRef kPkgFile =
    ZTK_TEXT("/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist");
const ZTKTextRef kUtilityFile = ZTK_TEXT(
    "/Applications/Tarvix/VRM-D6/VRM-D6 Setup.app/Contents/Info.plist");
const ZTKTextRef kNewDriverFile =
    ZTK_TEXT("/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist");
const ZTKTextRef kOldDriverFile = ZTK_TEXT(
    "/System/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist");
const ZTKTextRef kNewLibraryFile = ZTK_TEXT(
    "/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist");
const ZTKTextRef kOldLibraryFile = ZTK_TEXT(
    "/System/Library/Frameworks/VRM-D6Setup.framework/Versions/A/Resources/"
    "Info.plist");

const ZTKTextRef kPkgKey = ZTK_TEXT("PackageVersion");
// Deliberate: the version of the driver is its short version. The version of
// the utility and of the library is the build version.
const ZTKTextRef kDriverKey = ZTK_TEXT("CFBundleShortVersionString");
const ZTKTextRef kBundleKey = ZTK_TEXT("CFBundleVersion");

ZTKResult ReadVersion(ZTKTextRef file, ZTKTextRef key, ZTKTextRef *outText) {
  plist::Dictionary *info = nullptr;
  store::RecordReading(plist::Read(file, &info));
  if (info == nullptr) return ZTK_REJECTED;
  const ZTKTextRef version = plist::TextValue(info, key);
  plist::Release(info);
  if (version == nullptr) return ZTK_REJECTED;

  *outText = version;
  return ZTK_SUCCESS;
}

}  // namespace

ZTKResult ZTK_GetPkgVersionText(uint32_t productId, ZTKTextRef *outText) {
  outcome::Begin();
  if (outText == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  return ReadVersion(kPkgFile, kPkgKey, outText);
}

ZTKResult ZTK_GetDriverVersionText(uint32_t productId, ZTKTextRef *outText) {
  outcome::Begin();
  if (outText == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  return ReadVersion(IsInstalledInLibrary() ? kNewDriverFile : kOldDriverFile,
                     kDriverKey, outText);
}

ZTKResult ZTK_GetUtilityVersionText(uint32_t productId, ZTKTextRef *outText) {
  outcome::Begin();
  if (outText == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  return ReadVersion(kUtilityFile, kBundleKey, outText);
}

ZTKResult ZTK_GetLibraryVersionText(uint32_t productId, ZTKTextRef *outText) {
  outcome::Begin();
  if (outText == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  return ReadVersion(IsInstalledInLibrary() ? kNewLibraryFile : kOldLibraryFile,
                     kBundleKey, outText);
}
