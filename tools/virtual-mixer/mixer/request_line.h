// SPDX-License-Identifier: MIT
//
// The one text form of a control request, for logs and tests:
//
//   mixer 1: 40 03 0206 8002 0000                       a write
//   mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04     a read, and its bytes
//   mixer 1: c0 00 0000 8002 0005 ->                    a read of no bytes
//   mixer 1: 40 03 0206 8002 0000 -> stall              a failure of either
//
// Fields are bmRequestType, bRequest, wValue, wIndex, wLength, in lower-case
// hexadecimal digits. Mixers count from 1. Needs the standard library only.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_REQUEST_LINE_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_REQUEST_LINE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace ztk::virtual_mixer {

// The setup packet, in host byte order.
struct SetupPacket {
  std::uint8_t requestType = 0;
  std::uint8_t request = 0;
  std::uint16_t value = 0;
  std::uint16_t index = 0;
  std::uint16_t length = 0;
};

// How a request ended for its sender.
enum class TransferStatus { Ok, Stall, Silence, Gone };

inline bool IsRead(const SetupPacket &setup) {
  return (setup.requestType & 0x80) != 0;
}

// "00 04 04", or nothing for no bytes.
inline std::string HexBytes(const std::uint8_t *bytes, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), i == 0 ? "%02x" : " %02x",
                  static_cast<unsigned>(bytes[i]));
    text += digits.data();
  }
  return text;
}

// The line, without a line end. `bytes` are the bytes that a read delivered;
// they are ignored when the request failed or was a write.
inline std::string RequestLine(int mixer, const SetupPacket &setup,
                               TransferStatus status,
                               const std::uint8_t *bytes = nullptr,
                               std::size_t count = 0) {
  std::array<char, 64> head{};
  std::snprintf(
      head.data(), head.size(), "mixer %d: %02x %02x %04x %04x %04x", mixer,
      static_cast<unsigned>(setup.requestType),
      static_cast<unsigned>(setup.request), static_cast<unsigned>(setup.value),
      static_cast<unsigned>(setup.index), static_cast<unsigned>(setup.length));
  std::string line = head.data();
  switch (status) {
    case TransferStatus::Stall:
      return line + " -> stall";
    case TransferStatus::Silence:
      return line + " -> silence";
    case TransferStatus::Gone:
      return line + " -> gone";
    case TransferStatus::Ok:
      break;
  }
  if (!IsRead(setup)) return line;
  line += " ->";
  if (count > 0) line += " " + HexBytes(bytes, count);
  return line;
}

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_REQUEST_LINE_H_
