// SPDX-License-Identifier: MIT
#include "store/settings_path.h"

#include "platform/paths.h"
#include "platform/text.h"

namespace ztk::store {

namespace {

// There is no separator between the model and "autosetup". The name is fixed.
const ZTKTextRef kPathFormat =
    ZTK_TEXT("%@/Preferences/com.tarvix.%@autosetup.plist");

}  // namespace

ZTKTextRef MakePath(ZTKTextRef model) {
  const platform::text::OwnedText library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return nullptr;
  return platform::text::Format(kPathFormat, library.get(), model);
}

}  // namespace ztk::store
