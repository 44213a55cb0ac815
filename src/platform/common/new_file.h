// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_NEW_FILE_H_
#define ZTK_PLATFORM_COMMON_NEW_FILE_H_

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <string_view>

namespace ztk::platform {

// Properties of a new file that come from the file that it will replace.
struct NewFileModel {
  const struct stat *old = nullptr;  // null where there is none
  mode_t moreMode = 0;               // permissions in addition to the old ones
};

// Writes a complete new file beside `file`, down to the disk. *name gets its
// name: that of `file`, a dot and six letters or digits. If the file system
// supports it, the file has no name until it is complete, so that nothing is
// left of it when the program is killed before. Returns 0 or the error number;
// on an error nothing is left.
int WriteNewFile(const std::string &file, std::string_view content,
                 const NewFileModel &model, std::string *name);

// Syncs the folder of `file`. Then removes files older than a day that killed
// programs have left beside `file`.
void SyncAndCleanFolderOf(const std::string &file);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_NEW_FILE_H_
