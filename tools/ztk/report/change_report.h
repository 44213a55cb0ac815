// SPDX-License-Identifier: MIT
//
// Reports the effect of a change on mixers, settings file and message bus, for
// people and for programs.
#ifndef ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_

#include <string>
#include <vector>

#include "ztk/model/history/history.h"
#include "ztk/progress.h"
#include "ztk/report.h"

namespace ztk::program {

// Opens the history, and shows when it waits for another program. Throws a
// Failure when that takes too long.
class SharedHistory {
 public:
  SharedHistory();
  History *get() { return &*history_; }

 private:
  std::optional<History> history_;
};

// While the result exists, shows that the program waits for the mixers, and the
// longest time: `requests` are sent to each mixer, one after the other, and
// each of them can take one second.
Progress WaitForRequests(std::size_t requests);
// Calls WaitForRequests() with the number of requests of these changes.
Progress WaitForChanges(const std::vector<Change> &changes);

// The requests that a change of the setting sends to a mixer: the value, and
// for some settings a query of the input selectors.
std::size_t RequestsOf(const Setting &setting);

// Adds a warning that undo will not know the step. `why` is empty if it will.
void WarnIfNotRecorded(const std::string &why, Report *report);

// Makes the changes as one step of the history, and shows when it waits for a
// mixer. In a terminal it shows the number of mixers when there are several,
// unless `quiet`. Adds a warning when undo will not know the step.
MadeChanges RunStep(const std::string &command,
                    const std::vector<Change> &changes, bool quiet,
                    Report *report);

// The parts of the sentence for a value that not every mixer has accepted:
// "Boost level is saved, but" the mixer did not answer; switch it off and
// on again, then "run: ztk apply".
struct DeliveryTexts {
  std::string before;  // the words before the reason, with a space
  std::string again;   // what to do to send it again
};

// Adds the number of mixers that were found and that answered, a warning for
// each mixer that did not answer, and the problem when some or all did not.
void ReportReach(const Reach &reach, const DeliveryTexts &texts,
                 Report *report);

// Adds which mixers were reached, what is remembered and what was announced;
// the most serious failure is the problem. `again` tells the user to run the
// command that sends the remembered values once more: "run: ztk apply".
void ReportOutcome(const MadeChanges &made, const std::string &what,
                   const std::string &again, Report *report);

// The command that sends the default of a setting that is forgotten. Except for
// USB output audio, this command also remembers the default.
std::string DefaultCommand(const Change &change);

// What the user is told to do to send the stored values again: "run: ztk
// apply". Names a command for each model, and one for each default that not
// every mixer has accepted, because apply does not know the defaults.
std::string SendingAgain(const MadeChanges &made);

// A line for a choice that the library will not send again, empty for others.
std::string NoteOnSendingAgain(const Change &change);

// ", sent to 2 mixers", ", sent to 1 of 2 mixers". If no mixer has accepted the
// value: ", not accepted" if mixers have accepted other values (`others`), else
// an empty text, because the error message gives the reason.
std::string Sent(std::size_t accepted, const Reach &reach, bool others);

// ", sent to 1 mixer, remembered": the result of `change`, one of the changes
// in `made`.
std::string Described(const MadeChange &change, const MadeChanges &made);

// Adds a warning about an announcement that the message bus did not accept.
// Without a bus no program could receive it, so there is no warning.
void WarnOfFailedAnnouncement(Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_CHANGE_REPORT_H_
