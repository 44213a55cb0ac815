// SPDX-License-Identifier: MIT
//
// The folder of the installed components depends on the version of the system.
#ifndef ZTK_API_INSTALL_LOCATION_H_
#define ZTK_API_INSTALL_LOCATION_H_

namespace ztk {

// True if they are under /Library, false if they are under /System/Library.
//
// Deliberate: only the second number of the system version counts, and a
// version such as 11.2 is older than 10.11. A version that cannot be read, or
// has one number only, is older too.
bool IsInstalledInLibrary();

}  // namespace ztk

#endif  // ZTK_API_INSTALL_LOCATION_H_
