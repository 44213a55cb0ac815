// SPDX-License-Identifier: MIT
#include "platform/common/file_access.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>

namespace ztk::platform {

std::string AbsolutePathFromEnvironment(const char *name) {
  const char *value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

std::string FolderOf(std::string_view path) {
  return std::string(path.substr(0, path.rfind('/') + 1));
}

FileDescriptor OpenFolderOf(const std::string &path) {
  const std::string folder = FolderOf(path);
  return FileDescriptor(open(folder.empty() ? "." : folder.c_str(),
                             O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::optional<std::string> FollowLinks(std::string path) {
  constexpr int kMaxLinks = 40;  // as many as the kernel follows
  for (int i = 0; i <= kMaxLinks; ++i) {
    std::array<char, PATH_MAX> target;
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length < 0) {
      const bool noLink = errno == EINVAL || errno == ENOENT;
      return noLink ? std::optional(path) : std::nullopt;
    }
    if (length == 0 || length == static_cast<ssize_t>(target.size())) break;
    const std::string_view name(target.data(),
                                static_cast<std::size_t>(length));
    path = (name.front() == '/' ? "" : FolderOf(path)).append(name);
  }
  errno = ELOOP;
  return std::nullopt;
}

std::chrono::nanoseconds ModificationTime(const struct stat &status) {
#if defined(__APPLE__)
  const timespec &time = status.st_mtimespec;
#else
  const timespec &time = status.st_mtim;
#endif
  return std::chrono::seconds(time.tv_sec) +
         std::chrono::nanoseconds(time.tv_nsec);
}

bool IsSameFile(const struct stat &first, const struct stat &second) {
  return first.st_dev == second.st_dev && first.st_ino == second.st_ino &&
         first.st_size == second.st_size &&
         ModificationTime(first) == ModificationTime(second) &&
         first.st_ctime == second.st_ctime;
}

void MakeFolders(std::string_view path, int levels) {
  constexpr mode_t kOwnerOnly = 0700;
  std::string folder = FolderOf(path);
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  if (folder.empty() || levels == 0) return;
  struct stat status = {};
  if (stat(folder.c_str(), &status) == 0) return;
  MakeFolders(folder, levels - 1);
  mkdir(folder.c_str(), kOwnerOnly);
}

bool WriteAll(int descriptor, std::string_view content) {
  return WriteAll(content, [descriptor](const char *data, std::size_t size) {
    return write(descriptor, data, size);
  });
}

int ReadRegularFile(const char *path, std::size_t limit, std::string *content,
                    int flags, struct stat *found) {
  const FileDescriptor file(
      open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | flags));
  if (!file.valid()) return errno;
  struct stat status = {};
  if (fstat(file.get(), &status) != 0) return errno;
  if (found != nullptr) *found = status;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (status.st_size > static_cast<off_t>(limit)) return EFBIG;

  // If one byte more than the size of the file can be read, the file has grown:
  // another program is writing to it, and only a part was read.
  const auto size = static_cast<std::size_t>(status.st_size);
  content->resize(size + 1);
  std::size_t length = 0;
  while (length < content->size()) {
    const ssize_t done =
        read(file.get(), content->data() + length, content->size() - length);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return errno;
    if (done == 0) break;
    length += static_cast<std::size_t>(done);
  }
  content->resize(length);
  return length == size ? 0 : EBUSY;
}

}  // namespace ztk::platform
