// SPDX-License-Identifier: MIT
#include "ztk/model/settings.h"

#include <algorithm>

#include "api/boost_level.h"
#include "api/input_audio.h"
#include "api/midi.h"
#include "api/output_audio.h"
#include "ztk/system/library_text.h"

namespace ztk::model {

const Setting kInput{
    .name = "input",
    .title = "USB input audio",
    .place = "USB input",
    .idea = "what is recorded",
    .example = "2 \"post ch2 fader\"",
    .product = input_audio::kProduct,
    .model = input_audio::kModel,
    .key = input_audio::kKeyFormat,
    .notice = &notify::kInputAudio,
    .writeRegister = input_audio::kWriteRegister,
    .deviceValue = input_audio::DeviceValue,
    .selectorLength = input_audio::kSelectorInfoLength,
    .channels = input_audio::kChannels,
    .placeholders =
        input_audio::kRowBounds.setBelow - input_audio::kRowBounds.count,
    .defaultIndex =
        [](std::uint32_t /*channel*/) {
          return std::uint32_t{input_audio::kDefaultIndex};
        },
    .count = ZTK_GetNumOfInputAudioIndex,
    .text =
        [](std::uint32_t product, std::uint32_t channel, std::uint32_t index,
           ZTKTextRef *outText) {
          return ZTK_GetUSBInputAudioText(
              product, static_cast<std::int32_t>(channel), index, 0, outText);
        },
    .set = ZTK_SetUSBInputAudio,
    .current =
        [](std::uint32_t product, std::uint32_t channel,
           std::uint32_t *outIndex) {
          return ZTK_GetCurrentUSBInputAudioIndex(
              product, static_cast<std::int32_t>(channel), outIndex);
        },
    .sentAgainBelow = 0,
    .sendAgain = ZTK_SetCurrentUSBInputAudio};

const Setting kOutput{.name = "output",
                      .title = "USB output audio",
                      .place = "USB output",
                      .idea = "where playback goes",
                      .example = "2 aux",
                      .product = output_audio::kProduct,
                      .model = output_audio::kModel,
                      .key = output_audio::kKeyFormat,
                      .notice = &notify::kOutputAudio,
                      .writeRegister = output_audio::kWriteRegister,
                      .deviceValue = output_audio::DeviceValue,
                      .selectorLength = output_audio::kSelectorInfoLength,
                      .channels = output_audio::kChannels,
                      .placeholders = 0,
                      .defaultIndex = output_audio::DefaultIndex,
                      .count = ZTK_GetNumOfOutputAudioIndex,
                      .text =
                          [](std::uint32_t product, std::uint32_t channel,
                             std::uint32_t index, ZTKTextRef *outText) {
                            return ZTK_GetUSBOutputAudioText(product, channel,
                                                             index, 0, outText);
                          },
                      .set = ZTK_SetUSBOutputAudio,
                      .current = ZTK_GetCurrentUSBOutputAudioIndex,
                      .sentAgainBelow = 0,
                      .sendAgain = ZTK_SetCurrentUSBOutputAudio};

const Setting kBoost{
    .name = "boost",
    .title = "Boost level",
    .place = "Boost level",
    .idea = "the USB output level",
    .example = "\"-10 dB\"",
    .product = boost_level::kProduct,
    .model = boost_level::kModel,
    .key = boost_level::kKey,
    .notice = &notify::kBoostLevel,
    .writeRegister = boost_level::kWriteRegister,
    .deviceValue =
        [](std::uint32_t /*channel*/, std::uint32_t index) {
          return boost_level::DeviceValue(index);
        },
    .selectorLength = 0,
    .channels = 0,
    .placeholders = 0,
    .defaultIndex =
        [](std::uint32_t /*channel*/) {
          return std::uint32_t{boost_level::kDefaultIndex};
        },
    .count =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t *outCount) {
          return ZTK_GetNumOfBoostLevelIndex(product, outCount);
        },
    .text =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t index, ZTKTextRef *outText) {
          return ZTK_GetBoostLevelText(product, index, 0, outText);
        },
    .set =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t index) {
          return ZTK_SetBoostLevelIndex(product, index);
        },
    .current =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t *outIndex) {
          return ZTK_GetCurrentBoostLevelIndex(product, outIndex);
        },
    .sentAgainBelow = 0,
    .sendAgain =
        [](std::uint32_t product, std::uint32_t /*channel*/) {
          return ZTK_SetCurrentBoostLevelIndex(product);
        }};

const Setting kMidi{
    .name = "midi",
    .title = "MIDI channel",
    .place = "MIDI channel",
    .idea = "the channel that its controls use",
    .example = "\"ch 3\"",
    .product = midi::kProduct,
    .model = midi::kModel,
    .key = midi::kKey,
    .notice = &notify::kMidiChannel,
    .writeRegister = midi::kWriteRegister,
    .deviceValue = [](std::uint32_t /*channel*/,
                      std::uint32_t index) { return midi::DeviceValue(index); },
    .selectorLength = 0,
    .channels = 0,
    .placeholders = 0,
    .defaultIndex =
        [](std::uint32_t /*channel*/) {
          return std::uint32_t{midi::kDefaultIndex};
        },
    .count =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t *outCount) {
          return ZTK_GetNumOfMidiChannelIndex(product, outCount);
        },
    .text =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t index, ZTKTextRef *outText) {
          return ZTK_GetMidiChannelText(product, index, 0, outText);
        },
    .set =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t index) {
          return ZTK_SetMidiChannelIndex(product, index);
        },
    .current =
        [](std::uint32_t product, std::uint32_t /*channel*/,
           std::uint32_t *outIndex) {
          return ZTK_GetCurrentMidiChannelIndex(product, outIndex);
        },
    .sentAgainBelow = midi::kResendBelow,
    .sendAgain =
        [](std::uint32_t product, std::uint32_t /*channel*/) {
          return ZTK_SetCurrentMidiChannelIndex(product);
        }};

namespace {

// In the order in which they are listed for users.
constexpr const Setting *kSettings[] = {&kInput, &kOutput, &kBoost, &kMidi};

}  // namespace

std::span<const Setting *const> AllSettings() { return kSettings; }

std::uint32_t ChannelsToWalk(const Setting &setting) {
  return setting.channels == 0 ? 1 : setting.channels;
}

std::vector<std::uint32_t> AllChannels(const Setting &setting) {
  std::vector<std::uint32_t> all;
  for (std::uint32_t channel = 0; channel < ChannelsToWalk(setting);
       ++channel) {
    all.push_back(channel);
  }
  return all;
}

std::string ModelName(const Setting &setting) { return Utf8(setting.model); }

std::vector<std::string> ModelNames() {
  std::vector<std::string> names;
  for (const Setting *setting : AllSettings()) {
    const std::string name = ModelName(*setting);
    if (std::find(names.begin(), names.end(), name) == names.end()) {
      names.push_back(name);
    }
  }
  return names;
}

bool IsSentAgain(const Setting &setting, std::uint32_t index) {
  return setting.sentAgainBelow == 0 || index < setting.sentAgainBelow;
}

bool CanBeSet(const Setting &setting, std::uint32_t channel,
              std::uint32_t index) {
  const std::size_t choices =
      ChoicesOf(setting, setting.product, channel).size();
  return index < choices + setting.placeholders;
}

std::string PlaceName(const Setting &setting, std::uint32_t channel) {
  if (setting.channels == 0) return setting.place;
  return std::string(setting.place) + " " + std::to_string(channel + 1);
}

std::vector<Choice> ChoicesOf(const Setting &setting, std::uint32_t product,
                              std::uint32_t channel) {
  std::uint32_t count = 0;
  if (setting.count(product, channel, &count) != ZTK_SUCCESS) return {};
  std::vector<Choice> choices;
  for (std::uint32_t index = 0; index < count; ++index) {
    ZTKTextRef text = nullptr;
    setting.text(product, channel, index, &text);
    choices.push_back({.number = index + 1, .text = Utf8(text)});
  }
  return choices;
}

std::optional<Choice> ChoiceAt(const Setting &setting, std::uint32_t channel,
                               std::uint32_t index) {
  const std::vector<Choice> choices =
      ChoicesOf(setting, setting.product, channel);
  if (index >= choices.size()) return std::nullopt;
  return choices[index];
}

std::optional<std::uint32_t> CurrentIndex(const Setting &setting,
                                          std::uint32_t product,
                                          std::uint32_t channel) {
  std::uint32_t index = 0;
  if (setting.current(product, channel, &index) != ZTK_SUCCESS) {
    return std::nullopt;
  }
  return index;
}

std::string DescribedValue(const Setting &setting, std::uint32_t channel,
                           std::uint32_t index) {
  const std::optional<Choice> choice = ChoiceAt(setting, channel, index);
  if (choice) return Described(*choice);
  return std::to_string(static_cast<std::int32_t>(index)) +
         ", which is not a choice";
}

std::string NamedValue(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index) {
  return PlaceName(setting, channel) + ": " +
         DescribedValue(setting, channel, index);
}

}  // namespace ztk::model
