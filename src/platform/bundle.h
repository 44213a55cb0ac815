// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_BUNDLE_H_
#define ZTK_PLATFORM_BUNDLE_H_

#include "ZTKFunc.h"

namespace ztk::platform::bundle {

struct Bundle;

// Returns the bundle at a path, or null. On a system without a fixed folder for
// bundles, the port may search its data directories when there is no bundle at
// the path. The caller releases the bundle with Release().
Bundle *AtPath(ZTKTextRef path);

// Makes the path of the folder that contains the <language>.lproj folders. The
// caller releases the path with text::Release(). Returns null for a null
// bundle.
ZTKTextRef ResourcePath(const Bundle *bundle);

// Returns the text of a key in a string table. Among the languages that have
// the table, the one that the user prefers is used. Returns the key itself if
// no language has the table or if that table does not contain the key; returns
// null for a null bundle. The caller does not own the text: ZTKTextRef in the
// public header says how long it is valid.
ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table);

// Null is allowed.
void Release(Bundle *bundle);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_BUNDLE_H_
