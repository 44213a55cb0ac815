// SPDX-License-Identifier: MIT
//
// What the core does with texts; ZTKTextRef and ZTK_TEXT are in the public
// header. The caller owns a text that one of these functions makes, and gives
// it back with Release(). It is null when memory has run out; every function of
// the platform accepts a null text.
#ifndef ZTK_PLATFORM_TEXT_H_
#define ZTK_PLATFORM_TEXT_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::platform::text {

// Makes the upper-case form; at least ASCII letters are mapped.
ZTKTextRef UpperCase(ZTKTextRef text);

// True when `part` stands anywhere in `text`.
bool Contains(ZTKTextRef text, ZTKTextRef part);

// Make a text from a format: each "%@" takes the next text, "%d" the number.
ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first);
ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first, ZTKTextRef second);
ZTKTextRef Format(ZTKTextRef format, std::int32_t number);

// Makes the component at `position`, counted from 0, of a text split at every
// "."; null when there are fewer. Components may be empty.
ZTKTextRef DotComponent(ZTKTextRef text, unsigned position);

// Compares runs of digits as numbers ("9" is below "10"), the rest by
// character. Below 0, 0 or above 0, as the first is less, equal or greater.
int CompareNumerically(ZTKTextRef first, ZTKTextRef second);

// Gives back a made text; null is allowed.
void Release(ZTKTextRef made);

// A made text that goes back by itself.
class OwnedText {
 public:
  explicit OwnedText(ZTKTextRef made) : text_(made) {}
  ~OwnedText() { Release(text_); }
  OwnedText(const OwnedText &) = delete;
  OwnedText &operator=(const OwnedText &) = delete;
  ZTKTextRef get() const { return text_; }

 private:
  ZTKTextRef text_;
};

}  // namespace ztk::platform::text

#endif  // ZTK_PLATFORM_TEXT_H_
