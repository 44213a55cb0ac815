// SPDX-License-Identifier: MIT
#include "platform/common/replace_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <optional>

#include "platform/common/descriptor.h"

namespace ztk::platform {
namespace {

// Holds signals back from this thread while it lives: those that ask a program
// to end, so that no unfinished file stays behind, and the one that a write
// raises when a file may not grow. The latter is taken away, as by default it
// ends the process; the others arrive afterwards.
class SignalHold {
 public:
  SignalHold() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGXFSZ}) {
      sigaddset(&held, signal);
    }
    wasPending_ = FileSizeSignalIsPending();
    held_ = pthread_sigmask(SIG_BLOCK, &held, &before_) == 0;
  }
  ~SignalHold() {
    if (!held_) return;
    if (!wasPending_ && FileSizeSignalIsPending()) {
      sigset_t fileSize;
      sigemptyset(&fileSize);
      sigaddset(&fileSize, SIGXFSZ);
      // A write raises it in this thread, where it is held: no wait.
      int taken = 0;
      sigwait(&fileSize, &taken);
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  SignalHold(const SignalHold &) = delete;
  SignalHold &operator=(const SignalHold &) = delete;

 private:
  static bool FileSizeSignalIsPending() {
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1;
  }

  sigset_t before_;
  bool wasPending_ = false;
  bool held_ = false;
};

// The folder part, with its slash; empty for a bare name.
std::string FolderOf(const std::string &path) {
  return path.substr(0, path.rfind('/') + 1);
}

// Makes the folder that the path lies in, with at most `levels` folders.
// Whether it worked shows when the file is made.
void MakeFolders(const std::string &path, int levels) {
  constexpr mode_t kOwnerOnly = 0700;
  std::string folder = FolderOf(path);
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  if (folder.empty() || levels == 0) return;
  struct stat status = {};
  if (stat(folder.c_str(), &status) == 0) return;
  MakeFolders(folder, levels - 1);
  mkdir(folder.c_str(), kOwnerOnly);
}

// Where the path leads when the symbolic links at its end are followed, even
// when there is no file yet; nothing for a loop.
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
  return std::nullopt;
}

bool WriteAll(int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t done = write(file, content.data(), content.size());
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

// Gives the new file the owner and mode of the one it replaces, and
// `moreMode`.
bool TakeOver(int file, const struct stat &old, mode_t moreMode) {
  constexpr mode_t kPermissions = 0777;
  // Only root may give a file away; others keep at least its group if they can.
  if (fchown(file, old.st_uid, old.st_gid) != 0 &&
      fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    errno = 0;
  }
  return fchmod(file, (old.st_mode & kPermissions) | moreMode) == 0;
}

// Copies a regular file into a new one, of which nothing stays on failure.
bool CopyFile(const std::string &from, const std::string &to) {
  const Descriptor source(
      open(from.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status = {};
  if (!source.valid() || fstat(source.get(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) {
    errno = EPERM;
    return false;
  }
  const Descriptor copy(
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
  errno = EIO;
  return false;
}

// A new name for a file that may neither be linked nor read: others' files may
// lie in one's own folder. Not for a folder, which is no settings file at all.
bool MoveFile(const std::string &from, const std::string &to) {
  struct stat status = {};
  if (lstat(from.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
    return false;
  }
  return rename(from.c_str(), to.c_str()) == 0;
}

// The old file under its second name.
struct Kept {
  std::string name;    // empty when there was none to keep
  bool moved = false;  // and has lost its first name
};

// Keeps the file under a second, numbered name. False when it cannot.
bool KeepBeside(const std::string &file, Kept *kept) {
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
    *kept = {.name = name, .moved = true};
    return MoveFile(file, name);
  }
  return false;
}

// Moves the complete new file to the place of the old one.
bool PutInPlace(const std::string &fresh, const std::string &file,
                bool keepOld) {
  Kept kept;
  if (keepOld && !KeepBeside(file, &kept)) return false;
  if (rename(fresh.c_str(), file.c_str()) == 0) return true;
  if (kept.moved) {
    MoveFile(kept.name, file);
  } else if (!kept.name.empty()) {
    unlink(kept.name.c_str());
  }
  return false;
}

}  // namespace

bool ReplaceFile(const std::string &path, std::string_view content,
                 bool keepOld) {
  constexpr int kMaxMissingFolders = 3;
  const SignalHold hold;
  MakeFolders(path, kMaxMissingFolders);
  const std::optional<std::string> file = FollowLinks(path);
  if (!file) return false;

  std::string fresh = *file + ".XXXXXX";
  const Descriptor descriptor(mkostemp(fresh.data(), O_CLOEXEC));
  if (!descriptor.valid()) return false;
  struct stat old = {};
  const bool replaces = stat(file->c_str(), &old) == 0 && S_ISREG(old.st_mode);
  // The mode may be why the old file could not be read.
  const mode_t moreMode = keepOld ? S_IRUSR | S_IWUSR : 0;
  if (WriteAll(descriptor.get(), content) &&
      (!replaces || TakeOver(descriptor.get(), old, moreMode)) &&
      fsync(descriptor.get()) == 0 && PutInPlace(fresh, *file, keepOld)) {
    return true;
  }
  unlink(fresh.c_str());
  return false;
}

}  // namespace ztk::platform
