// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_PATHS_H_
#define ZTK_PLATFORM_PATHS_H_

#include "ZTKFunc.h"

namespace ztk::platform::paths {

// Makes the path of the user's Library directory, the one that holds
// Preferences; the caller gives it back with text::Release(). Null when the
// user has none. Creates nothing.
ZTKTextRef UserLibrary();

}  // namespace ztk::platform::paths

#endif  // ZTK_PLATFORM_PATHS_H_
