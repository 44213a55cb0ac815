// SPDX-License-Identifier: MIT
//
// What the library's answers do not tell: whether there was a mixer to reach.
#ifndef ZTK_TOOLS_ZTK_MIXERS_H_
#define ZTK_TOOLS_ZTK_MIXERS_H_

#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "report.h"
#include "usb/USB.h"

namespace ztk::cli {

// Mixers are numbered from 1, in the order of the bus.
struct Reach {
  int found = 0;
  std::vector<int> reached;
  std::vector<int> notOpened;
};

// Counts the mixers and opens each for a moment. Sends nothing to them.
Reach LookAtMixers();

struct Sent {
  ZTKResult result;
  Reach reach;
};

// Calls a function of the library that sends, and looks at the mixers before
// and after it: reached is who could be opened both times.
template <typename Function>
Sent SendAndLook(Function send) {
  const Reach before = LookAtMixers();
  const ZTKResult result = send();
  Reach reach = LookAtMixers();
  if (before.reached.size() < reach.reached.size()) reach = before;
  return {.result = result, .reach = reach};
}

// Adds who was reached, a warning for each mixer that was not, and the problem
// when none was. `outcome` says, as a part of a sentence, what became of the
// setting then.
void AddReach(const Reach &reach, const std::string &outcome, Report *report);

// The end of a request in words: "no answer", "refused by the mixer", ...
std::string Described(usb::Code code);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_ZTK_MIXERS_H_
