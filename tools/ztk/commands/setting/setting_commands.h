// SPDX-License-Identifier: MIT
//
// What can be done with a setting. Each throws a Failure when the words are
// wrong or the library refuses; nothing was sent then.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_

#include "ztk/commands/command.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

Report ListChoices(const Setting &setting, const Arguments &arguments);
Report GetRemembered(const Setting &setting, const Arguments &arguments);
Report SetChoice(const Setting &setting, const Arguments &arguments);

// Of USB output audio only: sent and announced, not remembered.
Report SendDefault(const Setting &setting, const Arguments &arguments);
// Of USB input audio only: sent, neither announced nor remembered.
Report SendRaw(const Setting &setting, const Arguments &arguments);

// Send what is remembered again, and nothing else: a setting without a value
// of its own is left alone, where the library would send its default.
Report ApplySetting(const Setting &setting, const Arguments &arguments);
Report ApplyAll(const Arguments &arguments);

// The choices of a channel, as `list` shows them.
void AddChoiceList(const Setting &setting, std::uint32_t product,
                   std::uint32_t channel, Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_
