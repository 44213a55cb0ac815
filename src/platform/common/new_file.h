// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_NEW_FILE_H_
#define ZTK_PLATFORM_COMMON_NEW_FILE_H_

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <string_view>

namespace ztk::platform {

// What a new file takes over from the one that it will replace.
struct NewFileModel {
  const struct stat *old = nullptr;  // null where there is none
  mode_t moreMode = 0;               // permissions in addition to the old ones
};

// Writes a complete new file beside `file`, down to the disk. *name gets its
// name: that of `file`, a dot and six letters or digits. Where the file system
// can, the file has no name until it is complete, so that nothing is left of it
// when the program is killed meanwhile. Answers 0 or the error number; on an
// error nothing is left.
int WriteNewFile(const std::string &file, std::string_view content,
                 const NewFileModel &model, std::string *name);

// Puts the names in the folder of `file` on the disk, then removes new files
// beside `file` that never took its place because the program was killed, once
// they are older than a day.
void SyncAndCleanFolderOf(const std::string &file);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_NEW_FILE_H_
