// SPDX-License-Identifier: MIT
//
// Converts XML property lists to UTF-8 before libplist, which knows no other
// encoding, reads them.
#ifndef ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_
#define ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_

#include <optional>
#include <string>
#include <string_view>

namespace ztk::platform::property_list {

// The file as UTF-8 without a byte order mark. The encoding is that of the byte
// order mark, else that of the XML declaration, else UTF-8. Nothing when the
// declared encoding is not a known one, or the bytes are not text in it. Text
// in UTF-8 is not checked.
std::optional<std::string> Utf8Xml(std::string_view bytes);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_
