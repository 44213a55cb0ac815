// SPDX-License-Identifier: MIT
//
// Between the library's texts and this program's, which are UTF-8.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_
#define ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_

#include <string>

#include "ZTKFunc.h"

namespace ztk::model {

// Empty for null.
std::string Utf8(ZTKTextRef text);

// A text of the library's kind. It reads the string that it was made from,
// which has to outlive it.
class LibraryText {
 public:
  explicit LibraryText(const std::string &text);
  ~LibraryText();
  LibraryText(const LibraryText &) = delete;
  LibraryText &operator=(const LibraryText &) = delete;
  ZTKTextRef get() const { return text_; }

 private:
  ZTKTextRef text_;
};

// Calls `function` with the text, which lives until it returns.
template <typename Function>
auto WithText(const std::string &text, Function function) {
  const LibraryText made(text);
  return function(made.get());
}

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_LIBRARY_TEXT_H_
