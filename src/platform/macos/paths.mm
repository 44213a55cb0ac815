// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include "platform/macos/foundation.h"

namespace ztk::platform::paths {

CF_RETURNS_RETAINED ZTKTextRef UserLibrary() {
  @autoreleasepool {
    NSArray *folders = NSSearchPathForDirectoriesInDomains(
        NSLibraryDirectory, NSUserDomainMask, YES);
    if ([folders count] == 0) return nullptr;
    return macos::TextOf([[folders objectAtIndex:0] retain]);
  }
}

}  // namespace ztk::platform::paths
