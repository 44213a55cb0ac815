// SPDX-License-Identifier: MIT
#include "platform/linux/plist_reader.h"

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "platform/common/file_access.h"
#include "platform/common/file_watch.h"
#include "platform/linux/c_locale.h"
#include "platform/linux/clean_text.h"
#include "platform/linux/plist_guards.h"
#include "platform/linux/plist_xml_numbers.h"
#include "platform/linux/plist_xml_text.h"

namespace ztk::platform::property_list {
namespace {

// Which of two entries with the same key is kept.
enum class SameKey { First, Last };

// Copies a tree and cleans its texts and keys.
class CleanCopy {
 public:
  explicit CleanCopy(SameKey sameKey) : sameKey_(sameKey) {}

  // IsSafeXml() and IsSafeBinary() limit the depth of this recursion.
  plist_t Of(plist_t node) {
    switch (plist_get_node_type(node)) {
      case PLIST_STRING: {
        std::uint64_t length = 0;
        const char *text = plist_get_string_ptr(node, &length);
        return plist_new_string(Clean({text, length}).c_str());
      }
      case PLIST_ARRAY:
        return OfArray(node);
      case PLIST_DICT:
        return OfDictionary(node);
      default:
        return plist_copy(node);
    }
  }

  bool incomplete() const { return incomplete_; }

 private:
  std::string Clean(std::string_view text) {
    std::string clean = CleanText(text);
    incomplete_ = incomplete_ || clean != text;
    return clean;
  }

  plist_t OfArray(plist_t array) {
    plist_t copy = plist_new_array();
    plist_array_iter position = nullptr;
    plist_array_new_iter(array, &position);
    plist_t item = nullptr;
    for (plist_array_next_item(array, position, &item); item != nullptr;
         plist_array_next_item(array, position, &item)) {
      plist_array_append_item(copy, Of(item));
    }
    std::free(position);
    return copy;
  }

  // Two different keys may become the same when they are cleaned.
  plist_t OfDictionary(plist_t dictionary) {
    plist_t copy = plist_new_dict();
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(dictionary, &position);
    for (;;) {
      char *key = nullptr;
      plist_t value = nullptr;
      plist_dict_next_item(dictionary, position, &key, &value);
      if (key == nullptr) break;
      const std::string clean = Clean(key);
      std::free(key);
      const bool there = plist_dict_get_item(copy, clean.c_str()) != nullptr;
      if (there && sameKey_ == SameKey::First) continue;
      plist_dict_set_item(copy, clean.c_str(), Of(value));
    }
    std::free(position);
    return copy;
  }

  const SameKey sameKey_;
  bool incomplete_ = false;
};

// Returns the parsed root, which the caller owns, or null.
plist_t Parse(std::string_view bytes) {
  const ScopedCLocale cLocale;
  plist_t root = nullptr;
  if (IsBinary(bytes)) {
    if (!IsSafeBinary(bytes)) return nullptr;
    plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                   &root);
    return root;
  }
  std::optional<std::string> xml = Utf8Xml(bytes);
  if (!xml || !IsSafeXml(*xml) || !NormalizeNumbers(&*xml)) return nullptr;
  const std::string_view text = *xml;
  plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &root);
  return root;
}

// Returns the content of a file with these bytes. If memory runs out, libplist
// omits entries and reports no error, so errno is tested.
FileContent ContentOf(std::string_view bytes) {
  FileContent content = {.result = {.state = ReadState::Damaged}};
  errno = 0;
  plist_t parsed = Parse(bytes);
  if (plist_get_node_type(parsed) == PLIST_DICT) {
    // Foundation keeps the first entry of a binary file and the last entry of
    // an XML file.
    CleanCopy copy(IsBinary(bytes) ? SameKey::First : SameKey::Last);
    content.result.state = ReadState::Read;
    content.root = copy.Of(parsed);
    content.incomplete = copy.incomplete();
  }
  const bool outOfMemory = errno == ENOMEM;
  plist_free(parsed);
  if (!outOfMemory) return content;
  plist_free(content.root);
  return {.result = {.state = ReadState::Unavailable, .error = ENOMEM}};
}

}  // namespace

FileContent ReadContent(const char *path) {
  FileWatch watch;
  std::string bytes;
  for (;;) {
    struct stat status = {};
    const int error = ReadRegularFile(path, kMaxFileSize, &bytes, 0, &status);
    if (error == 0) {
      FileContent content = ContentOf(bytes);
      content.status = status;
      if (content.result.state != ReadState::Damaged) return content;
    }
    if (const std::optional<ReadResult> verdict =
            watch.Judge(error, bytes, status)) {
      return {.result = *verdict,
              .status = error == 0 ? std::optional(status) : std::nullopt};
    }
  }
}

}  // namespace ztk::platform::property_list
