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

namespace ztk::model {

struct Setting {
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
  // What the library takes where nothing is remembered.
  std::uint32_t (*defaultIndex)(std::uint32_t channel);

  // The library's functions; those of a setting without channels leave the
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

extern const Setting kInput;
extern const Setting kOutput;
extern const Setting kBoost;
extern const Setting kMidi;

std::span<const Setting *const> AllSettings();

// The channels to walk: one, 0, where the setting has none.
std::uint32_t ChannelsToWalk(const Setting &setting);

// The same as a list, from 0.
std::vector<std::uint32_t> AllChannels(const Setting &setting);

// "VRM-B5": the model that the setting belongs to.
std::string ModelName(const Setting &setting);

// The models that settings belong to, each once.
std::vector<std::string> ModelNames();

// "USB input 2", "Boost level"; channels count from 0 here.
std::string PlaceName(const Setting &setting, std::uint32_t channel);

// Whether the library would send this index again.
bool IsSentAgain(const Setting &setting, std::uint32_t index);

// Whether the library's setter takes this index: a choice or a placeholder. The
// number in a settings file may be any.
bool CanBeSet(const Setting &setting, std::uint32_t channel,
              std::uint32_t index);

// The choices of a channel, without placeholders. Empty where the library does
// not serve the product.
std::vector<Choice> ChoicesOf(const Setting &setting, std::uint32_t product,
                              std::uint32_t channel);

// The choice with the library's index; none where there is no such choice.
std::optional<Choice> ChoiceAt(const Setting &setting, std::uint32_t channel,
                               std::uint32_t index);

// What the library takes as the current choice: the remembered value or a
// default. None for a product that can only be listed.
std::optional<std::uint32_t> CurrentIndex(const Setting &setting,
                                          std::uint32_t product,
                                          std::uint32_t channel);

// "3 Post CH2 Fader", or "77, which is not a choice".
std::string DescribedValue(const Setting &setting, std::uint32_t channel,
                           std::uint32_t index);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_SETTINGS_H_
