// SPDX-License-Identifier: MIT
//
// The functions of text.h for systems on which ZTKTextRef is a UTF-8 string. A
// new text is allocated with malloc().
#include "platform/text.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>

namespace ztk::platform::text {
namespace {

ZTKTextRef Make(std::string_view content) {
  auto *made = static_cast<char *>(std::malloc(content.size() + 1));
  if (made == nullptr) return nullptr;
  std::memcpy(made, content.data(), content.size());
  made[content.size()] = '\0';
  return made;
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Removes the digits at the beginning of `rest` and returns them without
// leading zeros.
std::string_view TakeNumber(std::string_view *rest) {
  std::size_t end = 0;
  while (end < rest->size() && IsDigit((*rest)[end])) ++end;
  std::string_view digits = rest->substr(0, end);
  rest->remove_prefix(end);
  while (!digits.empty() && digits.front() == '0') digits.remove_prefix(1);
  return digits;
}

// Compares two numbers without leading zeros. The number with more digits is
// greater. The digits are compared as text, so no number can overflow.
int CompareNumbers(std::string_view first, std::string_view second) {
  if (first.size() != second.size()) {
    return first.size() < second.size() ? -1 : 1;
  }
  return first.compare(second);
}

// The arguments of a format. Each "%@" is replaced by the next text, "%d" by
// the number and "%%" by a percent sign. A "%@" without a text is removed.
struct Arguments {
  const ZTKTextRef *texts;
  std::size_t textCount;
  std::int32_t number;
};

ZTKTextRef Fill(ZTKTextRef format, const Arguments &arguments) try {
  if (format == nullptr) return nullptr;
  const std::string_view pattern(format);
  std::string filled;
  std::size_t nextText = 0;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const std::size_t percent = std::min(pattern.find('%', at), pattern.size());
    filled += pattern.substr(at, percent - at);
    at = percent;
    const std::string_view verb = pattern.substr(at, 2);
    if (verb == "%@") {
      if (nextText < arguments.textCount) {
        if (arguments.texts[nextText] == nullptr) return nullptr;
        filled += arguments.texts[nextText++];
      }
    } else if (verb == "%d") {
      filled += std::to_string(arguments.number);
    } else if (verb == "%%") {
      filled += '%';
    } else {
      filled += verb.substr(0, 1);
      continue;
    }
    ++at;
  }
  return Make(filled);
} catch (const std::bad_alloc &) {
  return nullptr;
}

}  // namespace

// Only ASCII letters are mapped, because the rules for other letters depend on
// the language.
ZTKTextRef UpperCase(ZTKTextRef text) try {
  if (text == nullptr) return nullptr;
  std::string upper(text);
  for (char &character : upper) {
    if (character >= 'a' && character <= 'z') {
      character = static_cast<char>(character - 'a' + 'A');
    }
  }
  return Make(upper);
} catch (const std::bad_alloc &) {
  return nullptr;
}

bool Contains(ZTKTextRef text, ZTKTextRef part) {
  if (text == nullptr || part == nullptr) return false;
  return std::strstr(text, part) != nullptr;
}

ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first) {
  return Fill(format, {.texts = &first, .textCount = 1, .number = 0});
}

ZTKTextRef Format(ZTKTextRef format, ZTKTextRef first, ZTKTextRef second) {
  const ZTKTextRef texts[] = {first, second};
  return Fill(format, {.texts = texts, .textCount = 2, .number = 0});
}

ZTKTextRef Format(ZTKTextRef format, std::int32_t number) {
  return Fill(format, {.texts = nullptr, .textCount = 0, .number = number});
}

ZTKTextRef DotComponent(ZTKTextRef text, unsigned position) {
  if (text == nullptr) return nullptr;
  std::string_view rest(text);
  for (; position > 0; --position) {
    const std::size_t dot = rest.find('.');
    if (dot == std::string_view::npos) return nullptr;
    rest.remove_prefix(dot + 1);
  }
  return Make(rest.substr(0, rest.find('.')));
}

// A null text is less than every other text.
int CompareNumerically(ZTKTextRef first, ZTKTextRef second) {
  if (first == nullptr || second == nullptr) {
    return (first != nullptr) - (second != nullptr);
  }
  std::string_view left(first);
  std::string_view right(second);
  while (!left.empty() && !right.empty()) {
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      const std::string_view leftNumber = TakeNumber(&left);
      const int order = CompareNumbers(leftNumber, TakeNumber(&right));
      if (order != 0) return order;
      continue;
    }
    // string_view compares bytes as unsigned numbers, so UTF-8 is sorted by
    // code points.
    const int order = left.substr(0, 1).compare(right.substr(0, 1));
    if (order != 0) return order;
    left.remove_prefix(1);
    right.remove_prefix(1);
  }
  return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

void Release(ZTKTextRef text) { std::free(const_cast<char *>(text)); }

}  // namespace ztk::platform::text
