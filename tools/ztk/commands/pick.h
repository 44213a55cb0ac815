// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMANDS_PICK_H_
#define ZTK_TOOLS_ZTK_COMMANDS_PICK_H_

#include <string>
#include <vector>

#include "ztk/model/choice.h"
#include "ztk/report.h"

namespace ztk::program {

// Whether somebody sits there who can be asked.
bool CanPick();

// Shows the list, whole lines of text, and asks for a choice of `place` until
// one is named. Throws a Failure where the answer is empty.
Choice Pick(const std::string &place, const std::string &list,
            const std::vector<Choice> &choices);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_PICK_H_
