// SPDX-License-Identifier: MIT
#include "support/temporary_root.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "support/temp_home.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

std::string Failure(const char *what) {
  return std::string(what) + ": " + std::strerror(errno);
}

bool WriteShort(const char *file, const std::string &text) {
  const int descriptor = open(file, O_WRONLY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool written = write(descriptor, text.data(), text.size()) ==
                       static_cast<ssize_t>(text.size());
  close(descriptor);
  return written;
}

// A user without rights gets them in a user namespace.
bool Unshare() {
  const std::string user = std::to_string(getuid());
  const std::string group = std::to_string(getgid());
  if (geteuid() == 0) return unshare(CLONE_NEWNS) == 0;
  return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
         WriteShort("/proc/self/setgroups", "deny") &&
         WriteShort("/proc/self/uid_map", user + " " + user + " 1") &&
         WriteShort("/proc/self/gid_map", group + " " + group + " 1");
}

// Shows an entry of the real system in the new root.
bool Show(const fs::directory_entry &entry, const fs::path &place) {
  std::error_code failed;
  if (entry.is_symlink()) {
    fs::copy_symlink(entry.path(), place, failed);
    return !failed;
  }
  if (entry.is_directory()) {
    fs::create_directory(place, failed);
  } else {
    WriteAll(place, "");
  }
  return mount(entry.path().c_str(), place.c_str(), nullptr, MS_BIND | MS_REC,
               nullptr) == 0;
}

bool LeadsTo(const fs::path &folder, const RootFiles &files) {
  const std::string start = folder.string() + "/";
  return std::any_of(files.begin(), files.end(), [&start](const auto &file) {
    return file.first.starts_with(start);
  });
}

// Shows all entries of a folder except those that are replaced. A folder that
// receives new files is made anew, so that the real one does not change.
std::string ShowFolder(const fs::path &folder, const fs::path &root,
                       const RootFiles &files) {
  for (const auto &entry : fs::directory_iterator(folder)) {
    const fs::path &path = entry.path();
    const fs::path place = root / path.relative_path();
    if (path == root || files.contains(path.string())) continue;
    std::string reason;
    if (entry.is_directory() && !entry.is_symlink() && LeadsTo(path, files)) {
      fs::create_directory(place);
      reason = ShowFolder(path, root, files);
    } else if (!Show(entry, place)) {
      reason = Failure(path.c_str());
    }
    if (!reason.empty()) return reason;
  }
  return "";
}

}  // namespace

std::string EnterTemporaryRoot(const RootFiles &files) {
  if (!Unshare()) return Failure("no mount namespace");
  if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
    return Failure("the root stays shared");
  }
  // /mnt exists on every system, and its content is not needed.
  const fs::path root = "/mnt";
  if (mount("temporary-root", root.c_str(), "tmpfs", 0, nullptr) != 0) {
    return Failure("no tmpfs");
  }
  if (std::string reason = ShowFolder("/", root, files); !reason.empty()) {
    return reason;
  }
  for (const auto &[path, contents] : files) {
    WriteAll(root / fs::path(path).relative_path(), contents);
  }
  if (chroot(root.c_str()) != 0 || chdir("/") != 0) return Failure("no chroot");
  return "";
}

}  // namespace ztk::test
