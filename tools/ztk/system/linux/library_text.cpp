// SPDX-License-Identifier: MIT
#include "ztk/system/library_text.h"

namespace ztk::model {

std::string Utf8(ZTKTextRef text) { return text == nullptr ? "" : text; }

LibraryText::LibraryText(const std::string &text) : text_(text.c_str()) {}

LibraryText::~LibraryText() = default;

}  // namespace ztk::model
