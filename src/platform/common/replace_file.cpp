// SPDX-License-Identifier: MIT
#include "platform/common/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <optional>

#include "platform/common/file_access.h"
#include "platform/common/file_change.h"
#include "platform/common/file_descriptor.h"
#include "platform/common/new_file.h"
#include "platform/common/owner_identity.h"
#include "platform/common/signal_blocker.h"

namespace ztk::platform {
namespace {

// Copies a regular file to a new file. Removes the new file on failure. Then
// errno is EEXIST only if the name of the new file is taken.
bool CopyFile(const std::string &from, const std::string &to) {
  const FileDescriptor source(
      open(from.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
  struct stat status = {};
  if (!source.valid() || fstat(source.get(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) return false;
  const FileDescriptor copy(
      open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!copy.valid()) return false;

  std::array<char, 65536> part;
  for (;;) {
    const ssize_t length = read(source.get(), part.data(), part.size());
    if (length < 0 && errno == EINTR) continue;
    if (length == 0 && fsync(copy.get()) == 0) return true;
    if (length <= 0 ||
        !WriteAll(copy.get(),
                  {part.data(), static_cast<std::size_t>(length)})) {
      break;
    }
  }
  unlink(to.c_str());
  return false;
}

// The old file after KeepBeside().
struct KeptFile {
  std::string name;    // its additional name; empty if there was no old file
  bool moved = false;  // true if the file no longer has its first name
};

// Keeps the content of the file under the first free numbered name. Returns
// false if that is not possible.
bool KeepBeside(const std::string &file, KeptFile *kept) {
  constexpr int kMaxKept = 1000;
  for (int number = 1; number <= kMaxKept; ++number) {
    const std::string name = file + ".unreadable-" + std::to_string(number);
    if (link(file.c_str(), name.c_str()) == 0) {
      *kept = {.name = name, .moved = false};
      return true;
    }
    if (errno == ENOENT) return true;
    if (errno == EEXIST) continue;
    // Not every file system has hard links.
    if (CopyFile(file, name)) {
      *kept = {.name = name, .moved = false};
      return true;
    }
    if (errno == EEXIST) continue;
    // The file belongs to another user, and only the folder to this user: the
    // file can be renamed, but neither linked nor read.
    *kept = {.name = name, .moved = true};
    return rename(file.c_str(), name.c_str()) == 0;
  }
  return false;
}

// Moves the complete new file to the place of the old one. Returns 0 or the
// error number.
int PutInPlace(const std::string &newFile, const std::string &file,
               bool keepOld) {
  KeptFile kept;
  if (keepOld && !KeepBeside(file, &kept)) return errno;
  if (std::rename(newFile.c_str(), file.c_str()) == 0) return 0;
  const int error = errno;
  if (kept.moved) {
    std::rename(kept.name.c_str(), file.c_str());
  } else if (!kept.name.empty()) {
    unlink(kept.name.c_str());
  }
  return error;
}

// Returns 0 if there is no file at the path, or a regular file, which *old then
// describes. Returns the error number otherwise.
int CheckOldFile(const std::string &file, std::optional<struct stat> *old) {
  struct stat status = {};
  if (lstat(file.c_str(), &status) != 0) return errno == ENOENT ? 0 : errno;
  if (S_ISDIR(status.st_mode)) return EISDIR;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  *old = status;
  return 0;
}

// Returns true if the file is still the one that `expected` describes.
bool IsStill(const struct stat &expected, const std::string &file) {
  struct stat now = {};
  return lstat(file.c_str(), &now) == 0 && IsSameFile(expected, now);
}

// Locks the old file before it is compared with `expected` and replaced,
// because not every process holds the lock of the folder. If several processes
// have read the same file, only one of them finds it unchanged and replaces it.
// The others then lock a file that no longer has the name, and find another
// file there.
FileDescriptor LockOldFile(const std::string &file,
                           const struct stat *expected) {
  constexpr std::chrono::milliseconds kMaxWait{250};
  if (expected == nullptr) return FileDescriptor();
  FileDescriptor old(
      open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
  if (old.valid()) LockExclusively(old.get(), kMaxWait);
  return old;
}

// Returns 0 or the error number.
int Replace(const std::string &path, std::string_view content, bool keepOld,
            const struct stat *expected) {
  const SignalBlocker blocker;
  MakeFolders(path, kMaxMissingFolders);
  const std::optional<std::string> file = FollowLinks(path);
  if (!file) return errno;
  std::optional<struct stat> old;
  int error = CheckOldFile(*file, &old);
  if (error != 0) return error;

  const NewFileProperties properties = {
      .old = old ? &*old : nullptr,
      // The old file may have been unreadable because of its mode.
      .addedMode = keepOld ? mode_t{S_IRUSR | S_IWUSR} : mode_t{0}};
  std::string newFile;
  error = WriteNewFile(*file, content, properties, &newFile);
  if (error != 0) return error;
  const FileDescriptor lock = LockOldFile(*file, expected);
  const bool changed = expected != nullptr && !IsStill(*expected, *file);
  error = changed ? ESTALE : PutInPlace(newFile, *file, keepOld);
  if (error != 0) {
    unlink(newFile.c_str());
    return error;
  }
  // The file is replaced already, so a failure to sync is not an error.
  SyncAndCleanFolderOf(*file);
  return 0;
}

}  // namespace

bool ReplaceFile(const std::string &path, std::string_view content,
                 bool keepOld, int *error, const struct stat *expected) {
  const OwnerIdentity identity(path);
  const int reason =
      identity.good() ? Replace(path, content, keepOld, expected) : EPERM;
  if (error != nullptr) *error = reason;
  return reason == 0;
}

}  // namespace ztk::platform
