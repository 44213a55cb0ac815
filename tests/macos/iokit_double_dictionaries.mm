// SPDX-License-Identifier: MIT
//
// The dictionaries of the test double for programs with a real CoreFoundation.
// They are dictionaries of Foundation, whose references are not counted here.
#import <Foundation/Foundation.h>

#include <cstring>

#include "iokit_double_objects.h"

namespace ztk::iokit {

CFMutableDictionaryRef MakeMatching(const char *className) {
  NSMutableDictionary *made = [[NSMutableDictionary alloc] init];
  [made setObject:[NSString stringWithUTF8String:className] forKey:@"class"];
  return (CFMutableDictionaryRef)made;
}

std::optional<Matching> ConsumeMatching(CFDictionaryRef dictionary) {
  NSDictionary *object = (NSDictionary *)dictionary;
  const auto number = [object](NSString *key) -> std::optional<std::int32_t> {
    NSNumber *found = [object objectForKey:key];
    if (found == nil) return std::nullopt;
    return [found intValue];
  };
  Matching matching{.className = [[object objectForKey:@"class"] UTF8String],
                    .vendor = number(@"idVendor"),
                    .product = number(@"idProduct")};
  [object release];
  return matching;
}

void ForgetObjects() {}

bool SameUuid(const CFUUIDBytes &first, const CFUUIDBytes &second) {
  return std::memcmp(&first, &second, sizeof first) == 0;
}

}  // namespace ztk::iokit
