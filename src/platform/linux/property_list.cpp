// SPDX-License-Identifier: MIT
//
// Property lists by libplist. Every file passes the guards first. Texts and
// keys are cleaned on reading of what XML cannot hold, so neither a caller nor
// a written file meets it. Known limits of libplist when a file is rewritten: a
// binary UID becomes a dictionary { CF$UID = n }, a date loses its fraction of
// a second, -0.0 becomes 0.0, an integer with a leading zero is read as octal.
#include "platform/property_list.h"

#include <fcntl.h>
#include <plist/plist.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/common/descriptor.h"
#include "platform/common/interned_text.h"
#include "platform/common/number_rules.h"
#include "platform/common/replace_file.h"
#include "platform/linux/c_locale.h"
#include "platform/linux/clean_text.h"
#include "platform/linux/plist_guards.h"

namespace ztk::platform::property_list {

struct Dictionary {
  plist_t root = nullptr;
  // The file that AddEntriesOfFile() met but could not read; empty for none.
  std::string unreadable;
};

namespace {

enum class Reading { Absent, Unreadable, Read };

// Reads a regular file of at most kMaxFileSize bytes. Opening does not wait for
// the other end of a pipe.
Reading ReadBytes(const char *path, std::string *bytes) {
  const Descriptor file(
      open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (!file.valid()) {
    const bool absent = errno == ENOENT || errno == ENOTDIR;
    return absent ? Reading::Absent : Reading::Unreadable;
  }
  struct stat status = {};
  if (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
      status.st_size > static_cast<off_t>(kMaxFileSize)) {
    return Reading::Unreadable;
  }
  // One byte more than there are shows a file that has grown meanwhile: it is
  // being written in place, and what is read of it would be no whole.
  const auto size = static_cast<std::size_t>(status.st_size);
  bytes->resize(size + 1);
  std::size_t length = 0;
  while (length < bytes->size()) {
    const ssize_t done =
        read(file.get(), bytes->data() + length, bytes->size() - length);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return Reading::Unreadable;
    if (done == 0) break;
    length += static_cast<std::size_t>(done);
  }
  bytes->resize(length);
  return length > size ? Reading::Unreadable : Reading::Read;
}

plist_t CleanCopy(plist_t node);

plist_t CleanCopyOfArray(plist_t array) {
  plist_t copy = plist_new_array();
  plist_array_iter position = nullptr;
  plist_array_new_iter(array, &position);
  plist_t item = nullptr;
  for (plist_array_next_item(array, position, &item); item != nullptr;
       plist_array_next_item(array, position, &item)) {
    plist_array_append_item(copy, CleanCopy(item));
  }
  std::free(position);
  return copy;
}

// Copies the entries; one of the same key is replaced. So of two keys that are
// the same once cleaned, the later one stays.
void AddCleanCopies(plist_t to, plist_t from) {
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(from, &position);
  for (;;) {
    char *key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(from, position, &key, &value);
    if (key == nullptr) break;
    plist_dict_set_item(to, CleanText(key).c_str(), CleanCopy(value));
    std::free(key);
  }
  std::free(position);
}

// The guards bound the depth of this recursion.
plist_t CleanCopy(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
      std::uint64_t length = 0;
      const char *text = plist_get_string_ptr(node, &length);
      return plist_new_string(CleanText({text, length}).c_str());
    }
    case PLIST_ARRAY:
      return CleanCopyOfArray(node);
    case PLIST_DICT: {
      plist_t copy = plist_new_dict();
      AddCleanCopies(copy, node);
      return copy;
    }
    default:
      return plist_copy(node);
  }
}

// The parsed root, owned by the caller, or null.
plist_t Parse(const std::string &bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const ScopedCLocale cLocale;
  plist_t root = nullptr;
  std::string_view content(bytes);
  if (IsBinary(content)) {
    if (!IsSafeBinary(content)) return nullptr;
    plist_from_bin(content.data(), static_cast<std::uint32_t>(content.size()),
                   &root);
    return root;
  }
  // libplist stumbles over the mark.
  if (content.starts_with(kByteOrderMark)) {
    content.remove_prefix(kByteOrderMark.size());
  }
  if (!IsSafeXml(content)) return nullptr;
  plist_from_xml(content.data(), static_cast<std::uint32_t>(content.size()),
                 &root);
  return root;
}

// Adds the entries of a file to a dictionary.
Reading AddFile(plist_t to, const char *path) {
  std::string bytes;
  const Reading reading = ReadBytes(path, &bytes);
  if (reading != Reading::Read) return reading;
  plist_t root = Parse(bytes);
  const bool isDictionary = plist_get_node_type(root) == PLIST_DICT;
  if (isDictionary) AddCleanCopies(to, root);
  plist_free(root);
  return isDictionary ? Reading::Read : Reading::Unreadable;
}

plist_t Entry(const Dictionary *dictionary, ZTKTextRef key) {
  if (dictionary == nullptr || key == nullptr) return nullptr;
  return plist_dict_get_item(dictionary->root, key);
}

// libplist has changed from version to version what it makes of a negative
// number, except of one that it reads itself.
plist_t MakeInteger(std::int32_t value) {
  if (value >= 0) return plist_new_uint(static_cast<std::uint32_t>(value));
  const std::string xml = "<plist version=\"1.0\"><integer>" +
                          std::to_string(value) + "</integer></plist>";
  plist_t node = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
  return node;
}

// A date as strict readers want it: the year in four digits, to which libplist
// does not pad. A later year becomes the latest date; what is no date at all,
// because it was broken in the file that was read, becomes the earliest.
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

// No text is mistaken for an element: "<" is written as "&lt;" in texts.
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

std::string MakeXml(plist_t root) {
  const ScopedCLocale cLocale;
  char *made = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root, &made, &length);
  if (made == nullptr) return "";
  std::string xml(made, length);
  std::free(made);
  MakeDatesStrict(&xml);
  return xml;
}

}  // namespace

Dictionary *ReadFile(ZTKTextRef path) {
  if (path == nullptr) return nullptr;
  Dictionary *dictionary = MakeDictionary();
  if (AddFile(dictionary->root, path) == Reading::Read) return dictionary;
  Release(dictionary);
  return nullptr;
}

Dictionary *MakeDictionary() {
  return new Dictionary{.root = plist_new_dict(), .unreadable = {}};
}

void AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  if (dictionary == nullptr || path == nullptr) return;
  if (AddFile(dictionary->root, path) == Reading::Unreadable) {
    dictionary->unreadable = path;
  }
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value) {
  if (dictionary == nullptr || key == nullptr) return;
  plist_dict_set_item(dictionary->root, CleanText(key).c_str(),
                      MakeInteger(value));
}

bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value) {
  plist_t entry = Entry(dictionary, key);
  switch (plist_get_node_type(entry)) {
    case PLIST_UINT: {
      std::uint64_t integer = 0;
      plist_get_uint_val(entry, &integer);
      *value = common::IntegerFromInteger(integer);
      return true;
    }
    case PLIST_REAL: {
      double real = 0;
      plist_get_real_val(entry, &real);
      *value = common::IntegerFromReal(real);
      return true;
    }
    case PLIST_BOOLEAN: {
      std::uint8_t boolean = 0;
      plist_get_bool_val(entry, &boolean);
      *value = common::IntegerFromBoolean(boolean != 0);
      return true;
    }
    case PLIST_STRING:
      *value = common::IntegerFromText(plist_get_string_ptr(entry, nullptr));
      return true;
    default:
      return false;
  }
}

ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key) {
  plist_t entry = Entry(dictionary, key);
  const char *text = plist_get_string_ptr(entry, nullptr);
  return text == nullptr ? nullptr : common::Intern(text);
}

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path) {
  if (dictionary == nullptr || path == nullptr) return false;
  const std::string xml = MakeXml(dictionary->root);
  // A file that could not be read again would lose everything at the next
  // write. A binary one can grow past the limit by becoming XML.
  if (!IsSafeXml(xml)) return false;
  return ReplaceFile(path, xml, dictionary->unreadable == path);
}

void Release(Dictionary *dictionary) {
  if (dictionary == nullptr) return;
  plist_free(dictionary->root);
  delete dictionary;
}

}  // namespace ztk::platform::property_list
