// SPDX-License-Identifier: MIT
#include "api/output_audio.h"

#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/tables.h"
#include "notify/posting.h"
#include "store/settings_file.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::output_audio;

const ZTKTextRef OutputAudioText[3] = {ZTK_TEXT("CH1"), ZTK_TEXT("CH2"),
                                       ZTK_TEXT("AUX")};

// The table has three choices for each channel. The entry is at
// channel * 3 + index, so index 3 of a channel is the first choice of the next
// channel.
// clang-format off
const std::int32_t VRMB5_OUT_TEXT[12] = {
    //  CH1  CH2  AUX
    0, 1, 2,   // channel 0
    0, 1, 2,   // channel 1
    0, 1, 2,   // channel 2
    0, 0, 0};  // index 3 of channel 2, then two entries that are not used

// High byte: channel + 1. Low byte: code of the choice.
const std::uint16_t _convTableOut_B5[9] = {
    //  CH1     CH2     AUX
    0x0100, 0x0101, 0x0104,   // channel 0
    0x0200, 0x0201, 0x0204,   // channel 1
    0x0300, 0x0301, 0x0304};  // channel 2
// clang-format on

static_assert(std::size(_convTableOut_B5) == kTableLength);

namespace {

// Sends the device value of a choice to every mixer. Sends nothing if the
// choice has no device value. Returns the number of mixers in both cases.
std::int32_t SendChoice(std::uint32_t productId, std::uint32_t channel,
                        std::uint32_t index) {
  if (!HasDeviceValue(channel, index)) return usb::CountMixers(productId);
  return usb::SendToEveryMixer(productId, kWriteRegister,
                               DeviceValue(channel, index));
}

// Deliberate: the replies are not used, because the setters of this file never
// warn.
void ReadSelectors(std::int32_t mixers) {
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply unused;
    usb::ReadFromMixer(i, usb::kInputSelectorRegister, &unused,
                       kSelectorInfoLength);
  }
}

}  // namespace

ZTKResult ZTK_GetNumOfOutputAudioIndex(uint32_t productId, uint32_t channel,
                                       uint32_t *outCount) {
  if (outCount == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;

  *outCount = kChoices;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetUSBOutputAudioText(uint32_t productId, uint32_t channel,
                                    uint32_t index, uint32_t /*ignored*/,
                                    ZTKTextRef *outText) {
  if (outText == nullptr) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;
  if (!kServed.Has(productId) || index >= kTextBelow) return ZTK_REJECTED;

  *outText = OutputAudioText[VRMB5_OUT_TEXT[channel * kChoices + index]];
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetUSBOutputAudio(uint32_t productId, uint32_t channel,
                                uint32_t index) {
  outcome::Begin();
  if (!IsChannel(channel, kSettableChannels)) return ZTK_REJECTED;
  if (!kServed.Has(productId) || index >= kChoices) return ZTK_REJECTED;

  const std::int32_t mixers = SendChoice(productId, channel, index);
  store::WriteChannel(kModel, kKeyFormat, channel, index);
  notify::PostChannelIndex(notify::kOutputAudio, &outputAudioInfo, productId,
                           channel, index);
  ReadSelectors(mixers);
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetUSBOutputAudioDefault(uint32_t productId, uint32_t channel) {
  outcome::Begin();
  if (!IsChannel(channel, kSettableChannels)) return ZTK_REJECTED;
  if (!kServed.Has(productId)) return ZTK_REJECTED;

  const std::uint32_t index = DefaultIndex(channel);
  const std::int32_t mixers = SendChoice(productId, channel, index);
  // Deliberate: a default is not remembered.
  notify::PostChannelIndex(notify::kOutputAudio, &outputAudioInfo, productId,
                           channel, index);
  ReadSelectors(mixers);
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetCurrentUSBOutputAudioIndex(uint32_t productId,
                                            uint32_t channel,
                                            uint32_t *outIndex) {
  outcome::Begin();
  if (outIndex == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;

  const auto fallback = static_cast<std::int32_t>(DefaultIndex(channel));
  *outIndex = static_cast<std::uint32_t>(
      store::ReadChannel(kModel, kKeyFormat, channel, fallback));
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetCurrentUSBOutputAudio(uint32_t productId, uint32_t channel) {
  std::uint32_t index = 0;
  const ZTKResult result =
      ZTK_GetCurrentUSBOutputAudioIndex(productId, channel, &index);
  if (result != ZTK_SUCCESS) return ZTK_REJECTED;

  // Deliberate: the remembered index is not tested against the choices.
  SendChoice(productId, channel, index);
  return ZTK_SUCCESS;
}
