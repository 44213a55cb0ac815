// SPDX-License-Identifier: MIT
//
// The USB/IP messages of a client, written only from the documentation of the
// protocol.
#ifndef ZTK_TESTS_VIRTUAL_MIXER_USBIP_USBIP_BYTES_H_
#define ZTK_TESTS_VIRTUAL_MIXER_USBIP_USBIP_BYTES_H_

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace ztk::test {

using Bytes = std::vector<std::uint8_t>;

inline Bytes FromHex(const std::string &hex) {
  Bytes bytes;
  std::string digits;
  for (const char digit : hex) {
    if (digit == ' ') continue;
    digits += digit;
    if (digits.size() < 2) continue;
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits, nullptr, 16)));
    digits.clear();
  }
  return bytes;
}

inline Bytes Join(const std::initializer_list<Bytes> &parts) {
  Bytes all;
  for (const Bytes &part : parts)
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

inline Bytes Zeros(std::size_t count) { return Bytes(count, 0); }

inline Bytes Text(const std::string &text, std::size_t size) {
  Bytes bytes(text.begin(), text.end());
  bytes.resize(size);
  return bytes;
}

inline Bytes Word(std::uint32_t value) {
  return {static_cast<std::uint8_t>(value >> 24),
          static_cast<std::uint8_t>(value >> 16 & 0xFF),
          static_cast<std::uint8_t>(value >> 8 & 0xFF),
          static_cast<std::uint8_t>(value & 0xFF)};
}

inline Bytes ListRequest() { return FromHex("0111 8005 00000000"); }
inline Bytes ImportRequest(const std::string &busId) {
  return Join({FromHex("0111 8003 00000000"), Text(busId, 32)});
}

struct SubmitFields {
  std::uint32_t sequence = 1;
  // Bus 1, device 2: the first one served.
  std::uint32_t device = 0x00010002;
  std::uint32_t direction = 0;
  std::uint32_t endpoint = 0;
  std::uint32_t length = 0;
  std::uint32_t packets = 0;
};

// `setup` as hexadecimal digits, in the order of the wire.
inline Bytes SubmitMessage(const SubmitFields &fields,
                           const std::string &setup) {
  return Join({Word(1), Word(fields.sequence), Word(fields.device),
               Word(fields.direction), Word(fields.endpoint), Word(0),
               Word(fields.length), Word(0), Word(fields.packets), Word(0),
               FromHex(setup)});
}

inline Bytes Read(std::uint32_t sequence, const std::string &setup,
                  std::uint32_t length) {
  return SubmitMessage({.sequence = sequence, .direction = 1, .length = length},
                       setup);
}
inline Bytes Write(std::uint32_t sequence, const std::string &setup) {
  return SubmitMessage({.sequence = sequence}, setup);
}

inline Bytes UnlinkMessage(std::uint32_t sequence, std::uint32_t unlinked) {
  return Join({Word(2), Word(sequence), Word(0x00010002), Word(0), Word(0),
               Word(unlinked), Zeros(24)});
}

// The answer: 48 bytes, and the data of a read.
inline Bytes Submitted(std::uint32_t sequence, std::int32_t status,
                       std::uint32_t done, const std::string &data = "") {
  return Join({Word(3), Word(sequence), Zeros(12),
               Word(static_cast<std::uint32_t>(status)), Word(done), Zeros(20),
               FromHex(data)});
}
inline Bytes Unlinked(std::uint32_t sequence, std::int32_t status) {
  return Join({Word(4), Word(sequence), Zeros(12),
               Word(static_cast<std::uint32_t>(status)), Zeros(24)});
}

// The description of the n-th served mixer, when only mixers are served.
inline Bytes MixerRecord(int number) {
  const std::string name = "1-" + std::to_string(number);
  return Join({Text("/sys/devices/pci0000:00/0000:00:14.0/usb1/" + name, 256),
               Text(name, 32), Word(1),
               Word(static_cast<std::uint32_t>(number) + 1), Word(2),
               FromHex("6666 001b 0436 00 00 00 00 01 01")});
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_VIRTUAL_MIXER_USBIP_USBIP_BYTES_H_
