// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_BUNDLE_H_
#define ZTK_PLATFORM_BUNDLE_H_

#include "ZTKFunc.h"

namespace ztk::platform::bundle {

struct Bundle;

// The bundle at a path, or null. On a system without a fixed place for bundles,
// the port may look for the same bundle in its data directories when there is
// none at the path. The caller gives it back with Release().
Bundle *AtPath(ZTKTextRef path);

// Makes the path of the folder that holds the <language>.lproj folders; the
// caller gives it back with text::Release(). Null for a null bundle.
ZTKTextRef ResourcePath(const Bundle *bundle);

// The text of a key in a string table, in the language that the user prefers of
// those that have the table. When the table is missing, or does not have the
// key, the result is the key itself; for a null bundle it is null. Not owned by
// the caller: see ZTKTextRef in the public header for how long it lives.
ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table);

// Null is allowed.
void Release(Bundle *bundle);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_BUNDLE_H_
