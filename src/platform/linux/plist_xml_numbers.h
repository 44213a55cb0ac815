// SPDX-License-Identifier: MIT
//
// Rewrites the numbers of an XML property list for libplist, which reads a
// number with a leading zero as octal, stops at the first character that is not
// a digit, and truncates large numbers.
#ifndef ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_
#define ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_

#include <string>

namespace ztk::platform::property_list {

// Writes the content of each <integer> element as plain decimal digits. False
// when the content of an <integer> or <real> element is not a number, or an
// integer takes more than 64 bits: Foundation refuses such a file as a whole.
// The text has passed IsSafeXml().
bool NormalizeNumbers(std::string *xml);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_XML_NUMBERS_H_
