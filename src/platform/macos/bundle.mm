// SPDX-License-Identifier: MIT
//
// A Bundle is an NSBundle.
#include "platform/bundle.h"

#include "platform/macos/foundation.h"

namespace ztk::platform::bundle {
namespace {

using macos::StringOf;
using macos::TextOf;

NSBundle *BundleOf(const Bundle *bundle) { return (NSBundle *)bundle; }

}  // namespace

// The bundle has two references: one of the caller, until Release(), and one of
// the autorelease pool, so that its texts stay valid until the pool is drained.
Bundle *AtPath(ZTKTextRef path) {
  if (path == nullptr) return nullptr;
  return (Bundle *)[[NSBundle bundleWithPath:StringOf(path)] retain];
}

CF_RETURNS_RETAINED ZTKTextRef ResourcePath(const Bundle *bundle) {
  return TextOf([[BundleOf(bundle) resourcePath] retain]);
}

ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table) {
  if (key == nullptr) return nullptr;
  return TextOf([BundleOf(bundle) localizedStringForKey:StringOf(key)
                                                  value:@""
                                                  table:StringOf(table)]);
}

void Release(Bundle *bundle) { [BundleOf(bundle) release]; }

}  // namespace ztk::platform::bundle
