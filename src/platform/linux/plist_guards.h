// SPDX-License-Identifier: MIT
//
// The checks of a property list before it is passed to libplist. libplist 2.2.0
// recurses and expands without a limit: 100,000 nested arrays crash it, 406
// bytes of shared references take it 25 seconds and 4 GB. These scans are
// stricter than the formats: refusing an odd file is better than a crash.
#ifndef ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_
#define ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_

#include <cstddef>
#include <string_view>

namespace ztk::platform::property_list {

// Largest file in bytes. A settings file has a few hundred.
inline constexpr std::size_t kMaxFileSize = std::size_t{256} * 1024;
// Deepest nesting of arrays and dictionaries, the root included.
inline constexpr std::size_t kMaxDepth = 128;
// The largest expanded size of a binary file: shared objects count once for
// each use.
inline constexpr std::size_t kMaxNodes = 65536;
inline constexpr std::size_t kMaxExpandedBytes = std::size_t{1} << 20;

// True for "bplist00" at the front.
bool IsBinary(std::string_view bytes);

// True for UTF-8 XML, without a byte order mark, that is safe to parse: begins
// with white space and "<", no NUL (so no UTF-16), every tag closed, no
// internal DTD (so no entities of its own), nesting within kMaxDepth. Old-style
// text ("{ a = 1; }") and JSON are not XML and refused.
bool IsSafeXml(std::string_view bytes);

// True for a binary property list that is safe to parse: trailer and offsets
// in range, only the object types that a property list has, no cycle, nesting
// and expansion within the limits, no NUL in a text, every date within 30,000
// years of today.
bool IsSafeBinary(std::string_view bytes);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_GUARDS_H_
