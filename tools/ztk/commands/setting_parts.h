// SPDX-License-Identifier: MIT
//
// What the commands of a setting share.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_PARTS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_PARTS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/commands/command_table.h"
#include "ztk/report/change_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

// The model that is meant: --product, or the setting's own.
std::uint32_t ProductFor(const Setting &setting, const Arguments &arguments);

// N, from 0; none when it was left out. Throws where it is not a channel.
std::optional<std::uint32_t> ChannelFor(const Setting &setting,
                                        const Arguments &arguments);

// The channels that are meant: N, or all.
std::vector<std::uint32_t> ChannelsFor(const Setting &setting,
                                       const Arguments &arguments);

// N where the setting has channels. Throws where it was left out.
std::uint32_t RequiredChannel(const Setting &setting,
                              const Arguments &arguments, const char *verb);

// "; see ztk input set --help"
std::string SeeHelp(const Setting &setting, const char *verb);

// The library answered that it does not accept `what`.
[[noreturn]] void ThrowRejected(const Setting &setting, std::uint32_t product,
                                const std::string &what);

// For a dry run: refuses a model that the library would refuse.
void CheckServed(const Setting &setting, std::uint32_t product,
                 const std::string &what);

// Setting and model, for JSON.
void AddSettingNames(const Setting &setting, std::uint32_t product,
                     Report *report);

// The sentences for something that is sent and never remembered.
DeliveryTexts NeverRemembered(const std::string &what,
                              const std::string &command);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_PARTS_H_
