// SPDX-License-Identifier: MIT
//
// Changing settings, and the truth about what came of it: the library answers
// the same whether a mixer, the settings file and the bus took the value.
#ifndef ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
#define ZTK_TOOLS_ZTK_MODEL_CHANGE_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/mixers.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// A setting and the library's index of what it shall be.
struct Change {
  const Family *family;
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

// Adds to the report who was reached, what is remembered and what was
// announced, and the worst of it as the problem. `again` is the command that
// sends what is remembered once more.
void AddTruth(const MadeChanges &made, const std::string &what,
              const std::string &again, Report *report);

// A line for one that the library will not send again, empty for others.
std::string NoteOnSendingAgain(const Change &change);

// "sent to 1 mixer, remembered"
std::string Described(const MadeChange &change, const Reach &reach);

// After an announcement that nobody could hear.
void WarnOfSilentBus(Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
