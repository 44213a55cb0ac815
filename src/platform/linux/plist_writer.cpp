// SPDX-License-Identifier: MIT
#include "platform/linux/plist_writer.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "platform/linux/c_locale.h"

namespace ztk::platform::property_list {
namespace {

// Returns a date in the form that strict readers accept. They require a year of
// four digits, but libplist writes years before 1000 with fewer digits. A date
// after the year 9999 becomes the latest date. A text that is not a date
// becomes the earliest date; such a text comes from the file that was read.
std::string StrictDate(std::string_view date) {
  constexpr std::string_view kEarliest = "0001-01-01T00:00:00Z";
  constexpr std::string_view kLatest = "9999-12-31T23:59:59Z";
  constexpr std::size_t kYearDigits = 4;
  const std::size_t year =
      std::min(date.find_first_not_of("0123456789"), date.size());
  if (year > kYearDigits) return std::string(kLatest);
  const std::string strict =
      std::string(kYearDigits - year, '0') + std::string(date);
  const bool good = strict.size() == kEarliest.size() && strict >= kEarliest;
  return good ? strict : std::string(kEarliest);
}

// Rewrites the <date> elements. A text that contains "<date>" is not changed,
// because libplist writes "<" as "&lt;" in texts.
void MakeDatesStrict(std::string *xml) {
  constexpr std::string_view kOpen = "<date>";
  constexpr std::string_view kClose = "</date>";
  constexpr std::string_view kEmpty = "<date/>";
  std::size_t at = 0;
  while ((at = xml->find("<date", at)) != std::string::npos) {
    const bool empty = xml->compare(at, kEmpty.size(), kEmpty) == 0;
    const std::size_t begin = at + kOpen.size();
    const std::size_t end =
        empty ? at + kEmpty.size() : xml->find(kClose, begin) + kClose.size();
    const std::string strict = empty ? StrictDate("")
                                     : StrictDate(std::string_view(*xml).substr(
                                           begin, end - kClose.size() - begin));
    const std::string element =
        std::string(kOpen) + strict + std::string(kClose);
    xml->replace(at, end - at, element);
    at += element.size();
  }
}

}  // namespace

// libplist does not report that memory has run out, so errno is tested.
std::string MakeXml(plist_t root) {
  const ScopedCLocale cLocale;
  errno = 0;
  char *made = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root, &made, &length);
  if (made == nullptr) return "";
  const bool complete = errno != ENOMEM;
  const std::unique_ptr<char, void (*)(void *)> owned(made, std::free);
  std::string xml(made, complete ? length : 0);
  MakeDatesStrict(&xml);
  return xml;
}

}  // namespace ztk::platform::property_list
