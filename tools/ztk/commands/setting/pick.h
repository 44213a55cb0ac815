// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_PICK_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_PICK_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/choice.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// Whether both the standard input and the standard output are a terminal, so
// that ztk can ask the user.
bool CanPick();

// Shows the list (whole lines of text) and asks the user which of the choices
// the channel `place` is to have ("USB input 2"). Asks again until the answer
// names a choice. Throws a Failure if the answer is empty or the input ends.
Choice Pick(const std::string &place, const std::string &list,
            const std::vector<Choice> &choices);

// Shows the channels of the setting, numbered from 1, and asks the user for one
// of them in the same way. Returns the channel counted from 0.
std::uint32_t PickChannel(const Setting &setting);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_PICK_H_
