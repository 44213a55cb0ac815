// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_PLIST_READER_H_
#define ZTK_PLATFORM_LINUX_PLIST_READER_H_

#include <plist/plist.h>
#include <sys/stat.h>

#include <optional>

#include "platform/property_list.h"

namespace ztk::platform::property_list {

// The content of a file. In its texts and keys, characters that XML cannot
// contain are replaced, so that neither a caller nor a new file gets them.
struct FileContent {
  ReadResult result;
  // The dictionary if the file was read, else null. The caller owns it.
  plist_t root = nullptr;
  // True if a character was replaced by U+FFFD, so that `root` differs from the
  // file.
  bool incomplete = false;
  // The status of the file if it was read completely.
  std::optional<struct stat> status = {};
};

// Reads a file. If the file cannot be parsed, another program may still be
// writing it, so it is read again after short pauses. It counts as damaged if
// two readings returned the same bytes and the file has not changed for a
// quarter of a second. A file that still changes after half a second is
// unavailable (EBUSY).
FileContent ReadContent(const char *path);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_LINUX_PLIST_READER_H_
