// SPDX-License-Identifier: MIT
#include "cli/strings.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

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

constexpr char kReplacement[] = "\xEF\xBF\xBD";  // U+FFFD

// A character of a text and how many bytes it has; none where the bytes are no
// UTF-8.
struct Decoded {
  std::uint32_t code = 0;
  std::size_t length = 0;
};

Decoded DecodeUtf8(const std::string &text, std::size_t begin) {
  const auto byteAt = [&text](std::size_t position) {
    return std::uint32_t{static_cast<unsigned char>(text[position])};
  };
  const std::uint32_t first = byteAt(begin);
  if (first < 0x80) return {.code = first, .length = 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || begin + length > text.size()) return {};
  std::uint32_t code = first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const std::uint32_t next = byteAt(begin + i);
    if ((next & 0xC0) != 0x80) return {};
    code = code << 6 | (next & 0x3F);
  }
  constexpr std::uint32_t kLeast[] = {0x80, 0x800, 0x10000};
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < kLeast[length - 2] || code > 0x10FFFF || surrogate) return {};
  return {.code = code, .length = length};
}

// Control characters, and characters that change the direction of the text
// around them or end a line.
bool ControlsATerminal(std::uint32_t code) {
  const auto within = [code](std::uint32_t first, std::uint32_t last) {
    return code >= first && code <= last;
  };
  return code < 0x20 || within(0x7F, 0x9F) || code == 0x61C ||
         within(0x200E, 0x200F) || within(0x2028, 0x202E) ||
         within(0x2066, 0x2069);
}

}  // namespace

std::string Variable(const char *name) {
  const char *const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

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
  for (std::size_t begin = 0; begin < text.size();) {
    const auto [code, length] = DecodeUtf8(text, begin);
    if (length == 0) {
      line += kReplacement;
      ++begin;
      continue;
    }
    if (ControlsATerminal(code)) {
      line += ' ';
    } else {
      line.append(text, begin, length);
    }
    begin += length;
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

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string Padded(const std::string &text, std::size_t width) {
  return text.size() < width ? text + std::string(width - text.size(), ' ')
                             : text;
}

}  // namespace ztk::cli
