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

// The value of an environment variable when it is an absolute path, else empty:
// a relative path would depend on the current folder of the program.
std::string AbsolutePathFromEnvironment(const char *name);

// The folder part of a path, with its slash at the end; empty for a bare name.
std::string FolderOf(std::string_view path);

// Opens the folder part of a path for reading, for flock() and fsync().
FileDescriptor OpenFolderOf(const std::string &path);

// The path after all symbolic links at its end were followed, even when there
// is no file yet. Empty, with errno set, for a loop of links.
std::optional<std::string> FollowLinks(std::string path);

// MakeFolders() makes at most this many folders for a settings file: ".config",
// the maker's folder and "Preferences". A missing home folder is never created.
inline constexpr int kMaxMissingFolders = 3;

// When the content of a file was last changed, counted from 1970.
std::chrono::nanoseconds ModificationTime(const struct stat &status);

// True when both describe one and the same content of a file. A file that has
// been replaced has another inode, or, where the number is used again, another
// time. One that was written over has another time, to the nanosecond.
bool IsSameFile(const struct stat &first, const struct stat &second);

// Creates the folder that the path lies in, for its owner only, together with
// missing folders above it, at most `levels` folders in all. Does not report a
// failure: creating a file in the folder fails then.
void MakeFolders(std::string_view path, int levels);

// Writes everything, with as many calls as necessary. False, with errno set, on
// an error.
bool WriteAll(int descriptor, std::string_view content);

// Reads a regular file of at most `limit` bytes. Does not block on a pipe.
// Returns 0 on success, else the error number: ENOENT or ENOTDIR when there is
// no file, EFBIG when it is larger, EBUSY when its size changed meanwhile,
// EINVAL when it is no regular file.
//
// `flags` are added to those of open(), for example O_NOFOLLOW. *status, where
// `status` is not null, describes the file that was read.
int ReadRegularFile(const char *path, std::size_t limit, std::string *content,
                    int flags = 0, struct stat *status = nullptr);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_ACCESS_H_
