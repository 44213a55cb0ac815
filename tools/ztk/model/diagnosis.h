// SPDX-License-Identifier: MIT
//
// The checks of the doctor, in the order in which a user needs them.
#ifndef ZTK_TOOLS_ZTK_MODEL_DIAGNOSIS_H_
#define ZTK_TOOLS_ZTK_MODEL_DIAGNOSIS_H_

#include <span>
#include <string>

#include "ztk/doctor/finding.h"

namespace ztk::model {

// One part of the system that is checked.
struct CheckedPart {
  const char *name;  // for people and programs
  // Whether the check asks a mixer, which can take seconds.
  bool asksMixers;
  // Finds problems. *good receives the sentence that is shown when there is
  // none.
  Findings (*check)(std::string *good);
};

std::span<const CheckedPart> CheckedParts();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_DIAGNOSIS_H_
