// SPDX-License-Identifier: MIT
//
// Reads and writes property lists with libplist. Known limits of libplist when
// a file is rewritten: a binary UID becomes a dictionary { CF$UID = n }, a date
// loses its fraction of a second, -0.0 becomes 0.0.
#include "platform/property_list.h"

#include <plist/plist.h>

#include <cerrno>
#include <new>
#include <optional>
#include <string>

#include "platform/common/file_change.h"
#include "platform/common/interned_text.h"
#include "platform/common/number_rules.h"
#include "platform/common/replace_file.h"
#include "platform/linux/clean_text.h"
#include "platform/linux/plist_guards.h"
#include "platform/linux/plist_reader.h"
#include "platform/linux/plist_writer.h"

namespace ztk::platform::property_list {

struct Dictionary {
  plist_t root = nullptr;
  // The path of AddEntriesOfFile() and its result. The path is empty before the
  // call.
  std::string addedFrom = {};
  ReadResult added = {};
  bool addedIncomplete = false;
  std::optional<struct stat> addedStatus = {};
  // True if memory ran out while entries were added, so that some may be
  // missing.
  bool lacksMemory = false;
};

struct Change {
  FileChange change;
};

namespace {

plist_t Entry(const Dictionary *dictionary, ZTKTextRef key) {
  if (dictionary == nullptr || key == nullptr) return nullptr;
  return plist_dict_get_item(dictionary->root, key);
}

// Different versions of libplist write a negative number differently, unless
// they have read it from XML. So a negative number is made from XML.
plist_t MakeInteger(std::int32_t value) {
  if (value >= 0) return plist_new_uint(static_cast<std::uint32_t>(value));
  const std::string xml = "<plist version=\"1.0\"><integer>" +
                          std::to_string(value) + "</integer></plist>";
  plist_t node = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
  return node;
}

}  // namespace

ReadResult Read(ZTKTextRef path, Dictionary **dictionary) try {
  *dictionary = nullptr;
  if (path == nullptr) return {};
  const FileContent content = ReadContent(path);
  if (content.result.state == ReadState::Read) {
    *dictionary = new (std::nothrow) Dictionary{.root = content.root};
    if (*dictionary == nullptr) {
      plist_free(content.root);
      return {.state = ReadState::Unavailable, .error = ENOMEM};
    }
  }
  return content.result;
} catch (const std::bad_alloc &) {
  return {.state = ReadState::Unavailable, .error = ENOMEM};
}

Dictionary *ReadFile(ZTKTextRef path) {
  Dictionary *dictionary = nullptr;
  Read(path, &dictionary);
  return dictionary;
}

Change *BeginChange(ZTKTextRef path) try {
  return path == nullptr
             ? nullptr
             : new Change{.change = FileChange(path, MissingFolders::Create)};
} catch (const std::bad_alloc &) {
  return nullptr;
}

void EndChange(Change *change) { delete change; }

Dictionary *MakeDictionary() try {
  return new Dictionary{.root = plist_new_dict()};
} catch (const std::bad_alloc &) {
  return nullptr;
}

ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) try {
  if (dictionary == nullptr || path == nullptr) return {};
  const FileContent content = ReadContent(path);
  if (content.root != nullptr) {
    errno = 0;
    plist_dict_merge(&dictionary->root, content.root);
    dictionary->lacksMemory = dictionary->lacksMemory || errno == ENOMEM;
    plist_free(content.root);
  }
  dictionary->addedFrom = path;
  dictionary->added = content.result;
  dictionary->addedIncomplete = content.incomplete;
  dictionary->addedStatus = content.status;
  return content.result;
} catch (const std::bad_alloc &) {
  dictionary->lacksMemory = true;
  return {.state = ReadState::Unavailable, .error = ENOMEM};
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key,
                std::int32_t value) try {
  if (dictionary == nullptr || key == nullptr) return;
  // The text is made first: if its allocation fails, no node remains.
  const std::string clean = CleanText(key);
  errno = 0;
  plist_dict_set_item(dictionary->root, clean.c_str(), MakeInteger(value));
  dictionary->lacksMemory = dictionary->lacksMemory || errno == ENOMEM;
} catch (const std::bad_alloc &) {
  dictionary->lacksMemory = true;
}

void RemoveEntry(Dictionary *dictionary, ZTKTextRef key) try {
  if (dictionary == nullptr || key == nullptr) return;
  plist_dict_remove_item(dictionary->root, CleanText(key).c_str());
} catch (const std::bad_alloc &) {
  dictionary->lacksMemory = true;
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

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error) try {
  int ignored = 0;
  int *reason = error != nullptr ? error : &ignored;
  *reason = EINVAL;
  if (dictionary == nullptr || path == nullptr) return false;
  const bool sameFile = dictionary->addedFrom == path;
  if (sameFile && !MayBeReplaced(dictionary->added)) {
    *reason = dictionary->added.error;
    return false;
  }
  const std::string xml = MakeXml(dictionary->root);
  const bool complete = dictionary->root != nullptr && !dictionary->lacksMemory;
  if (xml.empty() || !complete) {
    *reason = ENOMEM;
    return false;
  }
  // A file that cannot be read again would lose all its entries at the next
  // change. The XML form of a binary file can be larger than the limit.
  if (!IsSafeXml(xml)) {
    *reason = EFBIG;
    return false;
  }
  const bool keepOld =
      sameFile && (dictionary->added.state == ReadState::Damaged ||
                   dictionary->added.state == ReadState::Unavailable ||
                   dictionary->addedIncomplete);
  const bool hasStatus = sameFile && dictionary->addedStatus;
  return ReplaceFile(path, xml, keepOld, reason,
                     hasStatus ? &*dictionary->addedStatus : nullptr);
} catch (const std::bad_alloc &) {
  if (error != nullptr) *error = ENOMEM;
  return false;
}

void Release(Dictionary *dictionary) {
  if (dictionary == nullptr) return;
  plist_free(dictionary->root);
  delete dictionary;
}

}  // namespace ztk::platform::property_list
