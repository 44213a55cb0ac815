// SPDX-License-Identifier: MIT
//
// The functions of CoreFoundation, made with GNUstep's Foundation, whose
// objects they use. Also the functions of the IOKit registry and of dispatch
// that the programs use.
#import <Foundation/Foundation.h>

#include <IOKit/IOKitLib.h>
#include <signal.h>

#include <cstdlib>
#include <cstring>
#include <deque>

#include "iokit_double_objects.h"

namespace {

volatile sig_atomic_t theSignals;  // a bit for each signal that arrived
bool theLoopEnds;
// The index is the number of the signal. Index 0 is the timer.
struct {
  void (*handler)(void *);
  void *context;
} theSources[32];
double theTimerIsDue;
double theTimerPeriod;

double Now() { return [NSDate timeIntervalSinceReferenceDate]; }

void OnSignal(int number) {
  theSignals = theSignals | static_cast<int>(1U << number);
}

// Runs the handlers of the timer and of the signals. Returns true if the loop
// has to end.
bool RunSources() {
  if (theSources[0].handler != nullptr && Now() >= theTimerIsDue) {
    theTimerIsDue += theTimerPeriod;
    theSources[0].handler(theSources[0].context);
  }
  for (int number = 1; number < 32; ++number) {
    if ((static_cast<unsigned>(theSignals) & (1U << number)) == 0) continue;
    theSignals = theSignals & ~static_cast<int>(1U << number);
    if (theSources[number].handler != nullptr) {
      theSources[number].handler(theSources[number].context);
    }
  }
  return theLoopEnds;
}

void RunFor(double seconds) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  [[NSRunLoop currentRunLoop]
         runMode:NSDefaultRunLoopMode
      beforeDate:[NSDate dateWithTimeIntervalSinceNow:seconds]];
  [pool drain];
}

}  // namespace

extern "C" {

const void *darwin_kCFAllocatorDefault;
char darwin__dispatch_main_q[64];
char darwin__dispatch_source_type_signal[64];
char darwin__dispatch_source_type_timer[64];

void CFRelease(CFTypeRef object) { [(id)object release]; }

CFStringRef CFStringCreateWithCString(CFAllocatorRef /*allocator*/,
                                      const char *text,
                                      CFStringEncoding /*encoding*/) {
  return (CFStringRef)[[NSString alloc] initWithUTF8String:text];
}
CFIndex CFStringGetLength(CFStringRef text) {
  return static_cast<CFIndex>([(NSString *)text length]);
}
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
  return length * 3;
}
Boolean CFStringGetCString(CFStringRef text, char *bytes, CFIndex size,
                           CFStringEncoding) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  const char *from = [(NSString *)text UTF8String];
  const bool fits = static_cast<CFIndex>(std::strlen(from)) < size;
  if (fits) std::strcpy(bytes, from);
  [pool drain];
  return fits;
}

CFNumberRef CFNumberCreate(CFAllocatorRef /*allocator*/, CFNumberType /*type*/,
                           const void *value) {
  std::int32_t number = 0;
  std::memcpy(&number, value, sizeof number);
  return (CFNumberRef)[[NSNumber alloc] initWithInt:number];
}
bool CFNumberGetValue(CFNumberRef number, CFNumberType, void *value) {
  const std::int32_t plain = [(NSNumber *)number intValue];
  std::memcpy(value, &plain, sizeof plain);
  return true;
}
unsigned long CFNumberGetTypeID() { return 22; }
unsigned long CFGetTypeID(CFTypeRef object) {
  return [(id)object isKindOfClass:[NSNumber class]] ? CFNumberGetTypeID() : 0;
}

void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void *key,
                          const void *value) {
  [(NSMutableDictionary *)dictionary setObject:(id)value forKey:(id)key];
}

CFUUIDRef CFUUIDGetConstantUUIDWithBytes(
    CFAllocatorRef /*allocator*/, UInt8 byte0, UInt8 byte1, UInt8 byte2,
    UInt8 byte3, UInt8 byte4, UInt8 byte5, UInt8 byte6, UInt8 byte7,
    UInt8 byte8, UInt8 byte9, UInt8 byte10, UInt8 byte11, UInt8 byte12,
    UInt8 byte13, UInt8 byte14, UInt8 byte15) {
  static std::deque<CFUUIDBytes> constants;
  const CFUUIDBytes bytes{byte0,  byte1,  byte2,  byte3, byte4,  byte5,
                          byte6,  byte7,  byte8,  byte9, byte10, byte11,
                          byte12, byte13, byte14, byte15};
  // Equal identifiers are the same object.
  for (const CFUUIDBytes &known : constants) {
    if (ztk::iokit::SameUuid(known, bytes)) {
      return reinterpret_cast<CFUUIDRef>(&known);
    }
  }
  return reinterpret_cast<CFUUIDRef>(&constants.emplace_back(bytes));
}
CFUUIDBytes CFUUIDGetUUIDBytes(CFUUIDRef uuid) {
  return *reinterpret_cast<const CFUUIDBytes *>(uuid);
}

CFTypeRef IORegistryEntryCreateCFProperty(io_object_t, CFStringRef,
                                          CFAllocatorRef, std::uint32_t) {
  return (CFTypeRef)[[NSNumber alloc] initWithInt:0x14100000];
}
kern_return_t IORegistryEntryGetRegistryEntryID(io_object_t,
                                                std::uint64_t *entry) {
  *entry = 1;
  return 0;
}

void *CFRunLoopGetMain() { return &theLoopEnds; }
void CFRunLoopStop(void * /*loop*/) { theLoopEnds = true; }
void CFRunLoopRun() {
  theLoopEnds = false;
  while (!RunSources()) RunFor(0.02);
}

void *dispatch_source_create(const void *, std::uintptr_t number, unsigned long,
                             void *) {
  return &theSources[number];
}
void dispatch_source_set_event_handler_f(void *source,
                                         void (*handler)(void *)) {
  static_cast<decltype(&theSources[0])>(source)->handler = handler;
}
void dispatch_resume(void *source) {
  const auto number =
      static_cast<decltype(&theSources[0])>(source) - &theSources[0];
  if (number != 0) signal(static_cast<int>(number), OnSignal);
}
void dispatch_source_cancel(void *source) {
  *static_cast<decltype(&theSources[0])>(source) = {};
}
// The programs only use times relative to now.
std::uint64_t dispatch_time(std::uint64_t /*when*/, std::int64_t nanoseconds) {
  return static_cast<std::uint64_t>(nanoseconds);
}
void dispatch_source_set_timer(void * /*source*/, std::uint64_t start,
                               std::uint64_t interval, std::uint64_t) {
  theTimerIsDue = Now() + static_cast<double>(start) / 1e9;
  theTimerPeriod = static_cast<double>(interval) / 1e9;
}

}  // extern "C"
