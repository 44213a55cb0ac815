// SPDX-License-Identifier: MIT
//
// Between the library's texts and this program's, which are UTF-8. A system
// whose ZTKTextRef is another type needs another body for these two and
// nothing else.
#ifndef ZTK_TOOLS_ZTK_TEXT_H_
#define ZTK_TOOLS_ZTK_TEXT_H_

#include <string>

#include "ZTKFunc.h"

namespace ztk::cli {

// Empty for null.
inline std::string Utf8(ZTKTextRef text) { return text == nullptr ? "" : text; }

// Calls `function` with the text, which lives until it returns.
template <typename Function>
auto WithText(const std::string &text, Function function) {
  return function(ZTKTextRef{text.c_str()});
}

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_ZTK_TEXT_H_
