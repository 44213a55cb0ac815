// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_PLIST_WRITER_H_
#define ZTK_PLATFORM_LINUX_PLIST_WRITER_H_

#include <plist/plist.h>

#include <string>

namespace ztk::platform::property_list {

// Returns the XML form of a property list, or an empty text if it could not be
// made.
std::string MakeXml(plist_t root);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_WRITER_H_
