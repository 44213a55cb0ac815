// SPDX-License-Identifier: MIT
#include "ztk/model/change.h"

#include <algorithm>

#include "ztk/model/history/forget.h"

namespace ztk::model {

namespace {

std::string WhyNotStored(const ZTKFileOutcome &store) {
  switch (store.result) {
    case ZTK_FILE_NO_HOME:
      return "you have no home folder";
    case ZTK_FILE_NO_FOLDER:
      return "its folder does not exist and cannot be made";
    case ZTK_FILE_NOT_PERMITTED:
      return "you have no permission";
    case ZTK_FILE_READ_ONLY:
      return "the file system is read-only";
    case ZTK_FILE_FULL:
      return "the file system or your quota is full";
    case ZTK_FILE_CANNOT_BE_READ_NOW:
      return "the settings file cannot be read at the moment";
    case ZTK_FILE_NOT_REGULAR:
      return "a folder or a device has the name of the settings file";
    default:
      break;
  }
  return store.systemCode == 0 ? "the settings file cannot be written"
                               : SystemErrorText(store.systemCode);
}

std::string WhyOldFileKept(const ZTKFileOutcome &read) {
  switch (read.result) {
    case ZTK_FILE_DAMAGED:
      return "was damaged";
    case ZTK_FILE_NOT_PERMITTED:
      return "could not be read, as you have no permission";
    default:
      return "";
  }
}

// Stores the record of a change that the library has accepted.
void AddOutcome(const RecordedCalls &calls, MadeChange *one) {
  const ZTKOutcome &outcome = calls.last();
  one->accepted = calls.acceptedLast();
  one->selectorsKnown =
      std::any_of(outcome.mixers, outcome.mixers + outcome.mixersListed,
                  [](const ZTKMixerOutcome &mixer) {
                    return mixer.read.result == ZTK_REQUEST_ACCEPTED;
                  });
  one->remembered = outcome.store.result == ZTK_FILE_OK;
  if (!one->remembered) one->notStored = WhyNotStored(outcome.store);
  if (one->remembered) one->oldFileKept = WhyOldFileKept(outcome.read);
  one->wasDamaged = outcome.read.result == ZTK_FILE_DAMAGED;
  one->announced = outcome.announcement.result == ZTK_ANNOUNCEMENT_SENT;
  one->announcementFailed =
      outcome.announcement.result == ZTK_ANNOUNCEMENT_FAILED;
}

void Forget(MadeChange *one) {
  one->notStored = RemoveRemembered(*one->change.setting, one->change.channel);
  one->forgotten = one->notStored.empty();
  one->remembered = false;
}

}  // namespace

MadeChanges MakeChanges(const std::vector<Change> &changes) {
  MadeChanges made;
  RecordedCalls calls;
  for (const Change &change : changes) {
    MadeChange one{.change = change};
    one.result = calls.Call([&change] {
      return change.setting->set(change.product, change.channel, change.index);
    });
    if (one.result != ZTK_REJECTED) AddOutcome(calls, &one);
    if (one.remembered && change.forgets) Forget(&one);
    made.changes.push_back(std::move(one));
  }
  made.reach = calls.reach();
  return made;
}

}  // namespace ztk::model
