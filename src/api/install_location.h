// SPDX-License-Identifier: MIT
//
// The system version decides in which folder the components are installed.
#ifndef ZTK_API_INSTALL_LOCATION_H_
#define ZTK_API_INSTALL_LOCATION_H_

namespace ztk {

// Returns true if the components are installed under /Library, false if they
// are installed under /System/Library, as on older systems.
//
// Deliberate: only the second number of the system version counts, so that 11.2
// counts as older than 10.11. A version that cannot be read, or that has only
// one number, counts as older too.
bool IsInstalledInLibrary();

}  // namespace ztk

#endif  // ZTK_API_INSTALL_LOCATION_H_
