// SPDX-License-Identifier: MIT
//
// The part of CoreFoundation's interface that the library uses. With it the
// macOS port can be built on a system without CoreFoundation. The names, types
// and values are those of macOS. The test double (../../iokit_double.h) defines
// the functions.
#ifndef ZTK_TESTS_MACOS_COREFOUNDATION_H_
#define ZTK_TESTS_MACOS_COREFOUNDATION_H_
#pragma GCC system_header

#include <stdint.h>

typedef uint8_t UInt8;
typedef uint16_t UInt16;
typedef uint32_t UInt32;
typedef uint64_t UInt64;
typedef int32_t SInt32;
typedef unsigned char Boolean;
typedef long CFIndex;
typedef uint32_t CFStringEncoding;
typedef CFIndex CFNumberType;
#define kCFStringEncodingASCII ((CFStringEncoding)0x0600)
#define kCFNumberSInt32Type ((CFNumberType)3)

typedef const void *CFTypeRef;
typedef const struct __CFAllocator *CFAllocatorRef;
typedef const struct __CFString *CFStringRef;
typedef const struct __CFNumber *CFNumberRef;
typedef const struct __CFDictionary *CFDictionaryRef;
typedef struct __CFDictionary *CFMutableDictionaryRef;
typedef const struct __CFUUID *CFUUIDRef;
typedef struct __CFRunLoopSource *CFRunLoopSourceRef;
#define kCFAllocatorDefault ((CFAllocatorRef)0)

// A constant text is an object of Foundation. Only Objective-C can make one.
#ifdef __OBJC__
#define CFSTR(literal) ((CFStringRef) @"" literal)
#endif

typedef struct {
  UInt8 byte0, byte1, byte2, byte3, byte4, byte5, byte6, byte7;
  UInt8 byte8, byte9, byte10, byte11, byte12, byte13, byte14, byte15;
} CFUUIDBytes;

typedef SInt32 HRESULT;
typedef UInt32 ULONG;
typedef void *LPVOID;
typedef CFUUIDBytes REFIID;
#define S_OK ((HRESULT)0)
#define E_NOINTERFACE ((HRESULT)0x80000004)

#define IUNKNOWN_C_GUTS                                           \
  void *_reserved;                                                \
  HRESULT (*QueryInterface)(void *self, REFIID iid, LPVOID *ppv); \
  ULONG (*AddRef)(void *self);                                    \
  ULONG (*Release)(void *self)

#ifdef __cplusplus
extern "C" {
#endif

void CFRelease(CFTypeRef object);
CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator,
                                      const char *text,
                                      CFStringEncoding encoding);
CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType type,
                           const void *value);
void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void *key,
                          const void *value);
CFUUIDRef CFUUIDGetConstantUUIDWithBytes(CFAllocatorRef allocator, UInt8 byte0,
                                         UInt8 byte1, UInt8 byte2, UInt8 byte3,
                                         UInt8 byte4, UInt8 byte5, UInt8 byte6,
                                         UInt8 byte7, UInt8 byte8, UInt8 byte9,
                                         UInt8 byte10, UInt8 byte11,
                                         UInt8 byte12, UInt8 byte13,
                                         UInt8 byte14, UInt8 byte15);
CFUUIDBytes CFUUIDGetUUIDBytes(CFUUIDRef uuid);

#ifdef __cplusplus
}
#endif

#endif  // ZTK_TESTS_MACOS_COREFOUNDATION_H_
