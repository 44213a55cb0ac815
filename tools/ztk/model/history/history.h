// SPDX-License-Identifier: MIT
//
// The changes that this program has made, for undo. No other program reads or
// writes this file, and the settings files do not contain it.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_HISTORY_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_HISTORY_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/history/state_file.h"
#include "ztk/model/settings.h"

namespace ztk::model {

struct PastChange {
  const Setting *setting;
  std::uint32_t channel;
  // None: nothing was remembered.
  std::optional<std::uint32_t> before;
  std::optional<std::uint32_t> after;
};

// The changes of one command.
struct Step {
  std::string command;
  std::vector<PastChange> changes;
};

// The steps in a file, one line of JSON for each, and whether the file has
// other lines.
struct ParsedHistory {
  std::vector<Step> steps;
  bool damaged = false;
};
ParsedHistory ParseHistory(const std::string &text);
std::string HistoryText(const std::vector<Step> &steps);

// While it exists, no other ztk changes anything: two of them at once could
// lose a step.
class History {
 public:
  // Waits for another ztk: see StateLock.
  History();

  enum class State : std::uint8_t {
    Usable,
    Busy,        // another ztk has the lock
    Unavailable  // the history can be neither written nor read
  };
  State state() const { return state_; }
  // Why it is not usable, as a part of a sentence.
  const std::string &reason() const { return reason_; }
  // Some lines of the file are not steps; they are left out.
  bool damaged() const { return damaged_; }

  const std::vector<Step> &steps() const { return steps_; }
  void Add(Step step);
  void DropLast(std::size_t count = 1) { steps_.resize(steps_.size() - count); }
  // Only for a usable history. False when it could not be written.
  bool Save();

 private:
  void Load();

  std::string path_;
  StateLock lock_;
  State state_ = State::Unavailable;
  std::string reason_;
  std::vector<Step> steps_;
  bool damaged_ = false;
};

// Adds a step before its changes are made. If this program is ended in between,
// the history holds a step that did not happen, which undo recognises.
class RecordedStep {
 public:
  RecordedStep(Step step, History *history);

  // Why the history does not hold the step; empty when it does, or when the
  // step has no changes.
  const std::string &notRecorded() const { return notRecorded_; }
  // Removes the step from the history again, because nothing has changed.
  void TakeBack() const;

 private:
  History *history_;
  bool recorded_ = false;
  std::string notRecorded_;
};

struct MadeStep {
  MadeChanges made;
  // Why the history does not contain this step; empty when it does, or when
  // nothing has changed.
  std::string notRecorded;
};

// Makes the changes as one step of the history, which must not be busy.
// `command` is the path of the command, such as "input set".
MadeStep MakeStep(const std::string &command,
                  const std::vector<Change> &changes, History *history);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_HISTORY_H_
