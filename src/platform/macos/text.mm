// SPDX-License-Identifier: MIT
//
// The functions of text.h with NSString. The caller owns the one reference of a
// text that a function makes.
#include "platform/text.h"

#include "platform/macos/foundation.h"

namespace ztk::platform::text {

using macos::StringOf;
using macos::TextOf;

CF_RETURNS_RETAINED ZTKTextRef UpperCase(ZTKTextRef text) {
  @autoreleasepool {
    return TextOf([[StringOf(text) uppercaseString] retain]);
  }
}

bool Contains(ZTKTextRef text, ZTKTextRef part) {
  if (text == nullptr || part == nullptr) return false;
  return [StringOf(text) rangeOfString:StringOf(part)].location != NSNotFound;
}

// NSString would write "(null)" in place of a null text.
CF_RETURNS_RETAINED ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first) {
  if (format == nullptr || first == nullptr) return nullptr;
  return TextOf(
      [[NSString alloc] initWithFormat:StringOf(format), StringOf(first)]);
}

CF_RETURNS_RETAINED ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first,
                                      ZTKTextRef second) {
  if (format == nullptr || first == nullptr || second == nullptr) {
    return nullptr;
  }
  return TextOf([[NSString alloc]
      initWithFormat:StringOf(format), StringOf(first), StringOf(second)]);
}

CF_RETURNS_RETAINED ZTKTextRef Format(ZTKTextRef format, std::int32_t number) {
  if (format == nullptr) return nullptr;
  return TextOf([[NSString alloc] initWithFormat:StringOf(format), number]);
}

CF_RETURNS_RETAINED ZTKTextRef DotComponent(ZTKTextRef text,
                                            unsigned position) {
  @autoreleasepool {
    NSCharacterSet *dot =
        [NSCharacterSet characterSetWithCharactersInString:@"."];
    NSArray *components =
        [StringOf(text) componentsSeparatedByCharactersInSet:dot];
    if (position >= [components count]) return nullptr;
    return TextOf([[components objectAtIndex:position] retain]);
  }
}

// A null text is less than every other text.
int CompareNumerically(ZTKTextRef first, ZTKTextRef second) {
  if (first == nullptr || second == nullptr) {
    return (first != nullptr) - (second != nullptr);
  }
  return static_cast<int>([StringOf(first) compare:StringOf(second)
                                           options:NSNumericSearch]);
}

void Release(ZTKTextRef text) { [StringOf(text) release]; }

}  // namespace ztk::platform::text
