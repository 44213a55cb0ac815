// SPDX-License-Identifier: MIT
#include "store/settings_path.h"

#include "platform/paths.h"
#include "platform/text.h"

namespace ztk::store {

namespace {

// Fixed: no separator stands between the model and "autosetup".
const ZTKTextRef kPathFormat =
    ZTK_TEXT("%@/Preferences/com.tarvix.%@autosetup.plist");

}  // namespace

ZTKTextRef MakePath(ZTKTextRef model) {
  const platform::text::OwnedText library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return nullptr;
  return platform::text::Format(kPathFormat, library.get(), model);
}

}  // namespace ztk::store
