// SPDX-License-Identifier: MIT
//
// What a change did to mixers, settings file and message bus, for people and
// for programs.
#ifndef ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_

#include <string>
#include <vector>

#include "ztk/model/history.h"
#include "ztk/report.h"

namespace ztk::program {

// Opens the history and shows when another program has to be waited for. Throws
// a Failure where it is not done in time.
class SharedHistory {
 public:
  SharedHistory();
  History *get() { return &*history_; }

 private:
  std::optional<History> history_;
};

// Makes the changes as one step of the history, and shows when a mixer has to
// be waited for. Adds a warning where undo will not know of the step.
MadeChanges RunStep(const std::string &command,
                    const std::vector<Change> &changes, Report *report);

// What became of a setting, as parts of a sentence.
struct DeliveryTexts {
  std::string notSent;      // where nothing could be sent
  std::string notAnswered;  // where it was, but no mixer has answered
  std::string remedy;       // what to do in both cases
  std::string someMissing;  // what to do once the others are back
};

// Adds how many mixers were found and how many answered, a warning for each
// that did not, and the problem when some or all did not.
void ReportReach(const Reach &reach, const DeliveryTexts &texts,
                 Report *report);

// Adds which mixers were reached, what is remembered and what was announced,
// and the worst of it as the problem. `again` is the command that sends what is
// remembered once more.
void ReportOutcome(const MadeChanges &made, const std::string &what,
                   const std::string &again, Report *report);

// A line for a choice that the library will not send again, empty for others.
std::string NoteOnSendingAgain(const Change &change);

// "sent to 2 mixers", "sent to 1 of 2 mixers", "sent, but not answered",
// "not sent"
std::string Described(const Reach &reach);

// "sent to 1 mixer, remembered"
std::string Described(const MadeChange &change, const Reach &reach);

// After an announcement that no program could receive.
void WarnOfMissingBus(Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_
