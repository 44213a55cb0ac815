// SPDX-License-Identifier: MIT
#include "api/status.h"

#include <cstdint>

#include "ZTKFunc.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::status;

namespace {

// A read may return no bytes. So the reply is preset to this value, which is
// not a state.
constexpr std::uint8_t kNoSeratoAnswer = 0xFF;

}  // namespace

ZTKResult ZTK_GetMixerCertifyLevel(uint32_t productId, uint32_t *outLevel) {
  outcome::Begin();
  if (outLevel == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  *outLevel = 0;
  const std::int32_t mixers = usb::CountMixers(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply;
    if (!usb::ReadFromMixer(i, usb::kCertifyLevelRegister, &reply,
                            kCertifyLevelLength))
      continue;
    *outLevel = BigEndian32(reply.bytes);
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetFirmwareVersionIndex(uint32_t productId,
                                      uint32_t *outVersion) {
  outcome::Begin();
  if (outVersion == nullptr) return ZTK_REJECTED;
  // Deliberate: written before the product is checked.
  *outVersion = 0;
  if (!kServed.Has(productId)) return ZTK_REJECTED;

  if (usb::CountMixers(productId) == 0) return ZTK_SUCCESS;
  // Deliberate: only the first mixer is asked.
  usb::Reply reply;
  if (usb::ReadFromMixer(0, usb::kFirmwareVersionRegister, &reply,
                         kFirmwareVersionLength)) {
    *outVersion = LittleEndian16(reply.bytes);
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetMixerInputSelectorStatus(uint32_t productId, uint32_t channel,
                                          uint32_t *outPosition) {
  outcome::Begin();
  if (outPosition == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;

  const std::int32_t mixers = usb::CountMixers(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply;
    if (!usb::ReadFromMixer(i, usb::kInputSelectorRegister, &reply,
                            kSelectorInfoLength))
      continue;
    *outPosition = reply.bytes[channel + 1];
    if (*outPosition >= kSelectorPositions) return ZTK_REJECTED;
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetMixerSeratoActiveStatus(uint32_t productId,
                                         uint32_t *outActive) {
  outcome::Begin();
  if (outActive == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  const std::int32_t mixers = usb::CountMixers(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply{.bytes = {kNoSeratoAnswer, kNoSeratoAnswer}};
    if (!usb::ReadFromMixer(i, usb::kSeratoActiveRegister, &reply,
                            kSeratoActiveLength))
      continue;
    if (reply.bytes[0] >= kSeratoStates) return ZTK_REJECTED;
    *outActive = reply.bytes[0];
  }
  return ZTK_SUCCESS;
}
