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

std::string ErrorText(const char *what) {
  return std::string(what) + ": " + std::strerror(errno);
}

bool WriteExistingFile(const char *file, const std::string &text) {
  const int descriptor = open(file, O_WRONLY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool written = write(descriptor, text.data(), text.size()) ==
                       static_cast<ssize_t>(text.size());
  close(descriptor);
  return written;
}

// Creates a new mount namespace. If this process does not run as root, it also
// creates a user namespace, in which it has the capabilities that it needs.
bool Unshare() {
  const std::string user = std::to_string(getuid());
  const std::string group = std::to_string(getgid());
  if (geteuid() == 0) return unshare(CLONE_NEWNS) == 0;
  return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
         WriteExistingFile("/proc/self/setgroups", "deny") &&
         WriteExistingFile("/proc/self/uid_map", user + " " + user + " 1") &&
         WriteExistingFile("/proc/self/gid_map", group + " " + group + " 1");
}

// Makes an entry of the real system available in the new root.
bool MountEntry(const fs::directory_entry &entry, const fs::path &place) {
  std::error_code error;
  if (entry.is_symlink()) {
    fs::copy_symlink(entry.path(), place, error);
    return !error;
  }
  if (entry.is_directory()) {
    fs::create_directory(place, error);
  } else {
    WriteAll(place, "");
  }
  return mount(entry.path().c_str(), place.c_str(), nullptr, MS_BIND | MS_REC,
               nullptr) == 0;
}

bool HasPlaceForAny(const fs::path &folder, const RootFiles &files) {
  const std::string start = folder.string() + "/";
  return std::any_of(files.begin(), files.end(), [&start](const auto &file) {
    return file.first.starts_with(start);
  });
}

// Makes all entries of a folder available in the new root, except those that
// are replaced and the new root itself. A folder in which a file is added or
// replaced is created anew, so that the real one does not change. Returns an
// empty text on success, else the error.
std::string MountFolder(const fs::path &folder, const fs::path &root,
                        const RootFiles &files) {
  for (const auto &entry : fs::directory_iterator(folder)) {
    const fs::path &path = entry.path();
    const fs::path place = root / path.relative_path();
    if (path == root || files.contains(path.string())) continue;
    std::string reason;
    if (entry.is_directory() && !entry.is_symlink() &&
        HasPlaceForAny(path, files)) {
      fs::create_directory(place);
      reason = MountFolder(path, root, files);
    } else if (!MountEntry(entry, place)) {
      reason = ErrorText(path.c_str());
    }
    if (!reason.empty()) return reason;
  }
  return "";
}

}  // namespace

std::string EnterTemporaryRoot(const RootFiles &files) {
  if (!Unshare()) return ErrorText("cannot create a mount namespace");
  if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
    return ErrorText("cannot make the mounts private");
  }
  // /mnt exists on usual systems, and the tests do not need its content.
  const fs::path root = "/mnt";
  if (mount("temporary-root", root.c_str(), "tmpfs", 0, nullptr) != 0) {
    return ErrorText("cannot mount a tmpfs");
  }
  if (std::string reason = MountFolder("/", root, files); !reason.empty()) {
    return reason;
  }
  for (const auto &[path, contents] : files) {
    WriteAll(root / fs::path(path).relative_path(), contents);
  }
  if (chroot(root.c_str()) != 0 || chdir("/") != 0) {
    return ErrorText("cannot change the root");
  }
  return "";
}

}  // namespace ztk::test
