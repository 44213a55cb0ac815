// SPDX-License-Identifier: MIT
#include "ztk/model/change.h"

#include <algorithm>

#include "platform/paths.h"
#include "platform/text.h"
#include "ztk/model/settings_snapshot.h"
#include "ztk/system/announcement.h"
#include "ztk/system/text.h"

namespace ztk::program {

namespace {

std::vector<const notify::AnnouncedSetting *> Notices(
    const std::vector<Change> &changes) {
  std::vector<const notify::AnnouncedSetting *> notices;
  for (const Change &change : changes) {
    const notify::AnnouncedSetting *notice = change.family->notice;
    if (std::find(notices.begin(), notices.end(), notice) == notices.end()) {
      notices.push_back(notice);
    }
  }
  return notices;
}

std::string SettingsFolder() {
  const platform::text::Made library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return "your home folder";
  return Utf8(library.get()) + "/Preferences";
}

// What is sent can be sent again; what is not remembered is lost.
void AddForgotten(const MadeChanges &made, const std::string &what,
                  Report *report) {
  const std::string remedy =
      "make sure that you can write to " + SettingsFolder();
  AddReach(made.reach,
           {.notSent = what + " is neither sent nor remembered",
            .notAnswered = what + " is sent, but not answered, and not "
                                  "remembered",
            .remedy = remedy,
            .someMissing = "once the others do, set it again"},
           report);
  if (made.reach.answered() == 0) {
    report->problem->exit = ExitCode::Failed;
    return;
  }
  if (report->problem) report->warnings.push_back(report->problem->message);
  const bool none =
      std::none_of(made.changes.begin(), made.changes.end(),
                   [](const MadeChange &change) { return change.remembered; });
  report->problem = {.exit = ExitCode::NotRemembered,
                     .message = what + " is " + Described(made.reach) +
                                (none ? ", but not remembered; "
                                      : ", but not all is remembered; ") +
                                remedy};
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
           .result = change.family->set(change.product, change.channel,
                                        change.index)});
      if (made.changes.back().result != ZTK_REJECTED) all = ZTK_SUCCESS;
    }
    return all;
  });
  made.reach = sent.reach;
  for (MadeChange &one : made.changes) {
    if (one.result == ZTK_REJECTED) continue;
    const Change &change = one.change;
    one.remembered = Remembered(*change.family, change.channel) == change.index;
    one.announced =
        witness.Heard({.family = change.family->notice,
                       .product = change.product,
                       .channel = change.family->channels == 0
                                      ? std::nullopt
                                      : std::optional(change.channel),
                       .index = change.index});
  }
  return made;
}

void AddTruth(const MadeChanges &made, const std::string &what,
              const std::string &again, Report *report) {
  const bool kept =
      std::all_of(made.changes.begin(), made.changes.end(),
                  [](const MadeChange &change) { return change.remembered; });
  if (kept) {
    AddReach(made.reach,
             {.notSent = what + " is remembered, but not sent",
              .notAnswered = what + " is remembered and sent, but not answered",
              .remedy = "once a mixer answers, run: " + again,
              .someMissing = "once the others do, run: " + again},
             report);
  } else {
    AddForgotten(made, what, report);
  }
  const bool announced =
      std::all_of(made.changes.begin(), made.changes.end(),
                  [](const MadeChange &change) { return change.announced; });
  if (!announced) WarnOfSilentBus(report);
}

std::string NoteOnSendingAgain(const Change &change) {
  if (IsSentAgain(*change.family, change.index)) return "";
  return "  ztk apply cannot send this one again; set it once more instead\n";
}

std::string Described(const MadeChange &change, const Reach &reach) {
  return Described(reach) +
         (change.remembered ? ", remembered" : ", not remembered");
}

void WarnOfSilentBus(Report *report) {
  report->warnings.emplace_back(
      "not announced, as there is no session bus; see ztk doctor");
}

}  // namespace ztk::program
