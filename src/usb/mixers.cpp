// SPDX-License-Identifier: MIT
#include "usb/mixers.h"

#include "usb/connection.h"

namespace ztk::usb {

using outcome::Direction;

OpenMixer::OpenMixer(std::int32_t position, Direction direction) {
  platform::usb::Result cause;
  opened_ = Open(&slot_, static_cast<std::uint32_t>(position), &cause) ==
            platform::usb::kSuccess;
  if (!opened_) outcome::RecordOpenFailure(position, direction, cause);
}

std::int32_t CountMixers(std::uint32_t productId) {
  const std::int32_t count = CheckUSBAudio(productId);
  outcome::RecordMixersFound(count);
  return count;
}

std::int32_t SendToEveryMixer(std::uint32_t productId, std::uint16_t reg,
                              std::uint16_t value) {
  const std::int32_t count = CountMixers(productId);
  for (std::int32_t i = 0; i < count; ++i) {
    const OpenMixer mixer(i, Direction::Write);
    if (!mixer) continue;
    outcome::RecordRequest(i, Direction::Write,
                           WriteRegister(mixer.connection(), reg, value), 0);
  }
  return count;
}

bool ReadFromMixer(std::int32_t position, std::uint16_t reg, Reply *reply,
                   std::uint16_t length) {
  const OpenMixer mixer(position, Direction::Read);
  if (!mixer) return false;
  std::uint32_t lengthDone = 0;
  const platform::usb::Result result =
      ReadRegister(mixer.connection(), reg, reply->bytes, length, &lengthDone);
  outcome::RecordRequest(position, Direction::Read, result, lengthDone);
  return true;
}

}  // namespace ztk::usb
