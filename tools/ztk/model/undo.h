// SPDX-License-Identifier: MIT
//
// How the changes of a step are taken back.
#ifndef ZTK_TOOLS_ZTK_MODEL_UNDO_H_
#define ZTK_TOOLS_ZTK_MODEL_UNDO_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/history.h"

namespace ztk::model {

// One change of a step, and what undo does about it.
struct UndoItem {
  PastChange past;
  enum class Action : std::uint8_t {
    PutBack,
    Nothing,    // it already has its former value
    LeaveAlone  // another program has changed it since
  } action;
};

// The value before the change. The library cannot remove a setting from its
// file: where nothing was remembered, this is the default.
std::uint32_t FormerIndex(const PastChange &change);

// The settings file of the step that cannot be read, and why; empty where all
// can be. Without it nothing is known of what is in effect.
std::string WhyUnreadable(const Step &step);

// The last change first.
std::vector<UndoItem> PlanUndo(const Step &step);

// Whether no change of the step is in effect, because its command was
// interrupted or somebody has put all of it back.
bool IsVoid(const Step &step);

// The changes that put back what is to be put back.
std::vector<Change> ChangesOf(const std::vector<UndoItem> &items);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_UNDO_H_
