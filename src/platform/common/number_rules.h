// SPDX-License-Identifier: MIT
//
// Rules for reading an entry of a property list as a 32-bit integer, for
// systems without such rules.
#ifndef ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
#define ZTK_PLATFORM_COMMON_NUMBER_RULES_H_

#include <cstdint>
#include <string_view>

namespace ztk::platform::common {

// The low 32 bits, read as signed; the upper ones are cut off.
std::int32_t IntegerFromInteger(std::uint64_t bits);

// Towards zero. NaN and numbers out of range give the lowest integer, as
// Apple's Foundation does on Intel processors.
std::int32_t IntegerFromReal(double real);

// 0 or 1.
std::int32_t IntegerFromBoolean(bool boolean);

// Reads space, a sign, space and digits, and ignores the rest. The result is
// limited to 32 bits; 0 when there is no digit. Only decimal digits count, in
// every locale. Space is what Foundation skips: control characters, U+00A0,
// U+2000 to U+200B and U+3000 as well.
std::int32_t IntegerFromText(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
