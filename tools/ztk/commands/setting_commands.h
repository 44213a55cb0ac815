// SPDX-License-Identifier: MIT
//
// What can be done with a setting. Each throws a Failure when the words are
// wrong or the library refuses; nothing was sent then.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_COMMANDS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_COMMANDS_H_

#include "ztk/commands/command_table.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

Report ListChoices(const Family &family, const Arguments &arguments);
Report GetRemembered(const Family &family, const Arguments &arguments);
Report SetChoice(const Family &family, const Arguments &arguments);

// Of USB output audio only: sent and announced, not remembered.
Report SendDefault(const Family &family, const Arguments &arguments);
// Of USB input audio only: sent, neither announced nor remembered.
Report SendRaw(const Family &family, const Arguments &arguments);

// Send what is remembered again, and nothing else: a setting without a value
// of its own is left alone, where the library would send its default.
Report ApplyFamily(const Family &family, const Arguments &arguments);
Report ApplyAll(const Arguments &arguments);

// The model that is meant: --product, or the family's own.
std::uint32_t ProductFor(const Family &family, const Arguments &arguments);

// N, from 0; none when it was left out. Throws where it is not a channel.
std::optional<std::uint32_t> ChannelFor(const Family &family,
                                        const Arguments &arguments);

// The channels that are meant: N, or all.
std::vector<std::uint32_t> ChannelsFor(const Family &family,
                                       const Arguments &arguments);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_COMMANDS_H_
