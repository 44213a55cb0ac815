// SPDX-License-Identifier: MIT
//
// How an entry of a property list is read as a 32-bit integer, for ports whose
// system has no rule of its own.
#ifndef ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
#define ZTK_PLATFORM_COMMON_NUMBER_RULES_H_

#include <cstdint>
#include <string_view>

namespace ztk::platform::common {

// The low 32 bits, read as signed; the upper ones are cut off.
std::int32_t IntegerFromInteger(std::uint64_t bits);

// Towards zero. NaN and what is out of range are the lowest integer: so Apple's
// Foundation answers on Intel processors.
std::int32_t IntegerFromReal(double real);

// 0 or 1.
std::int32_t IntegerFromBoolean(bool boolean);

// Space, a sign, space, digits; what follows is ignored. Held at the 32-bit
// limits; 0 where there is no digit. Decimal only, and no locale matters. Space
// is what Foundation takes for it: control characters, U+00A0, U+2000 to U+200B
// and U+3000 as well.
std::int32_t IntegerFromText(std::string_view text);

}  // namespace ztk::platform::common

#endif  // ZTK_PLATFORM_COMMON_NUMBER_RULES_H_
