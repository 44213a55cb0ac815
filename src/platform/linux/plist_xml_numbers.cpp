// SPDX-License-Identifier: MIT
#include "platform/linux/plist_xml_numbers.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

namespace ztk::platform::property_list {
namespace {

using std::string_view;

bool IsSpace(char c) { return c > 0 && c <= ' '; }

void SkipSpace(string_view *text) {
  const auto *end = std::find_if_not(text->begin(), text->end(), IsSpace);
  text->remove_prefix(static_cast<std::size_t>(end - text->begin()));
}

// Removes a sign at the beginning of the text. Returns true for a minus.
bool TakeSign(string_view *text) {
  const char sign = text->empty() ? '\0' : text->front();
  if (sign == '-' || sign == '+') text->remove_prefix(1);
  return sign == '-';
}

// Returns the integer in decimal form, or no value if the text is not an
// integer of at most 64 bits. The text may contain white space, a sign, white
// space, "0x" for a hexadecimal number, and the digits, in this order.
std::optional<std::string> DecimalInteger(string_view text) {
  SkipSpace(&text);
  const bool negative = TakeSign(&text);
  SkipSpace(&text);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  std::uint64_t value = 0;
  const char *end = text.data() + text.size();
  const auto result =
      std::from_chars(text.data(), end, value, hexadecimal ? 16 : 10);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  constexpr std::uint64_t kLowest = std::uint64_t{1} << 63U;
  if (negative && value > kLowest) return std::nullopt;
  return (negative ? "-" : "") + std::to_string(value);
}

std::size_t TakeDigits(string_view *text) {
  const std::size_t count =
      std::min(text->find_first_not_of("0123456789"), text->size());
  text->remove_prefix(count);
  return count;
}

bool IsInfinityOrNan(string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower == "nan" || lower == "inf" || lower == "infinity";
}

// Returns whether the text is a real number: white space, a sign, digits with
// or without a point, and an exponent. Only the digits are required.
bool IsReal(string_view text) {
  SkipSpace(&text);
  TakeSign(&text);
  if (IsInfinityOrNan(text)) return true;
  std::size_t digits = TakeDigits(&text);
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    digits += TakeDigits(&text);
  }
  if (digits == 0) return false;
  if (text.starts_with('e') || text.starts_with('E')) {
    text.remove_prefix(1);
    TakeSign(&text);
    if (TakeDigits(&text) == 0) return false;
  }
  return text.empty();
}

// Returns the end of the comment, character section or instruction that begins
// at `at`. Returns `at` itself if there is none, and npos if it has no end.
std::size_t EndOfSection(string_view xml, std::size_t at) {
  // "<?>" is a complete instruction for libplist. So the search for the end of
  // an instruction begins at its first "?".
  constexpr struct {
    string_view open, close;
    std::size_t skipped;
  } kSections[] = {{.open = "<!--", .close = "-->", .skipped = 4},
                   {.open = "<![CDATA[", .close = "]]>", .skipped = 9},
                   {.open = "<?", .close = "?>", .skipped = 1}};
  for (const auto &section : kSections) {
    if (!xml.substr(at).starts_with(section.open)) continue;
    const std::size_t close = xml.find(section.close, at + section.skipped);
    return close == string_view::npos ? close : close + section.close.size();
  }
  return at;
}

bool IsElement(string_view tag, string_view name) {
  const string_view rest = tag.substr(std::min(name.size(), tag.size()));
  return tag.starts_with(name) &&
         (rest.empty() || IsSpace(rest.front()) || rest.front() == '/');
}

}  // namespace

bool NormalizeNumbers(std::string *xml) {
  constexpr std::size_t kNone = std::string::npos;
  std::size_t at = 0;
  while ((at = xml->find('<', at)) != kNone) {
    const std::size_t after = EndOfSection(*xml, at);
    const std::size_t end = xml->find('>', at);
    if (after == kNone || end == kNone) return false;
    if (after != at) {
      at = after;
      continue;
    }
    const string_view tag = string_view(*xml).substr(at + 1, end - at - 1);
    const bool integer = IsElement(tag, "integer");
    at = end;
    if (!integer && !IsElement(tag, "real")) continue;

    const std::size_t begin = end + 1;
    const std::size_t close = xml->find('<', begin);
    // The element must contain only the number, not even a comment.
    if (tag.ends_with('/') || close == kNone) return false;
    if (xml->compare(close, 2, "</") != 0) return false;
    const string_view content = string_view(*xml).substr(begin, close - begin);
    if (!integer) {
      if (!IsReal(content)) return false;
      continue;
    }
    const std::optional<std::string> decimal = DecimalInteger(content);
    if (!decimal) return false;
    xml->replace(begin, close - begin, *decimal);
  }
  return true;
}

}  // namespace ztk::platform::property_list
