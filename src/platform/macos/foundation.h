// SPDX-License-Identifier: MIT
//
// Converts the texts of the library to NSString. Both types are the same
// object; outside of these sources a text is always a CFStringRef, because
// otherwise the mangled names of functions would differ between .cpp and .mm
// files.
//
// References are counted manually in this folder: a made object has one retain
// and is given back with release. Other returned objects belong to the
// autorelease pool of the caller, so a function here must not have a pool
// around them.
#ifndef ZTK_PLATFORM_MACOS_FOUNDATION_H_
#define ZTK_PLATFORM_MACOS_FOUNDATION_H_

#import <Foundation/Foundation.h>

#include "ZTKFunc.h"

#if __has_feature(objc_arc)
#error "These sources count references by hand: build them with -fno-objc-arc."
#endif

// Tells the static analyser that the caller owns the result.
#ifndef CF_RETURNS_RETAINED
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#endif

namespace ztk::platform::macos {

inline NSString *StringOf(ZTKTextRef text) { return (NSString *)text; }

inline ZTKTextRef TextOf(NSString *string) { return (ZTKTextRef)string; }

}  // namespace ztk::platform::macos

#endif  // ZTK_PLATFORM_MACOS_FOUNDATION_H_
