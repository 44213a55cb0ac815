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
#include "ztk/model/mixers.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// The model that is meant: --product, or the family's own.
std::uint32_t ProductFor(const Family &family, const Arguments &arguments);

// N, from 0; none when it was left out. Throws where it is not a channel.
std::optional<std::uint32_t> ChannelFor(const Family &family,
                                        const Arguments &arguments);

// The channels that are meant: N, or all.
std::vector<std::uint32_t> ChannelsFor(const Family &family,
                                       const Arguments &arguments);

// N where the setting has channels. Throws where it was left out.
std::uint32_t RequiredChannel(const Family &family, const Arguments &arguments,
                              const char *verb);

// "; see ztk input set --help"
std::string SeeHelp(const Family &family, const char *verb);

// The library answered that it does not accept `what`.
[[noreturn]] void ThrowRejected(const Family &family, std::uint32_t product,
                                const std::string &what);

// For a dry run: refuses a model that the library would refuse.
void CheckServed(const Family &family, std::uint32_t product,
                 const std::string &what);

// Setting and model, for JSON.
void AddFamilyFields(const Family &family, std::uint32_t product,
                     Report *report);

// What the library holds to be the current choice: the remembered value or a
// default. None for a product that can only be listed.
std::optional<std::uint32_t> Current(const Family &family,
                                     std::uint32_t product,
                                     std::uint32_t channel);

// The sentences for something that is sent and never remembered.
Outcome NeverRemembered(const std::string &what, const std::string &command);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_PARTS_H_
