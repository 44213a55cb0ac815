// SPDX-License-Identifier: MIT
//
// Describes settings in sentences for people and in fields for programs.
#ifndef ZTK_TOOLS_ZTK_REPORT_SETTING_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_SETTING_REPORT_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// "USB output audio is a setting of the VRM-B5."
std::string Belonging(const Setting &setting);

// A sentence about the choices that are not sent again; empty when all are.
std::string LimitSentence(const Setting &setting);

// Belonging() and LimitSentence() together.
std::string Note(const Setting &setting);

// "apply can only re-send channels 1 to 4; for 5 to 16 use set again"; empty
// when apply sends every choice.
std::string ResendLimit(const Setting &setting);

// "USB output audio of the VRM-B5: where playback goes"
std::string Summary(const Setting &setting);

// The command that sets a choice: "ztk input set 2 3".
std::string SetCommand(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index);

// The command that sends a remembered value and the others of its model again:
// "ztk apply". If apply does not send this value, the command that sets it
// again.
std::string ApplyCommand(const Setting &setting, std::uint32_t channel,
                         std::uint32_t index);

// "ztk apply; ztk midi set 7": each of the commands once. "ztk apply --all"
// takes the place of the commands that apply the choices of several models.
std::string Joined(const std::vector<std::string> &commands);

// "; nearest: MIC (6)" for words that name no choice; empty if no choice is
// similar.
std::string NearestChoice(const std::string &words,
                          const std::vector<Choice> &choices);

// The choices of a channel. Throws a Failure where the library does not serve
// the product.
std::vector<Choice> ServedChoices(const Setting &setting, std::uint32_t product,
                                  std::uint32_t channel);

// The number of the model that follows --product. If there is no such model,
// throws a Failure that lists the offered models, or all if none are given.
std::uint32_t ParseProduct(const std::string &word,
                           const std::vector<std::string> &offered = {});

// Adds "channel" (null for a setting without channels), "number" and "text"
// (both null if the value is not a choice) and "value", the index in the
// library.
void AddValueFields(const Setting &setting, std::uint32_t channel,
                    std::uint32_t index, Json *fields);

// Returns "setting" and "model", and the fields that AddValueFields() adds.
Json ValueFields(const Setting &setting, std::uint32_t channel,
                 std::uint32_t index);

// The channel as people and programs count it, from 1.
Json ChannelField(const Setting &setting, std::uint32_t channel);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_SETTING_REPORT_H_
