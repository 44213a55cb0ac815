// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
#define ZTK_PLATFORM_COMMON_REPLACE_FILE_H_

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace ztk::platform {

// Replaces a file by a complete new file, which gets the name of the old one. A
// reader sees either the old content or the new content. Returns false if the
// file cannot be replaced. Then the old file is unchanged, no other file
// remains, and *error is the error number, if `error` is not null.
//
// Only a regular file is replaced. A symbolic link stays: the file to which it
// leads is replaced, or created if it does not exist. A missing folder of the
// path is created, with up to two missing folders above it, with access for the
// owner only. A home folder is never created. The new file has the mode of the
// old one and, if the caller may set it, its owner. If there was no old file,
// only the owner has access to the new one. If root replaces a file at a path
// that belongs to another user, it does so as that user (owner_identity.h).
//
// With `keepOld` the old file is kept under the first free name of
// "<file>.unreadable-1", "<file>.unreadable-2" and so on, up to 1000. If that
// fails, the file is not replaced. If the old file can be neither linked nor
// copied, it is renamed, so that there is no file for a moment. With `keepOld`
// the owner can always read and write the new file.
//
// The content and the name are on the disk when the function returns. New files
// that killed programs have left in the folder are removed if they are older
// than a day. A limit for file sizes does not end the process (SIGXFSZ).
//
// `expected` may describe the file from which the content was made. If another
// process has replaced or overwritten that file since then, the file is not
// replaced, and the error number is ESTALE.
bool ReplaceFile(const std::string &path, std::string_view content,
                 bool keepOld, int *error = nullptr,
                 const struct stat *expected = nullptr);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
