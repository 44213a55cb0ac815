// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include "fake/world.h"
#include "platform/text.h"
#include "support/plain_text.h"

namespace ztk::platform::paths {

ZTKTextRef UserLibrary() {
  const fake::World &world = fake::CurrentWorld();
  if (!world.hasLibraryFolder) return nullptr;
  return text::Format(ZTK_TEXT("%@"), test::PermanentText(world.libraryFolder));
}

}  // namespace ztk::platform::paths
