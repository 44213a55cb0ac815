// SPDX-License-Identifier: MIT
//
// Reads entries of a property list as 32-bit integers, for systems that have no
// functions for this.
#ifndef ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
#define ZTK_PLATFORM_COMMON_NUMBER_RULES_H_

#include <cstdint>
#include <string_view>

namespace ztk::platform::common {

// Returns the low 32 bits as a signed number.
std::int32_t IntegerFromInteger(std::uint64_t bits);

// Rounds towards zero. Returns the lowest integer for NaN and for numbers out
// of range, as Apple's Foundation does on Intel processors.
std::int32_t IntegerFromReal(double real);

// Returns 0 or 1.
std::int32_t IntegerFromBoolean(bool boolean);

// Reads white space, a sign, white space and decimal digits, and ignores the
// rest. A number out of range becomes the nearest limit of 32 bits. Returns 0
// if there is no digit. White space is what Foundation skips: spaces, control
// characters, U+00A0, U+2000 to U+200B and U+3000.
std::int32_t IntegerFromText(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
