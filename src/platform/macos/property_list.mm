// SPDX-License-Identifier: MIT
//
// A Dictionary is an NSDictionary, a made one an NSMutableDictionary.
#include "platform/property_list.h"

#include "platform/macos/foundation.h"

namespace ztk::platform::property_list {
namespace {

using macos::StringOf;
using macos::TextOf;

NSDictionary *DictionaryOf(const Dictionary *dictionary) {
  return (NSDictionary *)dictionary;
}

NSMutableDictionary *FilledOf(Dictionary *dictionary) {
  return (NSMutableDictionary *)dictionary;
}

}  // namespace

// Held twice: by the caller until Release(), and by the autorelease pool, so
// that texts taken out of it live on until that drains.
Dictionary *ReadFile(ZTKTextRef path) {
  if (path == nullptr) return nullptr;
  return (Dictionary *)[[NSDictionary
      dictionaryWithContentsOfFile:StringOf(path)] retain];
}

Dictionary *MakeDictionary() {
  return (Dictionary *)[[NSMutableDictionary alloc] initWithCapacity:1];
}

void AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  if (path == nullptr) return;
  @autoreleasepool {
    NSDictionary *entries =
        [NSDictionary dictionaryWithContentsOfFile:StringOf(path)];
    if (entries == nil) return;
    [FilledOf(dictionary) addEntriesFromDictionary:entries];
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

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path) {
  if (path == nullptr) return false;
  @autoreleasepool {
    return [DictionaryOf(dictionary) writeToFile:StringOf(path) atomically:YES];
  }
}

void Release(Dictionary *dictionary) { [DictionaryOf(dictionary) release]; }

}  // namespace ztk::platform::property_list
