// SPDX-License-Identifier: MIT
//
// The products, channels and indexes that each function of the public header
// accepts.
#ifndef ZTK_TESTS_API_PRODUCT_GATES_H_
#define ZTK_TESTS_API_PRODUCT_GATES_H_

#include <algorithm>
#include <cstdint>
#include <vector>

#include "ZTKFunc.h"

namespace ztk::test {

inline constexpr std::uint32_t kHighBit = 0x80000000;
inline constexpr std::uint32_t kAll = 0xFFFFFFFF;

// clang-format off
inline const std::uint32_t kIds[] = {
    0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 32, 0x7FFFFFFF, kHighBit, kAll};
inline const std::uint32_t kChannels[] = {
    0, 1, 2, 3, 4, 5, 6, 7, 8, 255, 256, 0x10000, 0x20000000, 0x7FFFFFFF,
    kHighBit, kHighBit + 1, kHighBit + 4, 0xFFFFFFFE, kAll};
inline const std::uint32_t kIndexes[] = {
    0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 14, 15, 16, 17, 99, 100, 101, 102,
    103, 255, 256, 0x10000, 0x7FFFFFFF, kHighBit, kHighBit + 1, kHighBit + 101,
    kAll};
// clang-format on

struct Arguments {
  std::uint32_t product;
  std::uint32_t channel;
  std::uint32_t index;
  std::uint32_t *number;  // an output, or null
  ZTKTextRef *text;       // an output, or null
};

// Both ends are included.
struct Range {
  std::uint32_t first;
  std::uint32_t last;
  bool Has(std::uint32_t number) const {
    return first <= number && number <= last;
  }
};
inline constexpr Range kAny{0, kAll};

struct Served {
  Range channels;
  Range indexes;
};

enum class Output { None, Number, Text, TextNeverNull };

struct Gate {
  const char *name;
  std::vector<std::uint32_t> products;
  std::vector<Served> served;
  Output output;
  ZTKResult (*call)(const Arguments &arguments);

  // A function without a channel has the range kAny.
  bool TakesChannel() const {
    return std::any_of(served.begin(), served.end(), [](const Served &range) {
      return range.channels.first != kAny.first ||
             range.channels.last != kAny.last;
    });
  }

  bool Accepts(const Arguments &a) const {
    const auto covers = [&a](const Served &range) {
      return range.channels.Has(a.channel) && range.indexes.Has(a.index);
    };
    return std::find(products.begin(), products.end(), a.product) !=
               products.end() &&
           std::any_of(served.begin(), served.end(), covers);
  }
};

inline const std::vector<std::uint32_t> kEveryProduct(std::begin(kIds),
                                                      std::end(kIds));
inline const std::vector<std::uint32_t> kSixProducts = {0, 1, 5, 6, 8, 10};

// For functions without a channel and an index.
inline const std::vector<Served> kNoBounds = {{kAny, kAny}};

inline std::int32_t Signed(std::uint32_t channel) {
  return static_cast<std::int32_t>(channel);
}

// Columns: name, products, channels and indexes, output, call.
// clang-format off
inline const Gate kGates[] = {
    // Product and connection.
    {"GetProductId", kEveryProduct, kNoBounds, Output::Number,
     [](const Arguments &a) { return ZTK_GetProductId(ZTK_TEXT("VRM-D6"),
                                                          a.number); }},
    {"GetProductId, no name", {}, {}, Output::Number,
     [](const Arguments &a) { return ZTK_GetProductId(nullptr, a.number); }},
    {"IsUSBConnection", kEveryProduct, kNoBounds, Output::None,
     [](const Arguments &a) { return ZTK_IsUSBConnection(a.product); }},

    // Version texts.
    {"GetPkgVersionText", {10}, kNoBounds, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetPkgVersionText(a.product, a.text);
     }},
    {"GetDriverVersionText", {10}, kNoBounds, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetDriverVersionText(a.product, a.text);
     }},
    {"GetUtilityVersionText", {10}, kNoBounds, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetUtilityVersionText(a.product, a.text);
     }},
    {"GetLibraryVersionText", {10}, kNoBounds, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetLibraryVersionText(a.product, a.text);
     }},

    // USB input audio.
    {"GetNumOfInputAudioIndex", {10}, {{{0, 4}, kAny}}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetNumOfInputAudioIndex(a.product, a.channel, a.number);
     }},
    {"GetUSBInputAudioText", {10}, {{{0, 3}, {0, 8}}, {{4, 4}, {0, 9}}},
     Output::Text,
     [](const Arguments &a) {
       return ZTK_GetUSBInputAudioText(a.product, Signed(a.channel), a.index,
                                       7, a.text);
     }},
    {"SetUSBInputAudio", {10}, {{{0, 3}, {0, 7}}, {{4, 4}, {0, 8}}},
     Output::None,
     [](const Arguments &a) {
       return ZTK_SetUSBInputAudio(a.product, a.channel, a.index);
     }},
    {"SetUSBInputAudioDirect, source", {10}, {{{0, 4}, {0, 15}}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetUSBInputAudioDirect(a.product, a.channel, 0, a.index);
     }},
    {"SetUSBInputAudioDirect, high", {10}, {{{0, 4}, kAny}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetUSBInputAudioDirect(a.product, a.channel, a.index, 15);
     }},
    {"GetCurrentUSBInputAudioIndex", {10}, {{{0, 5}, kAny}}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetCurrentUSBInputAudioIndex(a.product, Signed(a.channel),
                                               a.number);
     }},
    {"SetCurrentUSBInputAudio", {10}, {{{0, 5}, kAny}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetCurrentUSBInputAudio(a.product, a.channel);
     }},

    // The output is not tested for null. The language is tested only after the
    // request to the mixer, so it is not in this table.
    {"GetWarningTextForSetUSBAudioInput", {10}, {{{0, 3}, {101, 101}}},
     Output::TextNeverNull,
     [](const Arguments &a) {
       return ZTK_GetWarningTextForSetUSBAudioInput(a.product, a.channel,
                                                    a.index, 0, a.text);
     }},

    // USB output audio.
    {"GetNumOfOutputAudioIndex", {8}, {{{0, 2}, kAny}}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetNumOfOutputAudioIndex(a.product, a.channel, a.number);
     }},
    {"GetUSBOutputAudioText", {8}, {{{0, 2}, {0, 3}}}, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetUSBOutputAudioText(a.product, a.channel, a.index, 7,
                                        a.text);
     }},
    {"SetUSBOutputAudio", {8}, {{{0, 4}, {0, 2}}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetUSBOutputAudio(a.product, a.channel, a.index);
     }},
    {"SetUSBOutputAudioDefault", {8}, {{{0, 4}, kAny}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetUSBOutputAudioDefault(a.product, a.channel);
     }},
    {"GetCurrentUSBOutputAudioIndex", {8}, {{{0, 2}, kAny}}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetCurrentUSBOutputAudioIndex(a.product, a.channel,
                                                a.number);
     }},
    {"SetCurrentUSBOutputAudio", {8}, {{{0, 2}, kAny}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetCurrentUSBOutputAudio(a.product, a.channel);
     }},

    // Boost level.
    {"GetNumOfBoostLevelIndex", kSixProducts, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetNumOfBoostLevelIndex(a.product, a.number);
     }},
    {"GetBoostLevelText", kSixProducts, {{kAny, {0, 3}}}, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetBoostLevelText(a.product, a.index, 7, a.text);
     }},
    {"SetBoostLevelIndex", {10}, {{kAny, {0, 3}}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetBoostLevelIndex(a.product, a.index);
     }},
    {"GetCurrentBoostLevelIndex", {10}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetCurrentBoostLevelIndex(a.product, a.number);
     }},
    {"SetCurrentBoostLevelIndex", {10}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_SetCurrentBoostLevelIndex(a.product);
     }},

    // MIDI channel and key mode.
    {"GetNumOfMidiChannelIndex", {1}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetNumOfMidiChannelIndex(a.product, a.number);
     }},
    {"GetMidiChannelText", {1}, {{kAny, {0, 15}}}, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetMidiChannelText(a.product, a.index, 7, a.text);
     }},
    {"SetMidiChannelIndex", {1}, {{kAny, {0, 15}}}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetMidiChannelIndex(a.product, a.index);
     }},
    {"GetCurrentMidiChannelIndex", {1}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetCurrentMidiChannelIndex(a.product, a.number);
     }},
    {"SetCurrentMidiChannelIndex", {1}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_SetCurrentMidiChannelIndex(a.product);
     }},
    {"GetNumOfMidiKeyModeIndex", {}, {}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetNumOfMidiKeyModeIndex(a.product, a.number);
     }},
    {"GetMidiKeyModeText", {}, {}, Output::Text,
     [](const Arguments &a) {
       return ZTK_GetMidiKeyModeText(a.product, a.index, 7, a.text);
     }},
    {"SetMidiKeyModeIndex", {}, {}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetMidiKeyModeIndex(a.product, a.index);
     }},
    {"GetCurrentMidiKeyModeIndex", {}, {}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetCurrentMidiKeyModeIndex(a.product, a.number);
     }},
    {"SetCurrentMidiKeyModeIndex", {}, {}, Output::None,
     [](const Arguments &a) {
       return ZTK_SetCurrentMidiKeyModeIndex(a.product);
     }},

    // Mixer status.
    {"GetMixerCertifyLevel", {10}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetMixerCertifyLevel(a.product, a.number);
     }},
    {"GetFirmwareVersionIndex", {10}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetFirmwareVersionIndex(a.product, a.number);
     }},
    {"GetMixerInputSelectorStatus", {10}, {{{0, 4}, kAny}}, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetMixerInputSelectorStatus(a.product, a.channel, a.number);
     }},
    {"GetMixerSeratoActiveStatus", {10}, kNoBounds, Output::Number,
     [](const Arguments &a) {
       return ZTK_GetMixerSeratoActiveStatus(a.product, a.number);
     }},

    // Change callbacks. Three families can be unregistered for more products than
    // they can be registered for.
    {"RegisterInputAudioChangedCallback", {10}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_RegisterInputAudioChangedCallback(a.product, OnChannel,
                                                    nullptr);
     }},
    {"UnregisterInputAudioChangedCallback", kSixProducts, kNoBounds,
     Output::None,
     [](const Arguments &a) {
       return ZTK_UnregisterInputAudioChangedCallback(a.product, nullptr);
     }},
    {"RegisterOutputAudioChangedCallback", {10}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_RegisterOutputAudioChangedCallback(a.product, OnChannel,
                                                     nullptr);
     }},
    {"UnregisterOutputAudioChangedCallback", kSixProducts, kNoBounds,
     Output::None,
     [](const Arguments &a) {
       return ZTK_UnregisterOutputAudioChangedCallback(a.product, nullptr);
     }},
    {"RegisterBoostLevelChangedCallback", {10}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_RegisterBoostLevelChangedCallback(a.product, OnIndex,
                                                    nullptr);
     }},
    {"UnregisterBoostLevelChangedCallback", kSixProducts, kNoBounds,
     Output::None,
     [](const Arguments &a) {
       return ZTK_UnregisterBoostLevelChangedCallback(a.product, nullptr);
     }},
    {"RegisterMidiChannelChangedCallback", {1}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_RegisterMidiChannelChangedCallback(a.product, OnIndex,
                                                     nullptr);
     }},
    {"UnregisterMidiChannelChangedCallback", {1}, kNoBounds, Output::None,
     [](const Arguments &a) {
       return ZTK_UnregisterMidiChannelChangedCallback(a.product, nullptr);
     }},
    {"RegisterMidiKeyModeChangedCallback", {}, {}, Output::None,
     [](const Arguments &a) {
       return ZTK_RegisterMidiKeyModeChangedCallback(a.product, OnIndex,
                                                     nullptr);
     }},
    {"UnregisterMidiKeyModeChangedCallback", {}, {}, Output::None,
     [](const Arguments &a) {
       return ZTK_UnregisterMidiKeyModeChangedCallback(a.product, nullptr);
     }},
};
// clang-format on

}  // namespace ztk::test

#endif  // ZTK_TESTS_API_PRODUCT_GATES_H_
