// SPDX-License-Identifier: MIT
#include "platform/common/number_rules.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace ztk::platform::common {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

}  // namespace

std::int32_t IntegerFromInteger(std::uint64_t bits) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
}

std::int32_t IntegerFromReal(double real) {
  if (std::isnan(real)) return 0;
  // Converting a real outside the range is undefined, so it is tested first.
  if (real <= kLowest) return kLowest;
  if (real >= kHighest) return kHighest;
  return static_cast<std::int32_t>(real);
}

std::int32_t IntegerFromBoolean(bool boolean) { return boolean ? 1 : 0; }

std::int32_t IntegerFromText(std::string_view text) {
  std::size_t at = text.find_first_not_of(kWhiteSpace);
  if (at == std::string_view::npos) return 0;

  const bool negative = text[at] == '-';
  if (negative || text[at] == '+') ++at;
  // The magnitude stops growing just past the limits.
  constexpr std::int64_t kFarEnough = std::int64_t{kHighest} + 1;
  std::int64_t magnitude = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    magnitude = magnitude * 10 + (text[at] - '0');
    if (magnitude > kFarEnough) magnitude = kFarEnough;
  }
  if (negative) return static_cast<std::int32_t>(-magnitude);
  return magnitude > kHighest ? kHighest : static_cast<std::int32_t>(magnitude);
}

}  // namespace ztk::platform::common
