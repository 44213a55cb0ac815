// SPDX-License-Identifier: MIT
//
// Converts XML property lists to UTF-8, which is the only encoding that
// libplist reads.
#ifndef ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_
#define ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_

#include <optional>
#include <string>
#include <string_view>

namespace ztk::platform::property_list {

// Returns the XML text as UTF-8 without a byte order mark. The encoding is
// that of the byte order mark; without one, UTF-16 if the first character is a
// "<" in UTF-16; otherwise that of the XML declaration; UTF-8 if there is none
// of them. Returns no value if the declared encoding is not supported, or if
// the bytes are not valid in their encoding. UTF-8 and ASCII are not checked.
std::optional<std::string> Utf8Xml(std::string_view bytes);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_XML_TEXT_H_
