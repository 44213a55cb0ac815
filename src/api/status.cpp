// SPDX-License-Identifier: MIT
#include "api/status.h"

#include <cstdint>

#include "ZTKFunc.h"
#include "usb/mixers.h"

using namespace ztk;
using namespace ztk::status;

namespace {

// A read that delivers nothing must not look like a state.
constexpr std::uint8_t kNoSeratoAnswer = 0xFF;

using ReadRequest = usb::Code (*)(usb::Connection device, std::uint8_t *buffer,
                                  std::uint16_t length);

// Reads from one mixer into the preset reply; false when it does not open.
bool Ask(std::int32_t position, ReadRequest request, usb::Reply *reply,
         std::uint16_t length) {
  const usb::OpenMixer mixer(position);
  if (!mixer) return false;
  request(mixer.connection(), reply->bytes, length);
  return true;
}

}  // namespace

ZTKResult ZTK_GetMixerCertifyLevel(uint32_t productId, uint32_t *outLevel) {
  if (outLevel == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  *outLevel = 0;
  const std::int32_t mixers = CheckUSBAudio(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply;
    if (!Ask(i, GetCertifyLevel, &reply, kCertifyLevelLength)) continue;
    *outLevel = BigEndian32(reply.bytes);
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetFirmwareVersionIndex(uint32_t productId,
                                      uint32_t *outVersion) {
  if (outVersion == nullptr) return ZTK_REJECTED;
  // Deliberate: written before the product is looked at.
  *outVersion = 0;
  if (!kServed.Has(productId)) return ZTK_REJECTED;

  if (CheckUSBAudio(productId) == 0) return ZTK_SUCCESS;
  // Deliberate: only the first mixer is asked.
  usb::Reply reply;
  if (Ask(0, GetFirmwareVersionNumber, &reply, kFirmwareVersionLength)) {
    *outVersion = LittleEndian16(reply.bytes);
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetMixerInputSelectorStatus(uint32_t productId, uint32_t channel,
                                          uint32_t *outPosition) {
  if (outPosition == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;
  if (!IsChannel(channel, kChannels)) return ZTK_REJECTED;

  const std::int32_t mixers = CheckUSBAudio(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply;
    if (!Ask(i, GetInputSelectorInfo, &reply, kSelectorInfoLength)) continue;
    *outPosition = reply.bytes[channel + 1];
    if (*outPosition >= kSelectorPositions) return ZTK_REJECTED;
  }
  return ZTK_SUCCESS;
}

ZTKResult ZTK_GetMixerSeratoActiveStatus(uint32_t productId,
                                         uint32_t *outActive) {
  if (outActive == nullptr || !kServed.Has(productId)) return ZTK_REJECTED;

  const std::int32_t mixers = CheckUSBAudio(productId);
  for (std::int32_t i = 0; i < mixers; ++i) {
    usb::Reply reply{.bytes = {kNoSeratoAnswer, kNoSeratoAnswer}};
    if (!Ask(i, GetSeratoActiveInfo, &reply, kSeratoActiveLength)) continue;
    if (reply.bytes[0] >= kSeratoStates) return ZTK_REJECTED;
    *outActive = reply.bytes[0];
  }
  return ZTK_SUCCESS;
}
