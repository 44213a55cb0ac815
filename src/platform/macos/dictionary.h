// SPDX-License-Identifier: MIT
//
// A property list in memory, with the result of reading its file.
#ifndef ZTK_PLATFORM_MACOS_DICTIONARY_H_
#define ZTK_PLATFORM_MACOS_DICTIONARY_H_

#import <Foundation/Foundation.h>

#include <sys/stat.h>

#include <optional>
#include <string>

#include "platform/property_list.h"

namespace ztk::platform::property_list {

struct Dictionary {
  // This object owns one reference. The dictionary is an NSMutableDictionary if
  // MakeDictionary() made it.
  NSDictionary *entries = nil;
  // The path of AddEntriesOfFile() and its result. The path is empty before the
  // call.
  std::string addedFrom = {};
  ReadResult added = {};
  std::optional<struct stat> addedStatus = {};
};

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_MACOS_DICTIONARY_H_
