// SPDX-License-Identifier: MIT
//
// What the commands of a setting share.
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

// A channel as people type it, "2" or "CH2", from 0; none when there is no such
// channel.
std::optional<std::uint32_t> ParseChannel(const Setting &setting,
                                          const std::string &word);

// The channel that was given, from 0; none when it was left out. Throws when
// there is no such channel.
std::optional<std::uint32_t> ChannelFor(const Setting &setting,
                                        const Arguments &arguments);

// The channel that was given, or all.
std::vector<std::uint32_t> ChannelsFor(const Setting &setting,
                                       const Arguments &arguments);

// The channel that was given; 0 for a setting without channels. When it was
// left out, asks for it in a terminal, and throws elsewhere.
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

// Adds a warning where the settings file cannot be read. Answers the file and
// the reason, or nothing.
std::string WarnOfUnreadable(const Setting &setting, Report *report);

// Adds a warning where something was sent, and every attached mixer calls
// itself another model than the one that the setting belongs to.
void WarnOfOtherModel(const Setting &setting, const Reach &reach,
                      Report *report);

// The sentences for what is sent and never remembered.
DeliveryTexts NeverRemembered(const std::string &command);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_PARTS_H_
