// SPDX-License-Identifier: MIT
//
// Converts between ZTKTextRef and NSString, which are two types for the same
// object. Outside of this folder a text is always a CFStringRef: with another
// type in .mm files, the mangled names of functions would differ from those in
// .cpp files.
//
// References are counted manually in this folder. If a function makes an
// object, the caller owns one reference and releases it. Other returned objects
// belong to the autorelease pool of the caller, so the function that returns
// them must not use a pool of its own for them.
#ifndef ZTK_PLATFORM_MACOS_FOUNDATION_H_
#define ZTK_PLATFORM_MACOS_FOUNDATION_H_

#import <Foundation/Foundation.h>

#include "ZTKFunc.h"

#if __has_feature(objc_arc)
#error "These sources count references by hand: build them with -fno-objc-arc."
#endif

// For the static analyser: the caller owns the result.
#ifndef CF_RETURNS_RETAINED
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#endif

namespace ztk::platform::macos {

inline NSString *StringOf(ZTKTextRef text) { return (NSString *)text; }

inline ZTKTextRef TextOf(NSString *string) { return (ZTKTextRef)string; }

}  // namespace ztk::platform::macos

#endif  // ZTK_PLATFORM_MACOS_FOUNDATION_H_
