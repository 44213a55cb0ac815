// SPDX-License-Identifier: MIT
//
// The settings as data. The commands list, get, set and apply use this table.
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
  const char *title;    // its name in messages
  const char *place;    // the name of one channel in messages
  const char *idea;     // half a sentence for the help
  const char *example;  // CHOICE, and N before it where there are channels

  // The model that it belongs to, and in whose settings file it is stored.
  std::uint32_t product;
  ZTKTextRef model;
  // The key in that file; with channels, a format for the channel, counted from
  // 0.
  ZTKTextRef key;
  // How its changes are announced.
  const notify::AnnouncedSetting *notice;

  // The register and the value that a mixer receives for a choice.
  std::uint16_t writeRegister;
  std::uint16_t (*deviceValue)(std::uint32_t channel, std::uint32_t index);
  // The number of bytes that the library reads of the selectors after a change;
  // 0 when it reads nothing.
  std::uint16_t selectorLength;

  std::uint32_t channels;  // 0 when the setting has none
  // The number of indexes after the choices that the library accepts although
  // they are not choices.
  std::uint32_t placeholders;
  // The index that the library uses when nothing is remembered.
  std::uint32_t (*defaultIndex)(std::uint32_t channel);

  // The functions of the library; for a setting without channels they ignore
  // the channel.
  ZTKResult (*count)(std::uint32_t product, std::uint32_t channel,
                     std::uint32_t *outCount);
  ZTKResult (*text)(std::uint32_t product, std::uint32_t channel,
                    std::uint32_t index, ZTKTextRef *outText);
  ZTKResult (*set)(std::uint32_t product, std::uint32_t channel,
                   std::uint32_t index);
  ZTKResult (*current)(std::uint32_t product, std::uint32_t channel,
                       std::uint32_t *outIndex);
  // The library sends only smaller indexes again; 0 when it sends all choices
  // again.
  std::uint32_t sentAgainBelow;
  ZTKResult (*sendAgain)(std::uint32_t product, std::uint32_t channel);
};

extern const Setting kInput;
extern const Setting kOutput;
extern const Setting kBoost;
extern const Setting kMidi;

std::span<const Setting *const> AllSettings();

// The number of channels; 1 for a setting without channels.
std::uint32_t ChannelsToWalk(const Setting &setting);

// The channels, counted from 0. Contains only 0 for a setting without channels.
std::vector<std::uint32_t> AllChannels(const Setting &setting);

// "VRM-B5": the model that the setting belongs to.
std::string ModelName(const Setting &setting);

// The models that settings belong to, each once.
std::vector<std::string> ModelNames();

// "USB input 2", "Boost level"; channels count from 0 here.
std::string PlaceName(const Setting &setting, std::uint32_t channel);

// Whether the library would send this index again.
bool IsSentAgain(const Setting &setting, std::uint32_t index);

// Whether the setter of the library accepts this index: a choice or a
// placeholder. A settings file can contain any number.
bool CanBeSet(const Setting &setting, std::uint32_t channel,
              std::uint32_t index);

// The choices of a channel, without placeholders. Empty when the library does
// not serve the product.
std::vector<Choice> ChoicesOf(const Setting &setting, std::uint32_t product,
                              std::uint32_t channel);

// The choice with this index in the library; none when there is no such choice.
std::optional<Choice> ChoiceAt(const Setting &setting, std::uint32_t channel,
                               std::uint32_t index);

// The current choice of the library: the remembered value or a default. None
// for a product that can only be listed.
std::optional<std::uint32_t> CurrentIndex(const Setting &setting,
                                          std::uint32_t product,
                                          std::uint32_t channel);

// "Post CH2 Fader (3)", or "77, which is not a choice".
std::string DescribedValue(const Setting &setting, std::uint32_t channel,
                           std::uint32_t index);

// The channel and the value: "USB input 2: Post CH2 Fader (3)".
std::string NamedValue(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_SETTINGS_H_
