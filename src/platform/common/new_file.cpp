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

// Gives the new file the owner and mode of the one it replaces.
bool TakeOver(int file, const NewFileModel &model) {
  constexpr mode_t kPermissions = 0777;
  const struct stat &old = *model.old;
  // Only root may give a file away; others keep at least its group if they can.
  if (fchown(file, old.st_uid, old.st_gid) != 0 &&
      fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    errno = 0;
  }
  return fchmod(file, (old.st_mode & kPermissions) | model.moreMode) == 0;
}

int Fill(int file, std::string_view content, const NewFileModel &model) {
  const bool done = WriteAll(file, content) &&
                    (model.old == nullptr || TakeOver(file, model)) &&
                    fsync(file) == 0;
  return done ? 0 : errno;
}

#if defined(O_TMPFILE)

// A name that is probably free; the caller tries another one if it is not.
std::string MadeUpName(const std::string &file) {
  auto number = static_cast<std::uint64_t>(
      std::chrono::steady_clock::now().time_since_epoch().count());
  std::string name = file + '.';
  for (std::size_t i = 0; i < kNameLetters; ++i) {
    name += kLetters[number % kLetters.size()];
    number /= kLetters.size();
  }
  return name;
}

// Links a file without a name into the folder. Linking cannot replace a file,
// so this is not yet the name of the old one.
bool GiveName(int nameless, const std::string &file, std::string *name) {
  constexpr int kTries = 100;
  const std::string from = "/proc/self/fd/" + std::to_string(nameless);
  for (int i = 0; i < kTries; ++i) {
    *name = MadeUpName(file);
    if (linkat(AT_FDCWD, from.c_str(), AT_FDCWD, name->c_str(),
               AT_SYMLINK_FOLLOW) == 0) {
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

// No value when the file system does not support files without a name, or when
// /proc is missing; else 0 or the error number.
std::optional<int> WriteNamelessFile(const std::string &file,
                                     std::string_view content,
                                     const NewFileModel &model,
                                     std::string *name) {
  const std::string folder = FolderOf(file);
  const FileDescriptor made(open(folder.empty() ? "." : folder.c_str(),
                                 O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
  if (!made.valid()) return std::nullopt;
  const int error = Fill(made.get(), content, model);
  if (error != 0) return error;
  return GiveName(made.get(), file, name) ? std::optional(0) : std::nullopt;
}

#else

std::optional<int> WriteNamelessFile(const std::string & /*file*/,
                                     std::string_view /*content*/,
                                     const NewFileModel & /*model*/,
                                     std::string * /*name*/) {
  return std::nullopt;
}

#endif

// True for the name of a new file for `base`, made here or by mkostemp().
bool IsNewFileName(std::string_view name, std::string_view base) {
  if (name.size() != base.size() + 1 + kNameLetters) return false;
  if (!name.starts_with(base) || name[base.size()] != '.') return false;
  name.remove_prefix(base.size() + 1);
  return name.find_first_not_of(kLetters) == std::string_view::npos;
}

bool IsOlderThanADay(const struct stat &status) {
  constexpr std::time_t kDay = 24 * 60 * 60;
  return std::time(nullptr) - status.st_mtime > kDay;
}

}  // namespace

int WriteNewFile(const std::string &file, std::string_view content,
                 const NewFileModel &model, std::string *name) {
  const std::optional<int> nameless =
      WriteNamelessFile(file, content, model, name);
  if (nameless) return *nameless;

  *name = file + "." + std::string(kNameLetters, 'X');
  const FileDescriptor made(mkostemp(name->data(), O_CLOEXEC));
  if (!made.valid()) return errno;
  const int error = Fill(made.get(), content, model);
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
