// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_PATHS_H_
#define ZTK_PLATFORM_PATHS_H_

#include "ZTKFunc.h"

namespace ztk::platform::paths {

// Makes the path of the user's Library folder, which contains the folder
// Preferences. The caller releases the path with text::Release(). Returns null
// if the user has no such folder. Creates nothing.
ZTKTextRef UserLibrary();

}  // namespace ztk::platform::paths

#endif  // ZTK_PLATFORM_PATHS_H_
