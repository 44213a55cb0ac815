// SPDX-License-Identifier: MIT
//
// Functions for file access that the platform layer and the programs share.
#ifndef ZTK_PLATFORM_COMMON_FILE_ACCESS_H_
#define ZTK_PLATFORM_COMMON_FILE_ACCESS_H_

#include <sys/stat.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/common/file_descriptor.h"

namespace ztk::platform {

// Returns the value of an environment variable if it is an absolute path, else
// an empty text. A relative path is not used because its meaning would depend
// on the current folder of the program.
std::string AbsolutePathFromEnvironment(const char *name);

// Returns the folder part of a path, with the slash at its end. Empty if the
// path is only a name.
std::string FolderOf(std::string_view path);

// Opens the folder part of a path for reading, for flock() and fsync().
FileDescriptor OpenFolderOf(const std::string &path);

// Follows the symbolic links at the end of a path and returns the path of the
// file, which need not exist. Returns no value and sets errno if a link cannot
// be followed, for example because links form a loop.
std::optional<std::string> FollowLinks(std::string path);

// MakeFolders() makes at most this many folders for a settings file: ".config",
// the maker's folder and "Preferences". A missing home folder is never created.
inline constexpr int kMaxMissingFolders = 3;

// Returns the time of a file's last modification, since 1970.
std::chrono::nanoseconds ModificationTime(const struct stat &status);

// Returns true if both describe the same file with the same content. A file
// that replaced another one has another inode number, or, if the number is used
// again, another time. A file that was overwritten has another modification
// time, which is compared to the nanosecond.
bool IsSameFile(const struct stat &first, const struct stat &second);

// Creates the folder part of a path, and missing folders above it, with access
// for the owner only. Creates at most `levels` folders. Does not report a
// failure: it shows when the caller creates a file in the folder.
void MakeFolders(std::string_view path, int levels);

// Writes the whole content, with as many calls as necessary. Returns false and
// sets errno on an error.
bool WriteAll(int descriptor, std::string_view content);

// Reads a regular file of at most `limit` bytes. Does not block on a pipe.
// Returns 0 on success, else the error number: ENOENT or ENOTDIR if there is no
// file, EFBIG if the file is larger, EBUSY if its size changed during the
// reading, EINVAL if it is not a regular file.
//
// `flags` are passed to open() in addition to the usual ones, for example
// O_NOFOLLOW. If `status` is not null, *status describes the file.
int ReadRegularFile(const char *path, std::size_t limit, std::string *content,
                    int flags = 0, struct stat *status = nullptr);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_ACCESS_H_
