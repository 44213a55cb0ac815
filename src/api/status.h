// SPDX-License-Identifier: MIT
//
// The facts of the replies that contain the status of a mixer.
#ifndef ZTK_API_STATUS_H_
#define ZTK_API_STATUS_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product_set.h"

namespace ztk::status {

inline constexpr ProductSet kServed{ZTK_PRODUCT_VRM_D6};

// Lengths of the replies, in bytes.
inline constexpr std::uint16_t kCertifyLevelLength = 4;
inline constexpr std::uint16_t kFirmwareVersionLength = 2;
inline constexpr std::uint16_t kSelectorInfoLength = 5;
inline constexpr std::uint16_t kSeratoActiveLength = 2;

// Callers can ask for five channels, but only the first four have a selector.
// The byte of a channel is at channel + 1 in the reply.
inline constexpr std::int32_t kChannels = 5;
inline constexpr std::int32_t kSelectors = 4;
inline constexpr std::uint8_t kSelectorPositions = ZTK_SELECTOR_POSITIONS;
inline constexpr std::uint8_t kSeratoStates = 2;

constexpr std::uint32_t BigEndian32(const std::uint8_t *bytes) {
  return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
         std::uint32_t{bytes[2]} << 8 | std::uint32_t{bytes[3]};
}

constexpr std::uint32_t LittleEndian16(const std::uint8_t *bytes) {
  return std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8;
}

}  // namespace ztk::status

#endif  // ZTK_API_STATUS_H_
