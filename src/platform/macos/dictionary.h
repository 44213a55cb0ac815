// SPDX-License-Identifier: MIT
//
// A property list in memory, with what is known of its file.
#ifndef ZTK_PLATFORM_MACOS_DICTIONARY_H_
#define ZTK_PLATFORM_MACOS_DICTIONARY_H_

#import <Foundation/Foundation.h>

#include <sys/stat.h>

#include <optional>
#include <string>

#include "platform/property_list.h"

namespace ztk::platform::property_list {

struct Dictionary {
  // One retain; an NSMutableDictionary when MakeDictionary() has made it.
  NSDictionary *entries = nil;
  // What AddEntriesOfFile() found, and where; an empty path before.
  std::string addedFrom = {};
  ReadResult added = {};
  std::optional<struct stat> addedStatus = {};
};

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_MACOS_DICTIONARY_H_
