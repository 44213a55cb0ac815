// SPDX-License-Identifier: MIT
//
// Changing settings, and the truth about what came of it: the library answers
// the same whether a mixer, the settings file and the bus took the value.
#ifndef ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
#define ZTK_TOOLS_ZTK_MODEL_CHANGE_H_

#include <cstdint>
#include <vector>

#include "ztk/model/mixers.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// A setting and the library's index of what it shall be.
struct Change {
  const Setting *setting;
  std::uint32_t product;
  std::uint32_t channel;
  std::uint32_t index;
};

struct MadeChange {
  Change change;
  ZTKResult result = ZTK_REJECTED;
  bool remembered = false;  // it stands in the file
  bool announced = false;   // the bus has carried it
};

struct MadeChanges {
  std::vector<MadeChange> changes;
  Reach reach;
};

// Makes them with the library's setters, in this order. Throws nothing: a
// change that the library refuses says so.
MadeChanges MakeChanges(const std::vector<Change> &changes);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
