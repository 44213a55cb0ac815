// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_USER_HOME_H_
#define ZTK_PLATFORM_COMMON_USER_HOME_H_

#include <string>

namespace ztk::platform {

// Returns the home folder of the user: HOME if it is an absolute path, else the
// folder in the password database. Empty if there is none.
std::string UserHome();

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_USER_HOME_H_
