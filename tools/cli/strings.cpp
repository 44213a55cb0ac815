// SPDX-License-Identifier: MIT
#include "cli/strings.h"

#include <charconv>

namespace ztk::cli {

namespace {

constexpr std::size_t kLongestQuotation = 60;  // bytes

}  // namespace

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

std::optional<std::uint32_t> ParseNumber(const std::string &word,
                                         std::uint32_t least,
                                         std::uint32_t most) {
  const std::optional<std::uint32_t> number = ParseNumber(word);
  if (!number || *number < least || *number > most) return std::nullopt;
  return number;
}

std::optional<std::uint32_t> ParseDecimalOrHex(const std::string &word) {
  if (!word.starts_with("0x") && !word.starts_with("0X")) {
    return ParseNumber(word);
  }
  return Parse(word.data() + 2, word.data() + word.size(), 16);
}

std::string OneLine(const std::string &text) {
  std::string line;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    line += byte < 0x20 || byte == 0x7F ? ' ' : character;
  }
  return line;
}

std::string Quoted(const std::string &word) {
  if (word.size() <= kLongestQuotation) return '"' + OneLine(word) + '"';
  return '"' + OneLine(word.substr(0, kLongestQuotation)) + "...\"";
}

std::string Listed(const std::vector<std::string> &words) {
  std::string list;
  for (const std::string &word : words) {
    if (!list.empty()) list += ", ";
    list += word;
  }
  return list;
}

std::string Padded(const std::string &text, std::size_t width) {
  return text.size() < width ? text + std::string(width - text.size(), ' ')
                             : text;
}

}  // namespace ztk::cli
