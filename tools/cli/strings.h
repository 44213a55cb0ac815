// SPDX-License-Identifier: MIT
//
// Reading single words of the command line.
#ifndef ZTK_TOOLS_CLI_STRINGS_H_
#define ZTK_TOOLS_CLI_STRINGS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ztk::cli {

char LowerCase(char character);
std::string LowerCase(std::string text);

// A number of decimal digits and nothing else; none when it is not, or when it
// does not fit.
std::optional<std::uint32_t> ParseNumber(const std::string &word);
// The same, between two bounds that are both accepted.
std::optional<std::uint32_t> ParseNumber(const std::string &word,
                                         std::uint32_t least,
                                         std::uint32_t most);

// The same, or "0x" and hexadecimal digits.
std::optional<std::uint32_t> ParseDecimalOrHex(const std::string &word);

// One line of text from anything: control characters become spaces. Texts of
// the library and words of the user go through it on their way to a terminal.
std::string OneLine(const std::string &text);

// A word of the user's in quotation marks, on one line and not too long.
std::string Quoted(const std::string &word);

// "a, b, c"
std::string Listed(const std::vector<std::string> &words);

// Fills up with spaces to the width, so that columns align.
std::string Padded(const std::string &text, std::size_t width);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_STRINGS_H_
