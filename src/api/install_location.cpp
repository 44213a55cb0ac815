// SPDX-License-Identifier: MIT
#include "api/install_location.h"

#include "ZTKFunc.h"
#include "platform/property_list.h"
#include "platform/text.h"

namespace ztk {
namespace {

namespace plist = platform::property_list;

const ZTKTextRef kSystemVersionFile =
    ZTK_TEXT("/System/Library/CoreServices/SystemVersion.plist");
const ZTKTextRef kSystemVersionKey = ZTK_TEXT("ProductVersion");
constexpr unsigned kDecidingComponent = 1;
const ZTKTextRef kLastOlderSystem = ZTK_TEXT("10");

}  // namespace

bool IsInstalledInLibrary() {
  plist::Dictionary *system = plist::ReadFile(kSystemVersionFile);
  if (system == nullptr) return false;

  bool newer = false;
  const ZTKTextRef version = plist::TextValue(system, kSystemVersionKey);
  if (version != nullptr) {
    const platform::text::OwnedText component(
        platform::text::DotComponent(version, kDecidingComponent));
    newer = component.get() != nullptr &&
            platform::text::CompareNumerically(component.get(),
                                               kLastOlderSystem) > 0;
  }
  plist::Release(system);
  return newer;
}

}  // namespace ztk
