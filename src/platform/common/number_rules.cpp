// SPDX-License-Identifier: MIT
#include "platform/common/number_rules.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace ztk::platform::common {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

// The ranges of characters that intValue of Foundation skips.
constexpr struct {
  std::uint32_t first, last;
} kSkipped[] = {{0x00, 0x20}, {0x7F, 0xA0}, {0x2000, 0x200B}, {0x3000, 0x3000}};

bool IsSkipped(std::uint32_t character) {
  for (const auto &row : kSkipped) {
    if (character >= row.first && character <= row.last) return true;
  }
  return false;
}

// Returns the length in bytes of the first character if it is skipped, else 0.
// The skipped characters have at most three bytes in UTF-8.
std::size_t SkippedBytes(std::string_view text) {
  const auto byte = [text](std::size_t at) {
    return at < text.size() ? static_cast<std::uint8_t>(text[at]) : 0U;
  };
  if (text.empty()) return 0;
  if (byte(0) < 0x80) return IsSkipped(byte(0)) ? 1 : 0;
  const std::uint32_t two = (byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU);
  if ((byte(0) & 0xE0U) == 0xC0U) return IsSkipped(two) ? 2 : 0;
  const std::uint32_t three =
      (byte(0) & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
  if ((byte(0) & 0xF0U) == 0xE0U) return IsSkipped(three) ? 3 : 0;
  return 0;
}

std::string_view WithoutLeadingSpace(std::string_view text) {
  while (const std::size_t bytes = SkippedBytes(text)) {
    text.remove_prefix(std::min(bytes, text.size()));
  }
  return text;
}

}  // namespace

std::int32_t IntegerFromInteger(std::uint64_t bits) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
}

std::int32_t IntegerFromReal(double real) {
  // The conversion of a real outside of the range is undefined, so the range is
  // tested first. For NaN the test is false, like every comparison with NaN.
  constexpr double kBelow = double{kLowest} - 1;
  constexpr double kAbove = double{kHighest} + 1;
  const bool fits = real > kBelow && real < kAbove;
  return fits ? static_cast<std::int32_t>(real) : kLowest;
}

std::int32_t IntegerFromBoolean(bool boolean) { return boolean ? 1 : 0; }

std::int32_t IntegerFromText(std::string_view text) {
  text = WithoutLeadingSpace(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text = WithoutLeadingSpace(text.substr(1));
  }
  // The magnitude is cut at this limit in each step, so that it cannot
  // overflow. The limit is the magnitude of the lowest result.
  constexpr std::int64_t kMagnitudeLimit = std::int64_t{kHighest} + 1;
  std::int64_t magnitude = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') break;
    magnitude = magnitude * 10 + (digit - '0');
    if (magnitude > kMagnitudeLimit) magnitude = kMagnitudeLimit;
  }
  if (negative) return static_cast<std::int32_t>(-magnitude);
  return magnitude > kHighest ? kHighest : static_cast<std::int32_t>(magnitude);
}

}  // namespace ztk::platform::common
