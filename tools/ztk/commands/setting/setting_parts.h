// SPDX-License-Identifier: MIT
//
// Functions that the commands of a setting share.
#ifndef ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_PARTS_H_
#define ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_PARTS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/commands/command.h"
#include "ztk/report/change_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

// The model of --product, or the one that the setting belongs to.
std::uint32_t ProductFor(const Setting &setting, const Arguments &arguments);

// Reads a channel as people type it, "2" or "CH2", and returns its number
// counted from 0; none when there is no such channel.
std::optional<std::uint32_t> ParseChannel(const Setting &setting,
                                          const std::string &word);

// The given channel, counted from 0; none when it was left out. Throws when
// there is no such channel.
std::optional<std::uint32_t> ChannelFor(const Setting &setting,
                                        const Arguments &arguments);

// The given channel, or all channels.
std::vector<std::uint32_t> ChannelsFor(const Setting &setting,
                                       const Arguments &arguments);

// The given channel; 0 for a setting without channels. When it was left out,
// asks for it in a terminal, and throws where there is no terminal.
std::uint32_t RequiredChannel(const Setting &setting,
                              const Arguments &arguments, const char *verb);

// "; see ztk input set --help"
std::string SeeHelp(const Setting &setting, const char *verb);

// The library answered that it does not accept `what`.
[[noreturn]] void ThrowRejected(const Setting &setting, std::uint32_t product,
                                const std::string &what);

// For a dry run: throws for a model that the library would reject.
void CheckServed(const Setting &setting, std::uint32_t product,
                 const std::string &what);

// Adds the names of setting and model to the JSON fields.
void AddSettingNames(const Setting &setting, std::uint32_t product,
                     Report *report);

// Adds a warning where the settings file cannot be read. Returns the file and
// the reason; empty when it can be read.
std::string WarnOfUnreadable(const Setting &setting, Report *report);

// Throws where the settings file cannot be read: what it holds cannot be sent
// or forgotten. `what` begins the message.
void RequireReadable(const Setting &setting, const std::string &what);

// Adds a warning where something was sent, and every attached mixer calls
// itself another model than the one that the setting belongs to.
void WarnOfOtherModel(const Setting &setting, const Reach &reach,
                      Report *report);

// The sentences for what is sent and never remembered.
DeliveryTexts NeverRemembered(const std::string &command);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_PARTS_H_
