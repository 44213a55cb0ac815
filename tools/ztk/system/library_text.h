// SPDX-License-Identifier: MIT
//
// Converts texts of the library to UTF-8, which this program uses, and back.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_
#define ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_

#include <string>

#include "ZTKFunc.h"

namespace ztk::model {

// Empty for null.
std::string Utf8(ZTKTextRef text);

// A text in the form of the library. It refers to the string that it was made
// from, which has to exist longer.
class LibraryText {
 public:
  explicit LibraryText(const std::string &text);
  // It has nothing to do on Linux.
  ~LibraryText();  // NOLINT(performance-trivially-destructible)
  LibraryText(const LibraryText &) = delete;
  LibraryText &operator=(const LibraryText &) = delete;
  ZTKTextRef get() const { return text_; }

 private:
  ZTKTextRef text_;
};

// Calls `function` with the text, which exists until the function returns.
template <typename Function>
auto WithText(const std::string &text, Function function) {
  const LibraryText made(text);
  return function(made.get());
}

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_
