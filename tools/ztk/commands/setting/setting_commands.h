// SPDX-License-Identifier: MIT
//
// The commands of a single setting. Each throws a Failure, and has sent
// nothing, when the arguments are invalid or the library rejects them.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_

#include "ztk/commands/command.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

Report ListChoices(const Setting &setting, const Arguments &arguments);
Report GetRemembered(const Setting &setting, const Arguments &arguments);
Report SetChoice(const Setting &setting, const Arguments &arguments);

// Only for USB output audio: the default is sent and announced, not remembered.
Report SendDefault(const Setting &setting, const Arguments &arguments);
// Only for USB input audio: the value is sent, neither announced nor
// remembered.
Report SendRaw(const Setting &setting, const Arguments &arguments);

// Send remembered values again, and nothing else: a setting without a
// remembered value is not sent, although the library would send its default.
Report ApplySetting(const Setting &setting, const Arguments &arguments);
Report ApplyAll(const Arguments &arguments);

// The choices of a channel, as `list` shows them.
void AddChoiceList(const Setting &setting, std::uint32_t product,
                   std::uint32_t channel, Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_COMMANDS_H_
