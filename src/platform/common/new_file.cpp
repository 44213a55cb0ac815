// SPDX-License-Identifier: MIT
#include "platform/common/new_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <optional>

#include "platform/common/file_access.h"
#include "platform/common/file_descriptor.h"

namespace ztk::platform {
namespace {

constexpr std::string_view kLetters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::size_t kNameLetters = 6;

// Sets the owner and the mode of the new file to those of the old file.
bool CopyOwnerAndMode(int file, const NewFileProperties &properties) {
  constexpr mode_t kPermissions = 0777;
  const struct stat &old = *properties.old;
  // Only root may change the owner of a file. For other users, the new file
  // gets at least the group of the old file, if the system allows that.
  if (fchown(file, old.st_uid, old.st_gid) != 0 &&
      fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    errno = 0;
  }
  return fchmod(file, (old.st_mode & kPermissions) | properties.addedMode) == 0;
}

int WriteContent(int file, std::string_view content,
                 const NewFileProperties &properties) {
  const bool done =
      WriteAll(file, content) &&
      (properties.old == nullptr || CopyOwnerAndMode(file, properties)) &&
      fsync(file) == 0;
  return done ? 0 : errno;
}

#if defined(O_TMPFILE)

// Returns a name that is probably free. The caller tries another name if it is
// not.
std::string CandidateName(const std::string &file) {
  auto number = static_cast<std::uint64_t>(
      std::chrono::steady_clock::now().time_since_epoch().count());
  std::string name = file + '.';
  for (std::size_t i = 0; i < kNameLetters; ++i) {
    name += kLetters[number % kLetters.size()];
    number /= kLetters.size();
  }
  return name;
}

// Gives an unnamed file a new name in the folder. It cannot have the name of
// the old file yet, because linkat() does not replace a file.
bool LinkWithNewName(int unnamed, const std::string &file, std::string *name) {
  constexpr int kTries = 100;
  const std::string from = "/proc/self/fd/" + std::to_string(unnamed);
  for (int i = 0; i < kTries; ++i) {
    *name = CandidateName(file);
    if (linkat(AT_FDCWD, from.c_str(), AT_FDCWD, name->c_str(),
               AT_SYMLINK_FOLLOW) == 0) {
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

// Writes the content to a file that gets its name at the end. Returns no value
// if the file system has no unnamed files or /proc is missing. Otherwise
// returns 0 or the error number.
std::optional<int> WriteUnnamedFile(const std::string &file,
                                    std::string_view content,
                                    const NewFileProperties &properties,
                                    std::string *name) {
  const std::string folder = FolderOf(file);
  const FileDescriptor made(open(folder.empty() ? "." : folder.c_str(),
                                 O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
  if (!made.valid()) return std::nullopt;
  const int error = WriteContent(made.get(), content, properties);
  if (error != 0) return error;
  return LinkWithNewName(made.get(), file, name) ? std::optional(0)
                                                 : std::nullopt;
}

#else

std::optional<int> WriteUnnamedFile(const std::string & /*file*/,
                                    std::string_view /*content*/,
                                    const NewFileProperties & /*properties*/,
                                    std::string * /*name*/) {
  return std::nullopt;
}

#endif

// Returns true if the name is one that CandidateName() or mkostemp() makes for
// `base`.
bool IsNewFileName(std::string_view name, std::string_view base) {
  if (name.size() != base.size() + 1 + kNameLetters) return false;
  if (!name.starts_with(base) || name[base.size()] != '.') return false;
  name.remove_prefix(base.size() + 1);
  return name.find_first_not_of(kLetters) == std::string_view::npos;
}

bool IsOlderThanADay(const struct stat &status) {
  constexpr std::time_t kDay = 86400;
  return std::time(nullptr) - status.st_mtime > kDay;
}

}  // namespace

int WriteNewFile(const std::string &file, std::string_view content,
                 const NewFileProperties &properties, std::string *name) {
  const std::optional<int> unnamed =
      WriteUnnamedFile(file, content, properties, name);
  if (unnamed) return *unnamed;

  *name = file + "." + std::string(kNameLetters, 'X');
  const FileDescriptor made(mkostemp(name->data(), O_CLOEXEC));
  if (!made.valid()) return errno;
  const int error = WriteContent(made.get(), content, properties);
  if (error != 0) unlink(name->c_str());
  return error;
}

void SyncAndCleanFolderOf(const std::string &file) {
  const std::string folder = FolderOf(file);
  const std::string base = file.substr(folder.size());
  DIR *listing = opendir(folder.empty() ? "." : folder.c_str());
  if (listing == nullptr) return;
  fsync(dirfd(listing));
  while (const dirent *entry = readdir(listing)) {
    struct stat status = {};
    if (IsNewFileName(entry->d_name, base) &&
        fstatat(dirfd(listing), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) ==
            0 &&
        S_ISREG(status.st_mode) && IsOlderThanADay(status)) {
      unlinkat(dirfd(listing), entry->d_name, 0);
    }
  }
  closedir(listing);
}

}  // namespace ztk::platform
