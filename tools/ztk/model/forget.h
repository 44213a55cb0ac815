// SPDX-License-Identifier: MIT
//
// Forgetting what is remembered: the settings file holds it no longer, and
// nothing is sent or announced.
#ifndef ZTK_TOOLS_ZTK_MODEL_FORGET_H_
#define ZTK_TOOLS_ZTK_MODEL_FORGET_H_

#include <string>
#include <vector>

#include "ztk/model/history.h"
#include "ztk/model/resend.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// Removes the value of a channel from the settings file. Answers why the file
// still holds it, as a part of a sentence; empty where it does not.
std::string RemoveRemembered(const Setting &setting, std::uint32_t channel);

struct ForgottenValue {
  StoredValue value;
  // Why it is still remembered, as a part of a sentence; empty where it is not.
  std::string notForgotten;
};

struct ForgottenStep {
  std::vector<ForgottenValue> values;
  // Why the history does not hold this step; empty when it does, or when
  // nothing has changed.
  std::string notRecorded;
};

// Forgets the values as one step of the history, which is not busy.
ForgottenStep ForgetValues(const std::string &command,
                           const std::vector<StoredValue> &values,
                           History *history);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_FORGET_H_
