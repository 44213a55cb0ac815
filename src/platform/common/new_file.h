// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_NEW_FILE_H_
#define ZTK_PLATFORM_COMMON_NEW_FILE_H_

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <string_view>

namespace ztk::platform {

// The properties of a new file that depend on the file that it will replace.
struct NewFileProperties {
  const struct stat *old = nullptr;  // null where there is none
  mode_t addedMode = 0;              // permissions in addition to the old ones
};

// Writes a complete new file into the folder of `file` and syncs it to the
// disk. *name becomes its name: the name of `file`, a dot and six letters or
// digits. If the file system supports it, the file has no name until it is
// complete, so that nothing remains if the program is killed before. Returns 0
// or the error number. No file remains after an error.
int WriteNewFile(const std::string &file, std::string_view content,
                 const NewFileProperties &properties, std::string *name);

// Syncs the folder of `file`. Then removes the new files for `file` that are
// older than a day: programs left them when they were killed.
void SyncAndCleanFolderOf(const std::string &file);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_NEW_FILE_H_
