// SPDX-License-Identifier: MIT
//
// Turns on and off whether the system runs "ztk apply" each time a mixer is
// plugged in.
#ifndef ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
#define ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_

namespace ztk::model {

// Both functions throw std::runtime_error with the reason if the system has no
// such service, or if the service fails.

bool IsAutoapplyOn();
void SetAutoapply(bool on);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
