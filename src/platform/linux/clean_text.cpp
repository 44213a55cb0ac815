// SPDX-License-Identifier: MIT
#include "platform/linux/clean_text.h"

#include <cstddef>
#include <cstdint>

namespace ztk::platform {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

std::uint8_t ByteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<std::uint8_t>(text[at]) : 0;
}

bool IsCodePoint(std::uint32_t number) {
  return number < 0xD800 || (number > 0xDFFF && number <= 0x10FFFF);
}

bool IsAllowedInXml(std::uint32_t codePoint) {
  if (codePoint < 0x20) {
    return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
  }
  return codePoint != 0xFFFE && codePoint != 0xFFFF;
}

struct Character {
  std::size_t length;  // in bytes
  bool good;
};
constexpr Character kInvalidByte = {.length = 1, .good = false};

// Returns the first character of the text, or kInvalidByte if the text does not
// begin with valid UTF-8.
Character FirstCharacter(std::string_view text) {
  const std::uint8_t lead = ByteAt(text, 0);
  std::size_t length = 1;
  std::uint32_t codePoint = lead;
  std::uint32_t lowest = 0;
  if (lead >= 0xF0 && lead < 0xF8) {
    length = 4;
    codePoint = lead & 0x07U;
    lowest = 0x10000;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3;
    codePoint = lead & 0x0FU;
    lowest = 0x800;
  } else if (lead >= 0xC0 && lead < 0xE0) {
    length = 2;
    codePoint = lead & 0x1FU;
    lowest = 0x80;
  } else if (lead >= 0x80) {
    return kInvalidByte;
  }
  for (std::size_t at = 1; at < length; ++at) {
    const std::uint8_t next = ByteAt(text, at);
    if ((next & 0xC0U) != 0x80) return kInvalidByte;
    codePoint = codePoint << 6U | (next & 0x3FU);
  }
  // Overlong forms and surrogates are not UTF-8.
  if (codePoint < lowest || !IsCodePoint(codePoint)) return kInvalidByte;
  return {.length = length, .good = IsAllowedInXml(codePoint)};
}

}  // namespace

std::string CleanText(std::string_view text) {
  std::string clean;
  while (!text.empty()) {
    const Character first = FirstCharacter(text);
    clean += first.good ? text.substr(0, first.length) : kReplacement;
    text.remove_prefix(first.length);
  }
  return clean;
}

}  // namespace ztk::platform
