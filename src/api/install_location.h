// SPDX-License-Identifier: MIT
//
// Where the installer puts things depends on the system's version.
#ifndef ZTK_API_INSTALL_LOCATION_H_
#define ZTK_API_INSTALL_LOCATION_H_

namespace ztk {

// True when they lie under /Library, false for /System/Library.
//
// Deliberate: only the second number of the system version counts, and a
// version such as 11.2 is older than 10.11. A version that cannot be read, or
// has one number only, is older too.
bool IsInstalledInLibrary();

}  // namespace ztk

#endif  // ZTK_API_INSTALL_LOCATION_H_
