// SPDX-License-Identifier: MIT
//
// The settings, as data: list, get, set and apply are made from it.
#ifndef ZTK_TOOLS_ZTK_MODEL_SETTINGS_H_
#define ZTK_TOOLS_ZTK_MODEL_SETTINGS_H_

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "notify/announced_settings.h"
#include "ztk/model/choice.h"
#include "ztk/report.h"

namespace ztk::program {

struct Family {
  const char *name;     // the word on the command line
  const char *title;    // what it is called
  const char *place;    // what one channel of it is called
  const char *idea;     // half a sentence for the help
  const char *example;  // CHOICE, and N before it where there are channels

  // The model that it belongs to: who is served, and whose file remembers it.
  std::uint32_t product;
  ZTKTextRef model;
  // In that file; with channels, a format that takes the channel from 0.
  ZTKTextRef key;
  // How its changes are announced.
  const notify::AnnouncedSetting *notice;

  // What a mixer is sent for a choice: where to, and the value.
  std::uint16_t writeRegister;
  std::uint16_t (*deviceValue)(std::uint32_t channel, std::uint32_t index);
  // How much of its selectors is read after a change, in bytes; 0 for nothing.
  std::uint16_t selectorLength;

  std::uint32_t channels;  // 0 where the setting has none
  // Indexes behind the choices that the library sets and sends again although
  // they are no choices.
  std::uint32_t placeholders;

  // The library's functions; those of a family without channels leave the
  // channel out.
  ZTKResult (*count)(std::uint32_t product, std::uint32_t channel,
                     std::uint32_t *outCount);
  ZTKResult (*text)(std::uint32_t product, std::uint32_t channel,
                    std::uint32_t index, ZTKTextRef *outText);
  ZTKResult (*set)(std::uint32_t product, std::uint32_t channel,
                   std::uint32_t index);
  ZTKResult (*current)(std::uint32_t product, std::uint32_t channel,
                       std::uint32_t *outIndex);
  // The library sends only such indexes again; 0 where the choices decide.
  std::uint32_t sentAgainBelow;
  ZTKResult (*sendAgain)(std::uint32_t product, std::uint32_t channel);
};

extern const Family kInput;
extern const Family kOutput;
extern const Family kBoost;
extern const Family kMidi;

std::span<const Family *const> Families();

// The channels to walk: one, 0, where the setting has none.
std::uint32_t ChannelsToWalk(const Family &family);

std::string ModelName(const Family &family);

// "USB output audio belongs to the VRM-B5."
std::string Belonging(const Family &family);

// The same, and which choices are not sent again, where some are not.
std::string Note(const Family &family);

// Whether the library would send this index again.
bool IsSentAgain(const Family &family, std::uint32_t index);

// What sets it: "ztk input set 2 3".
std::string SetCommand(const Family &family, std::uint32_t channel,
                       std::uint32_t index);

// "USB output audio of the VRM-B5: where playback goes"
std::string Summary(const Family &family);

// "USB input 2", "Boost level"; channels count from 0 here.
std::string PlaceName(const Family &family, std::uint32_t channel);

// What a channel offers, without placeholders. Throws a Failure where the
// library does not serve the product.
std::vector<Choice> ChoicesOf(const Family &family, std::uint32_t product,
                              std::uint32_t channel);

// The choice with the library's index; none where there is no such choice.
std::optional<Choice> ChoiceAt(const Family &family, std::uint32_t channel,
                               std::uint32_t index);

// "3 Post CH2 Fader", or "77, which is not a choice".
std::string DescribedValue(const Family &family, std::uint32_t channel,
                           std::uint32_t index);

// Adds "channel" (null where there are none), "number" and "text" (null for no
// choice) and "value", the library's index.
void AddValueFields(const Family &family, std::uint32_t channel,
                    std::uint32_t index, Json *fields);

// The channel as people and programs count it, from 1.
Json ChannelField(const Family &family, std::uint32_t channel);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_SETTINGS_H_
