// SPDX-License-Identifier: MIT
//
// The checks of a property list before it is passed to libplist. libplist 2.2.0
// has no limits for recursion and expansion: 100,000 nested arrays crash it,
// and a file of 406 bytes with shared references takes 25 seconds and 4 GB. The
// checks also refuse some valid but unusual files, which is better than a
// crash.
#ifndef ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_
#define ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_

#include <cstddef>
#include <string_view>

namespace ztk::platform::property_list {

// The largest file in bytes. A settings file has a few hundred bytes.
inline constexpr std::size_t kMaxFileSize = std::size_t{256} * 1024;
// The deepest nesting of arrays and dictionaries, including the root.
inline constexpr std::size_t kMaxDepth = 128;
// The largest expanded size of a binary file. In the expanded size, a shared
// object counts once for each reference to it.
inline constexpr std::size_t kMaxNodes = 65536;
inline constexpr std::size_t kMaxExpandedBytes = std::size_t{1} << 20;

// Returns true if the bytes begin with "bplist00".
bool IsBinary(std::string_view bytes);

// Returns true if the bytes are UTF-8 XML that is safe to parse: the first
// character after white space is "<" (so there is no byte order mark), there is
// no NUL (so it is not UTF-16), every tag is closed, there is no internal DTD
// (so the file defines no entities), and the nesting is within kMaxDepth.
// Old-style text ("{ a = 1; }") and JSON are refused.
bool IsSafeXml(std::string_view bytes);

// Returns true if the bytes are a binary property list that is safe to parse:
// the numbers of the trailer and all offsets are in range, there are only the
// object types of property lists, no object contains itself, nesting and
// expansion are within the limits, no text contains a NUL, and every date is
// within about 30,000 years of 2001.
bool IsSafeBinary(std::string_view bytes);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_
