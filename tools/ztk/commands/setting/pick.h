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

// Whether standard input and output are a terminal, so that ztk can ask.
bool CanPick();

// Shows the list (whole lines of text) and asks for a choice of `place` until
// the answer names one. Throws a Failure when the answer is empty.
Choice Pick(const std::string &place, const std::string &list,
            const std::vector<Choice> &choices);

// The same for a channel, which counts from 0.
std::uint32_t PickChannel(const Setting &setting);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_PICK_H_
