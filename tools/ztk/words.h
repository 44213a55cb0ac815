// SPDX-License-Identifier: MIT
//
// Reading single words of the command line.
#ifndef ZTK_TOOLS_ZTK_WORDS_H_
#define ZTK_TOOLS_ZTK_WORDS_H_

#include <cstdint>
#include <optional>
#include <string>

namespace ztk::cli {

char LowerCase(char character);
std::string LowerCase(std::string text);

// A number of decimal digits and nothing else; none when it is not, or when it
// does not fit.
std::optional<std::uint32_t> ParseNumber(const std::string &word);

// The same, or "0x" and hexadecimal digits.
std::optional<std::uint32_t> ParseDecimalOrHex(const std::string &word);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_ZTK_WORDS_H_
