// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
#define ZTK_PLATFORM_COMMON_REPLACE_FILE_H_

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace ztk::platform {

// Replaces a file. A reader sees the old content or the new one: a complete new
// file takes the name of the old one. False when that cannot be done; then the
// old file is unchanged, nothing is left behind, and *error, where `error` is
// not null, has the error number.
//
// Only a regular file is replaced. A symbolic link stays, and the file that it
// names is replaced, or created where there is none. A missing folder of the
// path is created, open to its owner only, and up to two above it; a home
// folder is never created. An existing file keeps its mode and, where the
// caller may set it, its owner; a new one is for its owner only. When root
// writes at a place of another user, it does so as that user
// (owner_identity.h).
//
// With `keepOld` the old file is kept beside the new one under the first free
// name of "<file>.unreadable-1", "-2" and so on to 1000; if that fails, the
// file is not replaced. A file that can be neither linked nor read is renamed
// first, so for a moment there is no file. The new file can then be read by its
// owner in any case.
//
// Content and new name are on the disk when the function returns. Files that
// killed programs have left beside this file are removed when they are older
// than a day. A process with a limit for file sizes is not killed (SIGXFSZ).
//
// `expected` may describe the file that the content was made from. If another
// process has replaced it or written over it since, the file is not replaced,
// and the error number is ESTALE.
bool ReplaceFile(const std::string &path, std::string_view content,
                 bool keepOld, int *error = nullptr,
                 const struct stat *expected = nullptr);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
