// SPDX-License-Identifier: MIT
//
// Converts texts of the library to UTF-8, which the tests use, and back. Only
// this header knows the type of a text on each system.
#ifndef ZTK_TESTS_SUPPORT_PLAIN_TEXT_H_
#define ZTK_TESTS_SUPPORT_PLAIN_TEXT_H_

#include <cstddef>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#if !defined(__APPLE__)
#include "platform/common/interned_text.h"
#endif

namespace ztk::test {

// Returns the text in UTF-8, or "(null)" for a null text.
inline std::string Plain(ZTKTextRef text) {
  if (text == nullptr) return "(null)";
#if defined(__APPLE__)
  const CFIndex most = CFStringGetMaximumSizeForEncoding(
                           CFStringGetLength(text), kCFStringEncodingUTF8) +
                       1;
  std::string bytes(static_cast<std::size_t>(most), '\0');
  CFStringGetCString(text, bytes.data(), most, kCFStringEncodingUTF8);
  return bytes.c_str();
#else
  return text;
#endif
}

template <std::size_t kSize>
std::vector<std::string> Plain(const ZTKTextRef (&texts)[kSize]) {
  std::vector<std::string> plain;
  for (const ZTKTextRef text : texts) plain.push_back(Plain(text));
  return plain;
}

// Returns a text of the library that is valid until the process ends.
inline ZTKTextRef PermanentText(const std::string &text) {
#if defined(__APPLE__)
  return CFStringCreateWithCString(kCFAllocatorDefault, text.c_str(),
                                   kCFStringEncodingUTF8);
#else
  return platform::common::Intern(text);
#endif
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PLAIN_TEXT_H_
