// SPDX-License-Identifier: MIT
//
// The operations on texts that the core needs. ZTKTextRef and ZTK_TEXT are in
// the public header. The caller owns a text that one of these functions makes,
// and releases it with Release(). A function that makes a text returns null
// when memory has run out. Every function of the platform accepts a null text.
#ifndef ZTK_PLATFORM_TEXT_H_
#define ZTK_PLATFORM_TEXT_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::platform::text {

// Makes the text in upper case. At least ASCII letters are mapped.
ZTKTextRef UpperCase(ZTKTextRef text);

// Returns true if `text` contains `part`.
bool Contains(ZTKTextRef text, ZTKTextRef part);

// Make a text from a format. Each "%@" is replaced by the next text, and "%d"
// by the number.
ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first);
ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first, ZTKTextRef second);
ZTKTextRef Format(ZTKTextRef format, std::int32_t number);

// Splits a text at every "." and makes a copy of the component at `position`,
// counted from 0. Returns null if there are fewer components. A component may
// be empty.
ZTKTextRef DotComponent(ZTKTextRef text, unsigned position);

// Compares two texts. Digits are compared as numbers, so that "9" is less than
// "10"; everything else is compared by characters. Returns a number below 0 if
// the first text is less, 0 if the texts are equal, a number above 0 otherwise.
int CompareNumerically(ZTKTextRef first, ZTKTextRef second);

// Releases a text that one of the functions above made. Null is allowed.
void Release(ZTKTextRef text);

// Owns a text and releases it.
class OwnedText {
 public:
  explicit OwnedText(ZTKTextRef text) : text_(text) {}
  ~OwnedText() { Release(text_); }
  OwnedText(const OwnedText &) = delete;
  OwnedText &operator=(const OwnedText &) = delete;
  ZTKTextRef get() const { return text_; }

 private:
  ZTKTextRef text_;
};

}  // namespace ztk::platform::text

#endif  // ZTK_PLATFORM_TEXT_H_
