// SPDX-License-Identifier: MIT
#include "api/input_audio.h"

#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/tables.h"
#include "notify/posting.h"
#include "store/settings_file.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::input_audio;

// This table has the texts of several models. PC_INPUT_PULLDOWN_TEXT refers to
// the entries that this model uses.
const ZTKTextRef InputAudioText[44] = {
    ZTK_TEXT("CH1 Timecode PHONO"),        // 0
    ZTK_TEXT("CH1 Timecode CD/LINE"),      // 1
    ZTK_TEXT("CH1 Timecode DIGITAL"),      // 2
    ZTK_TEXT("CH1 Timecode LINE"),         // 3
    ZTK_TEXT("Post CH1 Fader"),            // 4
    ZTK_TEXT("CH2 Timecode PHONO"),        // 5
    ZTK_TEXT("CH2 Timecode CD/LINE"),      // 6
    ZTK_TEXT("CH2 Timecode DIGITAL"),      // 7
    ZTK_TEXT("CH2 Timecode LINE"),         // 8
    ZTK_TEXT("Post CH2 Fader"),            // 9
    ZTK_TEXT("CH3 Timecode PHONO"),        // 10
    ZTK_TEXT("CH3 Timecode CD/LINE"),      // 11
    ZTK_TEXT("CH3 Timecode DIGITAL"),      // 12
    ZTK_TEXT("CH3 Timecode LINE"),         // 13
    ZTK_TEXT("Post CH3 Fader"),            // 14
    ZTK_TEXT("CH4 Timecode PHONO"),        // 15
    ZTK_TEXT("CH4 Timecode CD/LINE"),      // 16
    ZTK_TEXT("CH4 Timecode DIGITAL"),      // 17
    ZTK_TEXT("CH4 Timecode LINE"),         // 18
    ZTK_TEXT("Post CH4 Fader"),            // 19
    ZTK_TEXT("Cross Fader A"),             // 20
    ZTK_TEXT("Cross Fader B"),             // 21
    ZTK_TEXT("MIC"),                       // 22
    ZTK_TEXT("REC OUT"),                   // 23
    ZTK_TEXT("CH1 Timecode CD"),           // 24
    ZTK_TEXT("CH2 Timecode CD"),           // 25
    ZTK_TEXT("MIC / AUX Post EQ"),         // 26
    ZTK_TEXT("CH1 Control Tone PHONO"),    // 27
    ZTK_TEXT("CH1 Control Tone LINE"),     // 28
    ZTK_TEXT("CH1 Control Tone DIGITAL"),  // 29
    ZTK_TEXT("CH2 Control Tone PHONO"),    // 30
    ZTK_TEXT("CH2 Control Tone LINE"),     // 31
    ZTK_TEXT("CH2 Control Tone DIGITAL"),  // 32
    ZTK_TEXT("CH3 Control Tone PHONO"),    // 33
    ZTK_TEXT("CH3 Control Tone LINE"),     // 34
    ZTK_TEXT("CH3 Control Tone DIGITAL"),  // 35
    ZTK_TEXT("CH4 Control Tone PHONO"),    // 36
    ZTK_TEXT("CH4 Control Tone LINE"),     // 37
    ZTK_TEXT("CH4 Control Tone DIGITAL"),  // 38
    ZTK_TEXT("REC OUT"),                   // 39, the same text as 23
    ZTK_TEXT("Post AUX Fader"),            // 40
    ZTK_TEXT("AUX"),                       // 41
    ZTK_TEXT("PARAM ERROR"),               // 42
    nullptr,                               // 43
};

// Both tables have eight choices for each channel and are addressed as one flat
// array at channel * 8 + index, across the rows. An index of 8 or 9 on channel
// 4 reaches the two entries after the last row. clang-format off
const std::int32_t PC_INPUT_PULLDOWN_TEXT[42] = {
    //  tone    tone   post   cross  cross         REC
    //  PHONO   LINE   fader  A      B      MIC    OUT    -
    27, 28, 4, 20, 21, 22, 39, 42,   // channel 0
    30, 31, 9, 20, 21, 22, 39, 42,   // channel 1
    33, 34, 14, 20, 21, 22, 39, 42,  // channel 2
    36, 37, 19, 20, 21, 22, 39, 42,  // channel 3
    //  REC     post   post   post   post   cross  cross
    //  OUT     CH1    CH2    CH3    CH4    A      B      MIC
    39, 4, 9, 14, 19, 20, 21, 22,  // channel 4
    42, 42};                       // after the last row

// High byte: channel + 1. Low byte: source code.
const std::uint16_t _convTable_PC_INPUT[42] = {
    //  tone    tone    post    cross   cross           REC
    //  PHONO   LINE    fader   A       B       MIC     OUT     -
    0x0103, 0x0101, 0x0106, 0x0107, 0x0108, 0x0109, 0x010A, 0x010F,  // 0
    0x0203, 0x0201, 0x0206, 0x0207, 0x0208, 0x0209, 0x020A, 0x020F,  // 1
    0x0303, 0x0301, 0x0306, 0x0307, 0x0308, 0x0309, 0x030A, 0x030F,  // 2
    0x0403, 0x0401, 0x0406, 0x0407, 0x0408, 0x0409, 0x040A, 0x040F,  // 3
    //  REC     post    post    post    post    cross   cross
    //  OUT     CH1     CH2     CH3     CH4     A       B       MIC
    0x050A, 0x0511, 0x0512, 0x0513, 0x0514, 0x0507, 0x0508, 0x0509,  // 4
    0x050F, 0x050F};  // after the last row
// clang-format on

static_assert(std::size(PC_INPUT_PULLDOWN_TEXT) == kTableLength);
static_assert(std::size(_convTable_PC_INPUT) == kTableLength);
static_assert(PositionOf(kLastChannel, kLastRowBounds.textBelow) ==
              kTableLength);

namespace {

// Asks one mixer after the other for the position of the channel's input
// selector. Returns ZTK_WARNING if `choice` is below the threshold and the
// selector of a mixer is not in the audible position. A mixer that cannot be
// opened is skipped. Without mixers, only the threshold decides.
ZTKResult WarnIfInaudible(std::int32_t mixers, std::uint32_t channel,
                          std::uint32_t choice, const Thresholds &warnsBelow) {
  if (mixers == 0) {
    return choice < warnsBelow.withoutMixer ? ZTK_WARNING : ZTK_SUCCESS;
  }
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply;
    if (!usb::ReadFromMixer(i, usb::kInputSelectorRegister, &reply,
                            kSelectorInfoLength)) {
      continue;
    }
    if (choice < warnsBelow.withMixer &&
        reply.bytes[channel + 1] != kAudiblePosition) {
      return ZTK_WARNING;
    }
  }
  return ZTK_SUCCESS;
}

}  // namespace

ZTKResult ZTK_GetNumOfInputAudioIndex(uint32_t productId, uint32_t channel,
                                      uint32_t *outCount) {
  if (outCount == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;

  *outCount = BoundsOf(channel).count;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetUSBInputAudioText(uint32_t productId, int32_t channel,
                                   uint32_t index, uint32_t /*ignored*/,
                                   ZTKTextRef *outText) {
  if (outText == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  const auto row = static_cast<std::uint32_t>(channel);
  if (!IsChannel(row, kChannels)) return ZTK_REJECTED;
  if (index >= BoundsOf(row).textBelow) return ZTK_REJECTED;

  *outText = InputAudioText[PC_INPUT_PULLDOWN_TEXT[PositionOf(row, index)]];
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetUSBInputAudio(uint32_t productId, uint32_t channel,
                               uint32_t index) {
  outcome::Begin();
  if (!kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;
  if (index >= BoundsOf(channel).setBelow) return ZTK_REJECTED;

  const std::int32_t mixers = usb::SendToEveryMixer(
      productId, kWriteRegister, DeviceValue(channel, index));
  store::WriteChannel(kModel, kKeyFormat, channel, index);
  notify::PostChannelIndex(notify::kInputAudio, &inputAudioInfo, productId,
                           channel, index);
  return WarnIfInaudible(mixers, channel, index, kIndexWarnsBelow);
}

ZTKResult ZTK_SetUSBInputAudioDirect(uint32_t productId, uint32_t channel,
                                     uint32_t high, uint32_t source) {
  outcome::Begin();
  if (!kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;
  if (source >= kSources) return ZTK_REJECTED;

  const std::int32_t mixers = usb::SendToEveryMixer(
      productId, kWriteRegister, DirectValue(channel, high, source));
  return WarnIfInaudible(mixers, channel, source, kSourceWarnsBelow);
}

ZTKResult ZTK_GetCurrentUSBInputAudioIndex(uint32_t productId, int32_t channel,
                                           uint32_t *outIndex) {
  outcome::Begin();
  if (outIndex == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  const auto row = static_cast<std::uint32_t>(channel);
  if (!IsChannel(row, kRememberedChannels)) return ZTK_REJECTED;

  *outIndex = static_cast<std::uint32_t>(kDefaultIndex);
  if (IsChannel(row, kChannels)) {
    *outIndex = static_cast<std::uint32_t>(
        store::ReadChannel(kModel, kKeyFormat, row, kDefaultIndex));
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetCurrentUSBInputAudio(uint32_t productId, uint32_t channel) {
  std::uint32_t index = 0;
  const ZTKResult result = ZTK_GetCurrentUSBInputAudioIndex(
      productId, static_cast<std::int32_t>(channel), &index);
  if (result != ZTK_SUCCESS) return ZTK_REJECTED;
  if (!CanBeResent(channel, index)) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, kWriteRegister, DeviceValue(channel, index));
  return ZTK_SUCCESS;
}
