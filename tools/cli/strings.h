// SPDX-License-Identifier: MIT
//
// Words of a command line: reading numbers, preparing text for messages.
#ifndef ZTK_TOOLS_CLI_STRINGS_H_
#define ZTK_TOOLS_CLI_STRINGS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ztk::cli {

// The value of an environment variable; empty when it is not set.
std::string Variable(const char *name);

char LowerCase(char character);
std::string LowerCase(std::string text);

// A number of decimal digits and nothing else. Empty for anything else, and
// when the number does not fit or lies outside of the bounds.
std::optional<std::uint32_t> ParseNumber(std::string_view word);
std::optional<std::uint32_t> ParseNumber(std::string_view word,
                                         std::uint32_t least,
                                         std::uint32_t most);

// A decimal number, or "0x" and hexadecimal digits. Empty for anything else.
std::optional<std::uint32_t> ParseDecimalOrHex(std::string_view word);

// Hexadecimal digits and nothing else.
std::optional<std::uint32_t> ParseHex(std::string_view word);

// Replaces control characters and characters that change the direction of text
// by spaces, and bytes that are not UTF-8 by U+FFFD. Text of the library and of
// the user is shown in a terminal only after this.
std::string OneLine(const std::string &text);

// A word in quotation marks, on one line, cut when it is long.
std::string Quoted(const std::string &word);

// "a, b, c"
std::string Listed(const std::vector<std::string> &words);

// The lines of a text, without their ends. The last line need not have one.
std::vector<std::string> LinesOf(std::string_view text);

// Appends spaces up to the width, to align columns.
std::string Padded(const std::string &text, std::size_t width);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_STRINGS_H_
