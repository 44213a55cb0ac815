// SPDX-License-Identifier: MIT
#include "cli/strings.h"

#include <charconv>

namespace ztk::cli {

namespace {

constexpr std::size_t kLongestQuotation = 60;  // bytes

std::optional<std::uint32_t> ParseInBase(std::string_view word, int base) {
  std::uint32_t number = 0;
  const char *const end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, number, base);
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

std::optional<std::uint32_t> ParseNumber(std::string_view word) {
  return ParseInBase(word, 10);
}

std::optional<std::uint32_t> ParseNumber(std::string_view word,
                                         std::uint32_t least,
                                         std::uint32_t most) {
  const auto number = ParseNumber(word);
  return number && *number >= least && *number <= most ? number : std::nullopt;
}

std::optional<std::uint32_t> ParseHex(std::string_view word) {
  return ParseInBase(word, 16);
}

std::optional<std::uint32_t> ParseDecimalOrHex(std::string_view word) {
  if (!word.starts_with("0x") && !word.starts_with("0X")) {
    return ParseNumber(word);
  }
  return ParseHex(word.substr(2));
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
