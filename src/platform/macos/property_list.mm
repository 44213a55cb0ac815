// SPDX-License-Identifier: MIT
//
// A Dictionary is an NSDictionary, a made one an NSMutableDictionary.
#include "platform/property_list.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <optional>
#include <string>

#include "platform/common/file_access.h"
#include "platform/common/file_change.h"
#include "platform/common/pause.h"
#include "platform/macos/foundation.h"

namespace ztk::platform::property_list {

struct Change {
  FileChange change;
};

namespace {

using macos::StringOf;
using macos::TextOf;

NSDictionary *DictionaryOf(const Dictionary *dictionary) {
  return (NSDictionary *)dictionary;
}

NSMutableDictionary *FilledOf(Dictionary *dictionary) {
  return (NSMutableDictionary *)dictionary;
}

std::string PathOf(ZTKTextRef path) {
  const char *bytes = [StringOf(path) fileSystemRepresentation];
  return bytes == nullptr ? "" : bytes;
}

// Why Foundation could not read the file as a dictionary. It does not say, so
// the file is read once more: a file is damaged when two readings gave the same
// bytes. One larger than any settings file is not read.
ReadResult ReasonFor(ZTKTextRef path) {
  constexpr std::size_t kLargest = std::size_t{1} << 20;
  constexpr std::chrono::milliseconds kPause{8};
  std::string first;
  std::string second;
  const std::string file = PathOf(path);
  int error = ReadRegularFile(file.c_str(), kLargest, &first);
  if (error == 0) {
    Pause(kPause);
    error = ReadRegularFile(file.c_str(), kLargest, &second);
  }
  if (error == ENOENT || error == ENOTDIR) {
    return {.state = ReadState::Absent};
  }
  if (error == EFBIG || (error == 0 && first == second)) {
    return {.state = ReadState::Damaged};
  }
  return {.state = ReadState::Unavailable, .error = error == 0 ? EBUSY : error};
}

// Gives a file another name beside its own, the first that is free. The old
// bytes stay when the file is replaced.
bool KeepAside(const std::string &file) {
  constexpr int kNames = 1000;
  for (int number = 1; number <= kNames; ++number) {
    const std::string kept = file + ".unreadable-" + std::to_string(number);
    if (link(file.c_str(), kept.c_str()) == 0) return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

// Reads the file into *entries, which belongs to the autorelease pool. A file
// that does not parse may be one that another program is just writing over, so
// it is tried again.
ReadResult ReadEntries(ZTKTextRef path, NSDictionary **entries) {
  constexpr int kAttempts = 3;
  ReadResult result;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    *entries = [NSDictionary dictionaryWithContentsOfFile:StringOf(path)];
    if (*entries != nil) return {.state = ReadState::Read};
    result = ReasonFor(path);
    if (result.error != EBUSY && result.state != ReadState::Damaged) break;
  }
  return result;
}

}  // namespace

// Held twice: by the caller until Release(), and by the autorelease pool, so
// that texts taken from it stay valid until the pool drains.
ReadResult Read(ZTKTextRef path, Dictionary **dictionary) {
  *dictionary = nullptr;
  if (path == nullptr) return {};
  NSDictionary *entries = nil;
  const ReadResult result = ReadEntries(path, &entries);
  *dictionary = (Dictionary *)[entries retain];
  return result;
}

Dictionary *ReadFile(ZTKTextRef path) {
  Dictionary *dictionary = nullptr;
  Read(path, &dictionary);
  return dictionary;
}

Change *BeginChange(ZTKTextRef path) {
  if (path == nullptr) return nullptr;
  // The system creates this folder for each user: writing fails without it.
  return new Change{.change = FileChange(PathOf(path), MissingFolders::Leave)};
}

void EndChange(Change *change) { delete change; }

Dictionary *MakeDictionary() {
  return (Dictionary *)[[NSMutableDictionary alloc] initWithCapacity:1];
}

ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  if (path == nullptr) return {};
  @autoreleasepool {
    NSDictionary *entries = nil;
    const ReadResult result = ReadEntries(path, &entries);
    if (entries != nil) [FilledOf(dictionary) addEntriesFromDictionary:entries];
    return result;
  }
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value) {
  if (key == nullptr) return;
  @autoreleasepool {
    const id number = [NSNumber numberWithInt:value];
    const id name = StringOf(key);
    NSDictionary *entry = [[NSDictionary alloc] initWithObjects:&number
                                                        forKeys:&name
                                                          count:1];
    [FilledOf(dictionary) addEntriesFromDictionary:entry];
    [entry release];
  }
}

bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value) {
  if (key == nullptr) return false;
  const id entry = [DictionaryOf(dictionary) valueForKey:StringOf(key)];
  // Dates, data, arrays and dictionaries have no number in them.
  if (![entry respondsToSelector:@selector(intValue)]) return false;
  *value = [entry intValue];
  return true;
}

ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key) {
  if (key == nullptr) return nullptr;
  const id entry = [DictionaryOf(dictionary) valueForKey:StringOf(key)];
  if (![entry isKindOfClass:[NSString class]]) return nullptr;
  return TextOf(entry);
}

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error) {
  // Foundation does not say why it could not write.
  if (error != nullptr) *error = 0;
  if (path == nullptr) return false;
  @autoreleasepool {
    NSDictionary *old = nil;
    const ReadResult result = ReadEntries(path, &old);
    const bool wasRead =
        result.state == ReadState::Read || result.state == ReadState::Absent;
    const bool mayBeReplaced =
        MayBeReplaced(result) && (wasRead || KeepAside(PathOf(path)));
    if (!mayBeReplaced) {
      if (error != nullptr) *error = result.error;
      return false;
    }
    return [DictionaryOf(dictionary) writeToFile:StringOf(path) atomically:YES];
  }
}

void Release(Dictionary *dictionary) { [DictionaryOf(dictionary) release]; }

}  // namespace ztk::platform::property_list
