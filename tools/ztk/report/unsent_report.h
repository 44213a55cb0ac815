// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_

#include <string>
#include <vector>

#include "ztk/model/history/sendings.h"
#include "ztk/model/resend.h"
#include "ztk/report.h"

namespace ztk::program {

// The remembered values that the mixers may not have.
struct Unsent {
  // One for each reason, such as "Sent before a mixer was attached: Boost
  // level".
  std::vector<std::string> lines;
  std::string command;  // the commands that send them, joined by semicolons
};
Unsent FindUnsent(const std::vector<StoredValue> &remembered,
                  const RecordedSending &recorded);

// These lines as one text.
std::string TextOf(const Unsent &unsent);

// These lines, and the command that sends the values; empty where there are
// none.
std::string WithCommand(const Unsent &unsent);

// Adds these lines, and what to do about them; the same when no mixer is
// attached.
void AddUnsent(const std::vector<StoredValue> &remembered,
               const RecordedSending &recorded, Report *report);

// "earlier", "incomplete", "replaced", or null for Sending::Complete.
Json UnsentField(Sending sending);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_
