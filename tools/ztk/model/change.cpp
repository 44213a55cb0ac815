// SPDX-License-Identifier: MIT
#include "ztk/model/change.h"

#include <algorithm>

#include "ztk/model/remembered.h"
#include "ztk/system/announcement.h"

namespace ztk::model {

namespace {

std::vector<const notify::AnnouncedSetting *> Notices(
    const std::vector<Change> &changes) {
  std::vector<const notify::AnnouncedSetting *> notices;
  for (const Change &change : changes) {
    const notify::AnnouncedSetting *notice = change.setting->notice;
    if (std::find(notices.begin(), notices.end(), notice) == notices.end()) {
      notices.push_back(notice);
    }
  }
  return notices;
}

}  // namespace

MadeChanges MakeChanges(const std::vector<Change> &changes) {
  MadeChanges made;
  BusWitness witness(Notices(changes));
  const Sent sent = SendAndLook([&] {
    ZTKResult all = ZTK_REJECTED;
    for (const Change &change : changes) {
      made.changes.push_back(
          {.change = change,
           .result = change.setting->set(change.product, change.channel,
                                         change.index)});
      if (made.changes.back().result != ZTK_REJECTED) all = ZTK_SUCCESS;
    }
    return all;
  });
  made.reach = sent.reach;
  for (MadeChange &one : made.changes) {
    if (one.result == ZTK_REJECTED) continue;
    const Change &change = one.change;
    one.remembered =
        Remembered(*change.setting, change.channel) == change.index;
    one.announced =
        witness.Heard({.setting = change.setting->notice,
                       .product = change.product,
                       .channel = change.setting->channels == 0
                                      ? std::nullopt
                                      : std::optional(change.channel),
                       .index = change.index});
  }
  return made;
}

}  // namespace ztk::model
