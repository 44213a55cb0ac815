// SPDX-License-Identifier: MIT
#include "usb/mixers.h"

namespace ztk::usb {

std::int32_t SendToEveryMixer(std::uint32_t productId, WriteRequest request,
                              std::uint16_t value) {
  const std::int32_t count = CheckUSBAudio(productId);
  for (std::int32_t i = 0; i < count; ++i) {
    if (const OpenMixer mixer(i); mixer) request(mixer.connection(), value);
  }
  return count;
}

}  // namespace ztk::usb
