// SPDX-License-Identifier: MIT
//
// Removes remembered values from the settings file. Nothing is sent or
// announced.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_FORGET_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_FORGET_H_

#include <string>
#include <vector>

#include "ztk/model/history/history.h"
#include "ztk/model/resend.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// Removes the value of a channel from the settings file. Returns why the value
// is still in the file, as a part of a sentence; empty when it is not.
std::string RemoveRemembered(const Setting &setting, std::uint32_t channel);

struct ForgottenValue {
  StoredValue value;
  // Why it is still remembered, as a part of a sentence; empty when it is not.
  std::string notForgotten;
};

struct ForgottenStep {
  std::vector<ForgottenValue> values;
  // Why the history does not contain this step; empty when it does, or when
  // nothing has changed.
  std::string notRecorded;
};

// Removes the values as one step of the history, which must not be busy.
ForgottenStep ForgetValues(const std::string &command,
                           const std::vector<StoredValue> &values,
                           History *history);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_FORGET_H_
