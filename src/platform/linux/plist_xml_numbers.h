// SPDX-License-Identifier: MIT
//
// The numbers of an XML property list before it is given to libplist, which
// takes a number with a leading zero for an octal one, stops at the first
// character that is no digit, and cuts off what does not fit.
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
