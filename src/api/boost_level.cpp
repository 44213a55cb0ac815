// SPDX-License-Identifier: MIT
#include "api/boost_level.h"

#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/tables.h"
#include "notify/posting.h"
#include "store/settings_file.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::boost_level;

// The texts are in display order. The device numbers the levels in the opposite
// order.
const ZTKTextRef BoostLevelText[4] = {ZTK_TEXT("-5 dB"), ZTK_TEXT("-10 dB"),
                                      ZTK_TEXT("-15 dB"), ZTK_TEXT("-19 dB")};
const std::uint8_t _convDbTable[4] = {3, 2, 1, 0};

static_assert(std::size(BoostLevelText) == kChoices);
static_assert(std::size(_convDbTable) == kChoices);

ZTKResult ZTK_GetNumOfBoostLevelIndex(uint32_t productId, uint32_t *outCount) {
  if (outCount == nullptr || !kListedFor.Has(productId)) return ZTK_REJECTED;

  *outCount = kChoices;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetBoostLevelText(uint32_t productId, uint32_t index,
                                uint32_t /*ignored*/, ZTKTextRef *outText) {
  if (outText == nullptr || !kListedFor.Has(productId)) return ZTK_REJECTED;
  if (index >= kChoices) return ZTK_REJECTED;

  *outText = BoostLevelText[index];
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetBoostLevelIndex(uint32_t productId, uint32_t index) {
  outcome::Begin();
  if (!kSettableFor.Has(productId) || index >= kChoices) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, kWriteRegister, DeviceValue(index));
  store::Write(kModel, kKey, index);
  notify::PostIndex(notify::kBoostLevel, &boostLevelInfo, productId, index);
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetCurrentBoostLevelIndex(uint32_t productId,
                                        uint32_t *outIndex) {
  outcome::Begin();
  if (outIndex == nullptr || !kSettableFor.Has(productId)) return ZTK_REJECTED;

  *outIndex =
      static_cast<std::uint32_t>(store::Read(kModel, kKey, kDefaultIndex));
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetCurrentBoostLevelIndex(uint32_t productId) {
  std::uint32_t index = 0;
  const ZTKResult result = ZTK_GetCurrentBoostLevelIndex(productId, &index);
  if (result != ZTK_SUCCESS || !CanBeResent(index)) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, kWriteRegister, DeviceValue(index));
  return ZTK_SUCCESS;
}
