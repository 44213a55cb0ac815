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

// Returns the product id given with --product, or the one of the model that the
// setting belongs to.
std::uint32_t ProductFor(const Setting &setting, const Arguments &arguments);

// Parses a channel such as "2", "CH2", "usb 2" or "USB input 2". Returns its
// index, counted from 0, or none if there is no such channel.
std::optional<std::uint32_t> ParseChannel(const Setting &setting,
                                          const std::string &word);

// "; nearest: 3; accepted: 1 to 3", for a word that is no channel.
std::string NearestChannel(const Setting &setting, const std::string &word);

// The given channel, counted from 0; none when it was left out. Throws when
// there is no such channel.
std::optional<std::uint32_t> ChannelFor(const Setting &setting,
                                        const Arguments &arguments);

// The given channel, or all channels.
std::vector<std::uint32_t> ChannelsFor(const Setting &setting,
                                       const Arguments &arguments);

// Returns the given channel; 0 for a setting without channels. If no channel
// was given, asks the user; throws if that is not possible, because there is no
// terminal or because of --json.
std::uint32_t RequiredChannel(const Setting &setting,
                              const Arguments &arguments, const char *verb);

// A hint for the end of an error message. `verb` is the command: "set" makes
// "; see ztk input set --help".
std::string SeeHelp(const Setting &setting, const char *verb);

// Throws the error for a value, `what`, that the library rejects for the
// product.
[[noreturn]] void ThrowRejected(const Setting &setting, std::uint32_t product,
                                const std::string &what);

// For a dry run: throws if the library would reject the product.
void CheckProductAccepted(const Setting &setting, std::uint32_t product,
                          const std::string &what);

// Adds the setting, its model and the product id to the JSON fields.
void AddSettingNames(const Setting &setting, std::uint32_t product,
                     Report *report);

// Adds a warning if the settings file cannot be read. Returns the file and the
// reason; empty if it can be read.
std::string WarnOfUnreadable(const Setting &setting, Report *report);

// Throws if the settings file cannot be read, because its values can then be
// neither sent nor removed. `start` is the beginning of the message.
void RequireReadable(const Setting &setting, const std::string &start);

// Adds a warning if a value of a sister model is sent, but every attached mixer
// reports another model. `mixers` is the number of mixers that have accepted a
// value or, in a dry run, that can be opened.
void WarnOfOtherModel(const Setting &setting, std::size_t mixers,
                      Report *report);

// Call this after mixers have accepted a value that is not remembered: the
// choice with this index, or none if the value is not a choice. If another
// choice is remembered, records that the mixers do not have it any longer.
void RecordReplaced(const Setting &setting, std::uint32_t channel,
                    std::optional<std::uint32_t> index);

// The texts of the report about a value that is never remembered. `command` is
// what the user is told to run again, such as "ztk input raw".
DeliveryTexts TextsIfNeverRemembered(const std::string &command);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_SETTING_SETTING_PARTS_H_
