// SPDX-License-Identifier: MIT
#include "platform/property_list.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string>

#include "platform/common/file_access.h"
#include "platform/common/file_change.h"
#include "platform/common/file_watch.h"
#include "platform/macos/dictionary.h"
#include "platform/macos/foundation.h"

namespace ztk::platform::property_list {

struct Change {
  FileChange change;
};

namespace {

using macos::StringOf;
using macos::TextOf;

// Returns the value of an entry, or nil. The dictionary and the key may be
// null.
id Entry(const Dictionary *dictionary, ZTKTextRef key) {
  if (dictionary == nullptr || key == nullptr) return nil;
  return [dictionary->entries valueForKey:StringOf(key)];
}

// The dictionary must be one that MakeDictionary() made: others are immutable.
void Add(Dictionary *dictionary, NSDictionary *entries) {
  [(NSMutableDictionary *)dictionary->entries addEntriesFromDictionary:entries];
}

std::string PathOf(ZTKTextRef path) {
  const char *bytes = [StringOf(path) fileSystemRepresentation];
  return bytes == nullptr ? "" : bytes;
}

// Links the file under the first free numbered name, so that its content is
// kept when the file is replaced.
bool KeepAside(const std::string &file) {
  constexpr int kNames = 1000;
  for (int number = 1; number <= kNames; ++number) {
    const std::string kept = file + ".unreadable-" + std::to_string(number);
    if (link(file.c_str(), kept.c_str()) == 0) return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

// Reads the file into *entries, which belongs to the autorelease pool. If
// Foundation cannot read the file, it does not report the reason. So the file
// is then read without Foundation to find the reason.
ReadResult ReadEntries(ZTKTextRef path, NSDictionary **entries) {
  constexpr std::size_t kLargest = std::size_t{1} << 20;
  const std::string file = PathOf(path);
  FileWatch watch;
  std::string bytes;
  for (;;) {
    *entries = [NSDictionary dictionaryWithContentsOfFile:StringOf(path)];
    if (*entries != nil) return {.state = ReadState::Read};
    struct stat status = {};
    const int error =
        ReadRegularFile(file.c_str(), kLargest, &bytes, 0, &status);
    if (const std::optional<ReadResult> verdict =
            watch.Judge(error, bytes, status)) {
      return *verdict;
    }
  }
}

// Returns no value if there is no such file.
std::optional<struct stat> StatusOf(const std::string &file) {
  struct stat status = {};
  if (stat(file.c_str(), &status) != 0) return std::nullopt;
  return status;
}

// Returns true if the file from which the entries were added may be replaced
// now. If that file could not be read, it is kept under another name.
bool PrepareToReplace(const Dictionary &dictionary, int *error) {
  const ReadResult &added = dictionary.added;
  if (!MayBeReplaced(added)) {
    *error = added.error;
    return false;
  }
  const std::string &file = dictionary.addedFrom;
  const std::optional<struct stat> now = StatusOf(file);
  const bool changed = now ? !dictionary.addedStatus ||
                                 !IsSameFile(*dictionary.addedStatus, *now)
                           : dictionary.addedStatus.has_value();
  if (changed) {
    *error = ESTALE;
    return false;
  }
  const bool wasRead =
      added.state == ReadState::Read || added.state == ReadState::Absent;
  if (wasRead || KeepAside(file)) return true;
  *error = errno;
  return false;
}

}  // namespace

// Foundation's dictionary has two references: one of *dictionary, until
// Release(), and one of the autorelease pool, so that its texts stay valid
// until the pool is drained.
ReadResult Read(ZTKTextRef path, Dictionary **dictionary) {
  *dictionary = nullptr;
  if (path == nullptr) return {};
  NSDictionary *entries = nil;
  const ReadResult result = ReadEntries(path, &entries);
  if (entries != nil) {
    *dictionary = new Dictionary{.entries = [entries retain]};
  }
  return result;
}

Dictionary *ReadFile(ZTKTextRef path) {
  Dictionary *dictionary = nullptr;
  Read(path, &dictionary);
  return dictionary;
}

Change *BeginChange(ZTKTextRef path) {
  if (path == nullptr) return nullptr;
  // The system creates the folder for each user. If it is missing, writing
  // fails.
  return new Change{.change = FileChange(PathOf(path), MissingFolders::Leave)};
}

void EndChange(Change *change) { delete change; }

Dictionary *MakeDictionary() {
  return new Dictionary{.entries =
                            [[NSMutableDictionary alloc] initWithCapacity:1]};
}

// The status of the file is stored before the file is read. If another process
// replaces the file between the two steps, WriteAtomically() finds a different
// status.
ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  if (dictionary == nullptr || path == nullptr) return {};
  @autoreleasepool {
    dictionary->addedFrom = PathOf(path);
    dictionary->addedStatus = StatusOf(dictionary->addedFrom);
    NSDictionary *entries = nil;
    dictionary->added = ReadEntries(path, &entries);
    if (entries != nil) Add(dictionary, entries);
    return dictionary->added;
  }
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value) {
  if (dictionary == nullptr || key == nullptr) return;
  @autoreleasepool {
    const id number = [NSNumber numberWithInt:value];
    const id name = StringOf(key);
    NSDictionary *entry = [[NSDictionary alloc] initWithObjects:&number
                                                        forKeys:&name
                                                          count:1];
    Add(dictionary, entry);
    [entry release];
  }
}

// The dictionary must be one that MakeDictionary() made, as for Add().
void RemoveEntry(Dictionary *dictionary, ZTKTextRef key) {
  if (dictionary == nullptr || key == nullptr) return;
  @autoreleasepool {
    [(NSMutableDictionary *)dictionary->entries
        removeObjectForKey:StringOf(key)];
  }
}

bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value) {
  const id entry = Entry(dictionary, key);
  // Dates, data, arrays and dictionaries have no method intValue.
  if (![entry respondsToSelector:@selector(intValue)]) return false;
  *value = [entry intValue];
  return true;
}

ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key) {
  const id entry = Entry(dictionary, key);
  if (![entry isKindOfClass:[NSString class]]) return nullptr;
  return TextOf(entry);
}

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error) {
  int ignored = 0;
  int *reason = error != nullptr ? error : &ignored;
  *reason = EINVAL;
  if (dictionary == nullptr || path == nullptr) return false;
  @autoreleasepool {
    const std::string file = PathOf(path);
    const bool sameFile = dictionary->addedFrom == file;
    if (sameFile && !PrepareToReplace(*dictionary, reason)) return false;
    // Foundation does not report why it could not write the file.
    *reason = 0;
    return [dictionary->entries writeToFile:StringOf(path) atomically:YES];
  }
}

void Release(Dictionary *dictionary) {
  if (dictionary == nullptr) return;
  [dictionary->entries release];
  delete dictionary;
}

}  // namespace ztk::platform::property_list
