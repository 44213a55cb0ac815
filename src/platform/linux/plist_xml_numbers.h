// SPDX-License-Identifier: MIT
//
// Rewrites the integers of an XML property list for libplist. libplist reads an
// integer with a leading zero as octal, stops at the first character that is
// not a digit, and truncates large integers.
#ifndef ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_
#define ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_

#include <string>

namespace ztk::platform::property_list {

// Replaces the content of each <integer> element by decimal digits. Returns
// false if the content of an <integer> or <real> element is not a number, or an
// integer needs more than 64 bits. Foundation refuses such a file as a whole.
// Requires that IsSafeXml() is true for the text.
bool NormalizeNumbers(std::string *xml);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_
