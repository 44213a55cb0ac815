// SPDX-License-Identifier: MIT
//
// What this program has changed, so that it can be put back. Nobody else reads
// or writes it; the settings files stay what they are.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/settings.h"
#include "ztk/model/state_file.h"

namespace ztk::program {

struct PastChange {
  const Family *family;
  std::uint32_t channel;
  std::optional<std::uint32_t> before;  // none: nothing was remembered
  std::uint32_t after;
};

// What one command has changed.
struct Step {
  std::string command;
  std::vector<PastChange> changes;
};

// While it lives, no other program of this kind changes anything: what two of
// them remember at the same time would otherwise be lost.
class History {
 public:
  History();

  // Whether there is one; else why not, as a part of a sentence.
  bool usable() const { return lock_.held(); }
  const std::string &reason() const { return lock_.reason(); }
  // Lines that were no steps are left out.
  bool damaged() const { return damaged_; }

  const std::vector<Step> &steps() const { return steps_; }
  void Add(Step step);
  void DropLast() { steps_.pop_back(); }
  // False when it could not be written.
  bool Save();

 private:
  void Load();

  std::string path_;
  StateLock lock_;
  std::vector<Step> steps_;
  bool damaged_ = false;
};

// Makes the changes as one step of the history. Adds a warning to the report
// where undo will not know of it. `command` as in "input set".
MadeChanges MakeStep(const std::string &command,
                     const std::vector<Change> &changes, Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_H_
