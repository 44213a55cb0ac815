// SPDX-License-Identifier: MIT
//
// Changes of settings and their results: which mixers accepted the value,
// whether it was stored and whether it was announced.
#ifndef ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
#define ZTK_TOOLS_ZTK_MODEL_CHANGE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/mixers/reach.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// A setting and the index of its new choice in the library.
struct Change {
  const Setting *setting;
  std::uint32_t product;
  std::uint32_t channel;
  std::uint32_t index;
  // The value is sent and announced, and nothing is remembered afterwards: it
  // is the default, for a setting that was never chosen before.
  bool forgets = false;
};

struct MadeChange {
  Change change;
  ZTKResult result = ZTK_REJECTED;
  std::size_t accepted = 0;  // mixers that have accepted the value
  bool remembered = false;   // it is stored in the settings file
  bool announced = false;    // the message bus has accepted the announcement
  // There is a message bus, and it did not accept the announcement.
  bool announcementFailed = false;
  bool forgotten = false;  // nothing is remembered, as requested
  // A mixer has answered with the positions of its input selectors.
  bool selectorsKnown = false;
  // Why the value is not stored, as a part of a sentence; empty if it is
  // stored.
  std::string notStored = {};
  // Why the old settings file could not be used, as a part of a sentence; empty
  // if it could be used. The old file is kept under another name, and a new
  // file contains the value.
  std::string oldFileKept = {};
  bool wasDamaged = false;  // the old file could be read, but was damaged
};

struct MadeChanges {
  std::vector<MadeChange> changes;
  Reach reach;
};

// Calls the setters of the library in the order of the changes, and takes the
// results from the record of each call. A change that the library rejects is
// neither sent nor stored.
MadeChanges MakeChanges(const std::vector<Change> &changes);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_CHANGE_H_
