// SPDX-License-Identifier: MIT
//
// Turns on and off whether the system runs "ztk apply" each time a mixer is
// plugged in.
#ifndef ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
#define ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_

#include "ztk/system/user_manager.h"

namespace ztk::model {

// Both functions throw NoUserManager if the system has no such service, and
// std::runtime_error if the service fails, with the reason.

bool IsAutoapplyOn();
void SetAutoapply(bool on);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
