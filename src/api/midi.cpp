// SPDX-License-Identifier: MIT
#include "api/midi.h"

#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/tables.h"
#include "notify/posting.h"
#include "store/settings_file.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::midi;

const ZTKTextRef MidiChannelText[16] = {
    ZTK_TEXT("CH 1"),  ZTK_TEXT("CH 2"),  ZTK_TEXT("CH 3"),  ZTK_TEXT("CH 4"),
    ZTK_TEXT("CH 5"),  ZTK_TEXT("CH 6"),  ZTK_TEXT("CH 7"),  ZTK_TEXT("CH 8"),
    ZTK_TEXT("CH 9"),  ZTK_TEXT("CH 10"), ZTK_TEXT("CH 11"), ZTK_TEXT("CH 12"),
    ZTK_TEXT("CH 13"), ZTK_TEXT("CH 14"), ZTK_TEXT("CH 15"), ZTK_TEXT("CH 16")};
// Deliberate: exported, but not used by the library.
const ZTKTextRef MidiKeyModeText[2] = {ZTK_TEXT("Toggle"), ZTK_TEXT("Trigger")};

static_assert(std::size(MidiChannelText) == kChoices);

ZTKResult ZTK_GetNumOfMidiChannelIndex(uint32_t productId, uint32_t *outCount) {
  if (outCount == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  *outCount = kChoices;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetMidiChannelText(uint32_t productId, uint32_t index,
                                 uint32_t /*ignored*/, ZTKTextRef *outText) {
  if (outText == nullptr) return ZTK_REJECTED;
  if (!kServed.Has(productId) || index >= kChoices) return ZTK_REJECTED;

  *outText = MidiChannelText[index];
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetMidiChannelIndex(uint32_t productId, uint32_t index) {
  outcome::Begin();
  if (!kServed.Has(productId) || index >= kChoices) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, kWriteRegister, DeviceValue(index));
  store::Write(kModel, kKey, index);
  notify::PostIndex(notify::kMidiChannel, &midiChannelInfo, productId, index);
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetCurrentMidiChannelIndex(uint32_t productId,
                                         uint32_t *outIndex) {
  outcome::Begin();
  if (outIndex == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  *outIndex =
      static_cast<std::uint32_t>(store::Read(kModel, kKey, kDefaultIndex));
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetCurrentMidiChannelIndex(uint32_t productId) {
  std::uint32_t index = 0;
  const ZTKResult result = ZTK_GetCurrentMidiChannelIndex(productId, &index);
  if (result != ZTK_SUCCESS || !CanBeResent(index)) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, kWriteRegister, DeviceValue(index));
  return ZTK_SUCCESS;
}

// Deliberate: the functions of the key mode serve no product. They exist for
// programs that were built with them.

ZTKResult ZTK_GetNumOfMidiKeyModeIndex(uint32_t /*productId*/,
                                       uint32_t * /*outCount*/) {
  return ZTK_REJECTED;
}

ZTKResult ZTK_GetMidiKeyModeText(uint32_t /*productId*/, uint32_t /*index*/,
                                 uint32_t /*ignored*/,
                                 ZTKTextRef * /*outText*/) {
  return ZTK_REJECTED;
}

ZTKResult ZTK_SetMidiKeyModeIndex(uint32_t /*productId*/, uint32_t /*index*/) {
  return ZTK_REJECTED;
}

ZTKResult ZTK_GetCurrentMidiKeyModeIndex(uint32_t /*productId*/,
                                         uint32_t * /*outIndex*/) {
  return ZTK_REJECTED;
}

ZTKResult ZTK_SetCurrentMidiKeyModeIndex(uint32_t productId) {
  std::uint32_t index = 0;
  ZTK_GetCurrentMidiKeyModeIndex(productId, &index);
  return ZTK_REJECTED;
}
