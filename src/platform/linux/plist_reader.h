// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_PLIST_READER_H_
#define ZTK_PLATFORM_LINUX_PLIST_READER_H_

#include <plist/plist.h>
#include <sys/stat.h>

#include <optional>

#include "platform/property_list.h"

namespace ztk::platform::property_list {

// The content of a file. Characters that XML cannot contain are replaced in its
// texts and keys, so that neither a caller nor a written file gets them.
struct FileContent {
  ReadResult result;
  // The dictionary when the file was read, else null. Owned by the caller.
  plist_t root = nullptr;
  // A character was replaced by U+FFFD: the file has more than `root`.
  bool incomplete = false;
  // Describes the file where there is one that could be opened.
  std::optional<struct stat> status = {};
};

// Reads a file. Another program may be copying over a file that does not parse.
// So it is read again after short pauses, and counts as damaged when two
// readings gave the same bytes and its last change is at least a quarter of a
// second ago. A file that still changes after half a second is unavailable
// (EBUSY).
FileContent ReadContent(const char *path);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_READER_H_
