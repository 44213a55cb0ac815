// SPDX-License-Identifier: MIT
//
// The library's texts as Foundation sees them. The two kinds are one and the
// same object; outside these sources a text is always a CFStringRef, or the
// names of functions in .cpp and .mm files would not be the same.
//
// Memory is counted by hand in this folder: a made object carries one retain
// and goes back through release. What is handed out without being made belongs
// to the caller's autorelease pool, so no pool may stand around it here.
#ifndef ZTK_PLATFORM_MACOS_FOUNDATION_H_
#define ZTK_PLATFORM_MACOS_FOUNDATION_H_

#import <Foundation/Foundation.h>

#include "ZTKFunc.h"

#if __has_feature(objc_arc)
#error "These sources count references by hand: build them with -fno-objc-arc."
#endif

// Tells the static analyser that the caller owns what is returned.
#ifndef CF_RETURNS_RETAINED
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#endif

namespace ztk::platform::macos {

inline NSString *StringOf(ZTKTextRef text) { return (NSString *)text; }

inline ZTKTextRef TextOf(NSString *string) { return (ZTKTextRef)string; }

}  // namespace ztk::platform::macos

#endif  // ZTK_PLATFORM_MACOS_FOUNDATION_H_
