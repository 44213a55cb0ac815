// SPDX-License-Identifier: MIT
#include "virtual-mixer/temporary_folder.h"
#include "cli/strings.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace ztk::virtual_mixer {
namespace {

namespace fs = std::filesystem;

constexpr char kMarkName[] = "/.ztk-virtual-mixer-in-use";
// Names of our folders begin with one of these; umockdev names the first.
constexpr std::array<std::string_view, 3> kNames{"umockdev.", "ztk-settings.",
                                                 "ztk-virtual-mixer."};

[[noreturn]] void Fail(const std::string &path) {
  throw std::runtime_error("cannot make a temporary folder: " + path + ": " +
                           std::strerror(errno));
}

bool HasOurName(const std::string &name) {
  for (const std::string_view known : kNames) {
    if (name.starts_with(known)) return true;
  }
  return false;
}

bool IsOwnFolder(const std::string &path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid();
}

// Whether the folder is marked and no process holds the mark.
bool IsAbandoned(const std::string &folder) {
  const platform::FileDescriptor mark(
      open((folder + kMarkName).c_str(),
           O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return mark.valid() && flock(mark.get(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

// The file gets its name after it was locked, so that a folder never has a mark
// that is not locked while its process runs.
FolderMark::FolderMark(const std::string &folder) {
  const std::string path = folder + kMarkName;
  const std::string unlocked = path + ".new";
  file_ = platform::FileDescriptor(
      open(unlocked.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file_.valid() || flock(file_.get(), LOCK_EX) != 0 ||
      rename(unlocked.c_str(), path.c_str()) != 0) {
    Fail(path);
  }
}

void RemoveAbandonedFolders(const std::string &parent) {
  std::error_code ignored;
  for (const auto &entry : fs::directory_iterator(parent, ignored)) {
    const std::string path = entry.path();
    if (!HasOurName(entry.path().filename()) || !IsOwnFolder(path)) continue;
    if (IsAbandoned(path)) fs::remove_all(path, ignored);
  }
}

std::string TemporaryParent(std::size_t longest) {
  const std::string folder = cli::Variable("TMPDIR");
  // Programs inside could take a relative path for another folder.
  const bool usable =
      fs::path(folder).is_absolute() && folder.size() <= longest;
  return usable ? folder : "/tmp";
}

TemporaryFolder::TemporaryFolder(const std::string &parent,
                                 const std::string &name)
    : path_(parent + "/" + name + ".XXXXXX") {
  if (mkdtemp(path_.data()) == nullptr) Fail(path_);
  mark_ = FolderMark(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace ztk::virtual_mixer
