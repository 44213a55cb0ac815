// SPDX-License-Identifier: MIT
//
// Sends the remembered settings to each mixer that is plugged in.
#ifndef ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
#define ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_

namespace ztk::model {

// Each of these throws std::runtime_error with the reason when the system
// refuses.

bool IsAutoapplyOn();
// For every mixer from now on.
void SetAutoapply(bool on);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_AUTOAPPLY_H_
