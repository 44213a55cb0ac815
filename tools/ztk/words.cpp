// SPDX-License-Identifier: MIT
#include "words.h"

#include <charconv>

namespace ztk::cli {

namespace {

std::optional<std::uint32_t> Parse(const char *begin, const char *end,
                                   int base) {
  std::uint32_t number = 0;
  const auto [rest, error] = std::from_chars(begin, end, number, base);
  if (error != std::errc{} || rest != end) return std::nullopt;
  return number;
}

}  // namespace

char LowerCase(char character) {
  const bool upper = character >= 'A' && character <= 'Z';
  return upper ? static_cast<char>(character - 'A' + 'a') : character;
}

std::string LowerCase(std::string text) {
  for (char &character : text) character = LowerCase(character);
  return text;
}

std::optional<std::uint32_t> ParseNumber(const std::string &word) {
  return Parse(word.data(), word.data() + word.size(), 10);
}

std::optional<std::uint32_t> ParseDecimalOrHex(const std::string &word) {
  if (!word.starts_with("0x") && !word.starts_with("0X")) {
    return ParseNumber(word);
  }
  return Parse(word.data() + 2, word.data() + word.size(), 16);
}

}  // namespace ztk::cli
