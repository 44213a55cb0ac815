// SPDX-License-Identifier: MIT
#include <CoreFoundation/CoreFoundation.h>

#include "ztk/system/library_text.h"

namespace ztk::model {

std::string Utf8(ZTKTextRef text) {
  if (text == nullptr) return "";
  const CFIndex most = CFStringGetMaximumSizeForEncoding(
                           CFStringGetLength(text), kCFStringEncodingUTF8) +
                       1;
  std::string bytes(static_cast<std::size_t>(most), '\0');
  if (!CFStringGetCString(text, bytes.data(), most, kCFStringEncodingUTF8)) {
    return "";
  }
  bytes.resize(bytes.find('\0'));
  return bytes;
}

// Null when a word of the command line is not UTF-8; the library refuses it.
LibraryText::LibraryText(const std::string &text)
    : text_(CFStringCreateWithCString(kCFAllocatorDefault, text.c_str(),
                                      kCFStringEncodingUTF8)) {}

LibraryText::~LibraryText() {
  if (text_ != nullptr) CFRelease(text_);
}

}  // namespace ztk::model
