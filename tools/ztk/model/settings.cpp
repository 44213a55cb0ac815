// SPDX-License-Identifier: MIT
#include "ztk/model/settings.h"

#include "api/tables.h"
#include "usb/USB.h"
#include "ztk/model/products.h"
#include "ztk/system/text.h"

namespace ztk::program {

const Family kInput{
    .name = "input",
    .title = "USB input audio",
    .place = "USB input",
    .idea = "what is recorded",
    .example = "2 \"post ch2 fader\"",
    .product = 10,
    .model = ZTK_TEXT("VRM-D6"),
    .key = ZTK_TEXT("Output%d"),
    .notice = &notify::kInputAudio,
    .writeRegister = usb::kMixerOutputRegister,
    .deviceValue =
        [](std::uint32_t channel, std::uint32_t index) {
          return _convTable_PC_INPUT[channel * 8 + index];
        },
    .selectorLength = 5,
    .channels = 5,
    .placeholders = 1,
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

const Family kOutput{.name = "output",
                     .title = "USB output audio",
                     .place = "USB output",
                     .idea = "where playback goes",
                     .example = "2 aux",
                     .product = 8,
                     .model = ZTK_TEXT("VRM-B5"),
                     .key = ZTK_TEXT("Input%d"),
                     .notice = &notify::kOutputAudio,
                     .writeRegister = usb::kMixerInputRegister,
                     .deviceValue =
                         [](std::uint32_t channel, std::uint32_t index) {
                           return _convTableOut_B5[channel * 3 + index];
                         },
                     .selectorLength = 4,
                     .channels = 3,
                     .placeholders = 0,
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

const Family kBoost{
    .name = "boost",
    .title = "Boost level",
    .place = "Boost level",
    .idea = "the USB output level",
    .example = "\"-10 dB\"",
    .product = 10,
    .model = ZTK_TEXT("VRM-D6"),
    .key = ZTK_TEXT("MaxLevel"),
    .notice = &notify::kBoostLevel,
    .writeRegister = usb::kUsbOutputLevelRegister,
    .deviceValue =
        [](std::uint32_t /*channel*/, std::uint32_t index) {
          return static_cast<std::uint16_t>(_convDbTable[index] << 8);
        },
    .selectorLength = 0,
    .channels = 0,
    .placeholders = 0,
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

const Family kMidi{
    .name = "midi",
    .title = "MIDI channel",
    .place = "MIDI channel",
    .idea = "what its controls send on",
    .example = "\"ch 3\"",
    .product = 1,
    .model = ZTK_TEXT("VRM-K2"),
    .key = ZTK_TEXT("MidiChannel"),
    .notice = &notify::kMidiChannel,
    .writeRegister = usb::kMidiChannelRegister,
    .deviceValue =
        [](std::uint32_t /*channel*/, std::uint32_t index) {
          return static_cast<std::uint16_t>(index << 8);
        },
    .selectorLength = 0,
    .channels = 0,
    .placeholders = 0,
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
    // Deliberate: the library sends no MIDI channel above the fourth again.
    .sentAgainBelow = 4,
    .sendAgain =
        [](std::uint32_t product, std::uint32_t /*channel*/) {
          return ZTK_SetCurrentMidiChannelIndex(product);
        }};

namespace {

// In the order in which people are told of them.
constexpr const Family *kFamilies[] = {&kInput, &kOutput, &kBoost, &kMidi};

}  // namespace

std::span<const Family *const> Families() { return kFamilies; }

std::uint32_t ChannelsToWalk(const Family &family) {
  return family.channels == 0 ? 1 : family.channels;
}

std::string ModelName(const Family &family) { return Utf8(family.model); }

std::string Belonging(const Family &family) {
  return std::string(family.title) + " belongs to the " + ModelName(family) +
         ".";
}

std::string Note(const Family &family) {
  std::string note = Belonging(family);
  if (family.sentAgainBelow != 0) {
    note += " Of its choices, apply sends 1 to " +
            std::to_string(family.sentAgainBelow) +
            "\nagain, and no other: set another one once more instead.";
  }
  return note;
}

bool IsSentAgain(const Family &family, std::uint32_t index) {
  return family.sentAgainBelow == 0 || index < family.sentAgainBelow;
}

std::string SetCommand(const Family &family, std::uint32_t channel,
                       std::uint32_t index) {
  std::string command = std::string("ztk ") + family.name + " set ";
  if (family.channels != 0) command += std::to_string(channel + 1) + " ";
  return command + std::to_string(index + 1);
}

std::string Summary(const Family &family) {
  return std::string(family.title) + " of the " + ModelName(family) + ": " +
         family.idea;
}

std::string PlaceName(const Family &family, std::uint32_t channel) {
  if (family.channels == 0) return family.place;
  return std::string(family.place) + " " + std::to_string(channel + 1);
}

std::vector<Choice> ChoicesOf(const Family &family, std::uint32_t product,
                              std::uint32_t channel) {
  std::uint32_t count = 0;
  if (family.count(product, channel, &count) != ZTK_SUCCESS) {
    throw Failure(ExitCode::Rejected,
                  "the " + ProductName(product) + " is not served: " +
                      Belonging(family) + " Leave --product out");
  }
  std::vector<Choice> choices;
  for (std::uint32_t index = 0; index < count; ++index) {
    ZTKTextRef text = nullptr;
    family.text(product, channel, index, &text);
    choices.push_back({.number = index + 1, .text = Utf8(text)});
  }
  return choices;
}

std::optional<Choice> ChoiceAt(const Family &family, std::uint32_t channel,
                               std::uint32_t index) {
  const std::vector<Choice> choices =
      ChoicesOf(family, family.product, channel);
  if (index >= choices.size()) return std::nullopt;
  return choices[index];
}

std::string DescribedValue(const Family &family, std::uint32_t channel,
                           std::uint32_t index) {
  const std::optional<Choice> choice = ChoiceAt(family, channel, index);
  if (choice) return Described(*choice);
  return std::to_string(static_cast<std::int32_t>(index)) +
         ", which is not a choice";
}

void AddValueFields(const Family &family, std::uint32_t channel,
                    std::uint32_t index, Json *fields) {
  const std::optional<Choice> choice = ChoiceAt(family, channel, index);
  (*fields)["channel"] = ChannelField(family, channel);
  (*fields)["number"] = choice ? Json(choice->number) : Json();
  (*fields)["text"] = choice ? Json(choice->text) : Json();
  (*fields)["value"] = static_cast<std::int32_t>(index);
}

Json ChannelField(const Family &family, std::uint32_t channel) {
  return family.channels == 0 ? Json() : Json(channel + 1);
}

}  // namespace ztk::program
