// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include "fake/world.h"
#include "platform/text.h"

namespace ztk::platform::paths {

ZTKTextRef UserLibrary() {
  const fake::World &world = fake::TheWorld();
  if (!world.hasLibrary) return nullptr;
  return text::Format("%@", world.library.c_str());
}

}  // namespace ztk::platform::paths
