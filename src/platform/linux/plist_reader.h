// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_PLIST_READER_H_
#define ZTK_PLATFORM_LINUX_PLIST_READER_H_

#include <plist/plist.h>
#include <sys/stat.h>

#include <optional>

#include "platform/property_list.h"

namespace ztk::platform::property_list {

// What a file holds. Its texts and keys are cleaned of what XML cannot hold, so
// that neither a caller nor a written file meets it.
struct FileContent {
  ReadResult result;
  // The dictionary when the file was read, else null. Owned by the caller.
  plist_t root = nullptr;
  // A character was replaced by U+FFFD: the file has more than `root`.
  bool incomplete = false;
  // Describes the file where there is one that could be opened.
  std::optional<struct stat> status = {};
};

// Reads a file. One that does not parse may be a file that another program is
// just copying over. It is read again after short pauses, and counts as damaged
// when two readings gave the same bytes and its last change is at least a
// quarter of a second ago. One that still changes after half a second is
// unavailable (EBUSY).
FileContent ReadContent(const char *path);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_READER_H_
