// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_BUNDLE_H_
#define ZTK_PLATFORM_BUNDLE_H_

#include "ZTKFunc.h"

namespace ztk::platform::bundle {

struct Bundle;

// The bundle at a path, or null. Where bundles have no fixed place on the
// system, a port may look for the same bundle under its own data directories
// when nothing stands at the path. Goes back through Release().
Bundle *AtPath(ZTKTextRef path);

// Makes the path of the folder that holds the <language>.lproj folders; the
// caller gives it back with text::Release(). Null for a null bundle.
ZTKTextRef ResourcePath(const Bundle *bundle);

// The text of a key in a string table, in the language that the user prefers of
// those that have the table. A key that this table lacks, or a missing table,
// answers the key itself; a null bundle answers null. Not owned by the
// caller: see ZTKTextRef in the public header for how long it lives.
ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table);

// Null is allowed.
void Release(Bundle *bundle);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_BUNDLE_H_
