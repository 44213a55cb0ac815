// SPDX-License-Identifier: MIT
//
// How undo takes back the changes of the last steps.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_UNDO_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_UNDO_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/model/history/history.h"

namespace ztk::model {

// What undo does with one channel of a setting. If several steps have changed
// it, `past` goes from the value before the first step to the value after the
// last one; if another program has changed it between them, there are two
// items.
struct UndoItem {
  PastChange past;
  enum class Action : std::uint8_t {
    PutBack,
    Nothing,    // it already has its former value
    LeaveAlone  // another program has changed it since
  } action;
};

// The value that takes a change back: the value before it, or the default when
// nothing was remembered.
std::uint32_t FormerIndex(const PastChange &change);

// The first settings file that the step needs and that cannot be read, with the
// reason; empty if all of them can be read. Without its file the current value
// of a setting is not known.
std::string WhyUnreadable(const Step &step);

// What undo of the last `count` steps does, the last change first.
std::vector<UndoItem> PlanUndo(const std::vector<Step> &steps,
                               std::size_t count = 1);

// For each step, the last one first, and for each of its changes: whether undo
// of this step and the later ones leaves the value alone, because another
// program has set it. None if the settings file cannot be read.
std::vector<std::vector<std::optional<bool>>> FindLeftAlone(
    const std::vector<Step> &steps);

// True when no change of the step is in effect: its command was interrupted,
// all of it was taken back already, or another program has put the former
// values back.
bool IsVoid(const Step &step);

// Removes void steps from the end of the history and returns their number.
// Stops at the first step that is not void, or whose settings file cannot be
// read.
std::size_t DropVoidSteps(History *history);

// The changes that restore the former values. Where nothing was remembered
// before, the default is sent and nothing is remembered afterwards.
std::vector<Change> ChangesOf(const std::vector<UndoItem> &items);

struct UndoneSteps {
  MadeChanges made;
  // The history does not contain the steps any more. It keeps them if a value
  // could not be stored.
  bool dropped = false;
  bool saved = false;  // the history file was written
};

// Makes these changes, which take back the last `count` steps, and removes the
// steps from the history. Also removes them if the library rejects a change,
// because it would reject a second try too.
UndoneSteps UndoSteps(const std::vector<Change> &changes, std::size_t count,
                      History *history);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_UNDO_H_
