// SPDX-License-Identifier: MIT
#include "platform/linux/plist_xml_text.h"

#include <iconv.h>

#include <algorithm>
#include <cstddef>

#include "platform/linux/plist_guards.h"

namespace ztk::platform::property_list {
namespace {

using std::string_view;

// The encodings that editors write. Only these are passed to iconv(), because
// other converters of iconv() have had security bugs.
struct Encoding {
  string_view declared;  // upper case, as in an XML declaration
  const char *converter;
};
constexpr Encoding kEncodings[] = {
    {.declared = "ISO-8859-1", .converter = "ISO-8859-1"},
    {.declared = "LATIN1", .converter = "ISO-8859-1"},
    {.declared = "ISO-8859-15", .converter = "ISO-8859-15"},
    {.declared = "WINDOWS-1252", .converter = "CP1252"},
};

// The byte order mark and the first character "<" in the two byte orders of
// UTF-16.
struct Utf16Order {
  string_view mark;
  string_view begin;
  const char *converter;
};
constexpr Utf16Order kUtf16Orders[] = {
    {.mark = {"\xFF\xFE", 2}, .begin = {"<\0", 2}, .converter = "UTF-16LE"},
    {.mark = {"\xFE\xFF", 2}, .begin = {"\0<", 2}, .converter = "UTF-16BE"},
};

// Converts the bytes to UTF-8. Returns no value if the system does not have
// this converter, or if the bytes are not valid in the encoding.
std::optional<std::string> Convert(string_view bytes, const char *converter) {
  const iconv_t conversion = iconv_open("UTF-8", converter);
  if (conversion == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  // In these encodings, each byte becomes at most three bytes of UTF-8.
  std::string text(3 * bytes.size(), '\0');
  char *from = const_cast<char *>(bytes.data());
  std::size_t fromLeft = bytes.size();
  char *to = text.data();
  std::size_t toLeft = text.size();
  const std::size_t result = iconv(conversion, &from, &fromLeft, &to, &toLeft);
  iconv_close(conversion);
  if (result != 0 || fromLeft != 0) return std::nullopt;
  text.resize(text.size() - toLeft);
  return text;
}

// Returns the value of `encoding` in the XML declaration, in upper case. Empty
// if there is none.
std::string DeclaredEncoding(string_view bytes) {
  constexpr string_view kKeyword = "encoding";
  if (!bytes.starts_with("<?xml")) return "";
  const string_view declaration = bytes.substr(0, bytes.find("?>"));
  const std::size_t keyword = declaration.find(kKeyword);
  if (keyword == string_view::npos) return "";
  const std::size_t begin =
      declaration.find_first_of("\"'", keyword + kKeyword.size());
  if (begin == string_view::npos) return "";
  const std::size_t end = declaration.find(declaration[begin], begin + 1);
  if (end == string_view::npos) return "";
  std::string name(declaration.substr(begin + 1, end - begin - 1));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return name;
}

}  // namespace

std::optional<std::string> Utf8Xml(string_view bytes) {
  constexpr string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kUtf8Mark)) {
    return std::string(bytes.substr(kUtf8Mark.size()));
  }
  for (const Utf16Order &order : kUtf16Orders) {
    if (bytes.starts_with(order.mark)) {
      return Convert(bytes.substr(order.mark.size()), order.converter);
    }
    if (bytes.starts_with(order.begin)) return Convert(bytes, order.converter);
  }
  const std::string declared = DeclaredEncoding(bytes);
  if (declared.empty() || declared == "UTF-8" || declared == "UTF8" ||
      declared == "US-ASCII" || declared == "ASCII") {
    return std::string(bytes);
  }
  for (const Encoding &encoding : kEncodings) {
    if (encoding.declared == declared) {
      return Convert(bytes, encoding.converter);
    }
  }
  return std::nullopt;
}

}  // namespace ztk::platform::property_list
