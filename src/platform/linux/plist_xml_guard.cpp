// SPDX-License-Identifier: MIT
//
// The scan of XML property lists. It does not need to understand the elements,
// but it has to find the same tags as libplist: otherwise a file could contain
// nesting that the scan does not count. So it refuses everything that two
// parsers may read differently: unpaired quotes in a tag, a "<" in a tag, a tag
// name with unusual characters.
#include "platform/linux/plist_guards.h"

#include <algorithm>

namespace ztk::platform::property_list {
namespace {

using std::string_view;

constexpr string_view kWhiteSpace = " \t\r\n";

// The comparison of ranges is faster than a search in a text of all characters.
// This function is called for every tag of every file.
bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         (c >= '0' && c <= '9') || c == '_' || c == ':' || c == '.' || c == '-';
}

bool QuotesPairUp(string_view text) {
  return std::count(text.begin(), text.end(), '"') % 2 == 0;
}

// Removes the first `size` bytes from `rest` and returns them in *taken. Also
// removes the `endSize` bytes after them. Returns false if `size` is npos.
bool Take(std::size_t size, std::size_t endSize, string_view *rest,
          string_view *taken) {
  if (size == string_view::npos) return false;
  *taken = rest->substr(0, size);
  rest->remove_prefix(size + endSize);
  return true;
}

// Removes the beginning of `rest` up to and including `end`, and returns the
// text before `end` in *taken. Returns false if `rest` does not contain `end`.
bool TakeUntil(string_view end, string_view *rest, string_view *taken) {
  return Take(rest->find(end), end.size(), rest, taken);
}
bool TakeUntil(char end, string_view *rest, string_view *taken) {
  return Take(rest->find(end), 1, rest, taken);
}

bool TakePrefix(string_view prefix, string_view *rest) {
  if (!rest->starts_with(prefix)) return false;
  rest->remove_prefix(prefix.size());
  return true;
}

enum class Tag { Opening, Closing, Empty, Malformed };

// Returns the kind of a tag. `tag` is the text between "<" and ">".
Tag KindOf(string_view tag) {
  bool quoted = false;
  for (const char character : tag) {
    if (character == '<') return Tag::Malformed;
    if (character == '"') quoted = !quoted;
  }
  if (quoted) return Tag::Malformed;
  const bool closing = TakePrefix("/", &tag);
  const bool empty = !tag.empty() && tag.back() == '/';
  if (empty) tag.remove_suffix(1);

  const auto nameEnd =
      std::find_if_not(tag.begin(), tag.end(), IsNameCharacter);
  if (nameEnd == tag.begin()) return Tag::Malformed;
  if (nameEnd != tag.end() && kWhiteSpace.find(*nameEnd) == string_view::npos) {
    return Tag::Malformed;
  }
  if (closing && empty) return Tag::Malformed;
  if (closing) return Tag::Closing;
  return empty ? Tag::Empty : Tag::Opening;
}

// Removes a comment, character section, declaration or instruction from the
// beginning of `rest`, which starts after a "<". Sets *taken to whether there
// was one. Returns false if it is malformed.
bool TakeMarkup(string_view *rest, bool *taken) {
  *taken = rest->starts_with('!') || rest->starts_with('?');
  if (!*taken) return true;
  string_view content;
  if (TakePrefix("!--", rest)) return TakeUntil("-->", rest, &content);
  if (TakePrefix("![CDATA[", rest)) return TakeUntil("]]>", rest, &content);
  // The search begins at the first "?", because libplist accepts "<?>" as a
  // complete instruction.
  if (rest->starts_with('?')) {
    return TakeUntil("?>", rest, &content) && QuotesPairUp(content);
  }
  return TakePrefix("!DOCTYPE", rest) && TakeUntil('>', rest, &content) &&
         QuotesPairUp(content) &&
         content.find_first_of("[<") == string_view::npos;
}

// Returns true if libplist ignores the text after a comment in this element.
// `tag` is the last tag that was read.
bool LosesTextAfterMarkup(string_view tag) {
  const string_view name = tag.substr(0, tag.find_first_of(kWhiteSpace));
  return name == "data" || name == "date";
}

}  // namespace

bool IsBinary(string_view bytes) { return bytes.starts_with("bplist00"); }

bool IsSafeXml(string_view bytes) {
  if (bytes.size() > kMaxFileSize) return false;
  if (bytes.find('\0') != string_view::npos) return false;
  const std::size_t start = bytes.find_first_not_of(kWhiteSpace);
  if (start == string_view::npos || bytes[start] != '<') return false;

  // Besides arrays and dictionaries, two more elements can be open: the <plist>
  // around them and one value inside.
  constexpr std::size_t kMaxOpen = kMaxDepth + 2;
  std::size_t open = 0;
  string_view rest = bytes;
  string_view text;
  string_view tag;
  while (TakeUntil('<', &rest, &text)) {
    bool isMarkup = false;
    if (!TakeMarkup(&rest, &isMarkup)) return false;
    if (isMarkup && LosesTextAfterMarkup(tag)) return false;
    if (isMarkup) continue;

    if (!TakeUntil('>', &rest, &tag)) return false;
    switch (KindOf(tag)) {
      case Tag::Opening:
        if (++open > kMaxOpen) return false;
        break;
      case Tag::Closing:
        if (open-- == 0) return false;
        break;
      case Tag::Empty:
        break;
      case Tag::Malformed:
        return false;
    }
  }
  return open == 0;
}

}  // namespace ztk::platform::property_list
