// SPDX-License-Identifier: MIT
#include <cstdint>
#include <iterator>

#include "ZTKFunc.h"
#include "api/product_set.h"
#include "api/tables.h"
#include "notify/posting.h"
#include "store/settings_file.h"
#include "usb/mixers.h"

using namespace ztk;

// Display order; the device counts the other way round.
const ZTKTextRef BoostLevelText[4] = {ZTK_TEXT("-5 dB"), ZTK_TEXT("-10 dB"),
                                      ZTK_TEXT("-15 dB"), ZTK_TEXT("-19 dB")};
const std::uint8_t _convDbTable[4] = {3, 2, 1, 0};

namespace {

constexpr std::uint32_t kChoices = 4;
static_assert(std::size(BoostLevelText) == kChoices);
static_assert(std::size(_convDbTable) == kChoices);

// Deliberate: listing answers for more products than can be set.
constexpr ProductSet kListedFor{0, 1, 5, 6, 8, 10};
constexpr ProductSet kSettableFor{10};

const ZTKTextRef kModel = ZTK_TEXT("VRM-D6");
const ZTKTextRef kKey = ZTK_TEXT("MaxLevel");
constexpr std::int32_t kDefaultIndex = 3;

// The level code stands in the high byte.
std::uint16_t DeviceValue(std::uint32_t index) {
  return static_cast<std::uint16_t>(_convDbTable[index] << 8);
}

}  // namespace

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
  if (!kSettableFor.Has(productId) || index >= kChoices) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, SetUSBOutputLevelSetting,
                        DeviceValue(index));
  store::Write(kModel, kKey, index);
  notify::PostIndex(notify::kBoostLevel, &boostLevelInfo, productId, index);
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetCurrentBoostLevelIndex(uint32_t productId,
                                        uint32_t *outIndex) {
  if (outIndex == nullptr || !kSettableFor.Has(productId)) return ZTK_REJECTED;

  *outIndex =
      static_cast<std::uint32_t>(store::Read(kModel, kKey, kDefaultIndex));
  return ZTK_SUCCESS;
}

ZTKResult ZTK_SetCurrentBoostLevelIndex(uint32_t productId) {
  std::uint32_t index = 0;
  const ZTKResult remembered = ZTK_GetCurrentBoostLevelIndex(productId, &index);
  if (remembered != ZTK_SUCCESS) return ZTK_REJECTED;
  if (index >= kChoices) return ZTK_REJECTED;

  usb::SendToEveryMixer(productId, SetUSBOutputLevelSetting,
                        DeviceValue(index));
  return ZTK_SUCCESS;
}
