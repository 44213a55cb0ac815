// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "floor_parts.h"

namespace ztk::bench::floor {
namespace {

constexpr std::size_t kLongestPath = 1024;
char makersFolder[kLongestPath];
char folder[kLongestPath + 16];
char file[kLongestPath + 64];
// The offset of the random part in the name of a new file.
std::size_t fileLength;

constexpr char kContent[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n"
    "<dict>\n"
    "\t<key>Output0</key>\n"
    "\t<integer>0</integer>\n"
    "</dict>\n"
    "</plist>\n";
// The offsets of the two digits that change.
constexpr std::size_t kChannelAt = std::string_view(kContent).find("0</key>");
constexpr std::size_t kIndexAt = std::string_view(kContent).find("0</integer>");
char content[sizeof kContent];

// For calls whose result does not matter.
void Ignore(ssize_t /*result*/) {}

}  // namespace

const char *PrepareSettings() {
  const char *config = std::getenv("XDG_CONFIG_HOME");
  const char *home = std::getenv("HOME");
  int length = -1;
  if (config != nullptr && config[0] == '/') {
    length = std::snprintf(makersFolder, kLongestPath, "%s/tarvix", config);
  } else if (home != nullptr && home[0] == '/') {
    length =
        std::snprintf(makersFolder, kLongestPath, "%s/.config/tarvix", home);
  }
  if (length < 0 || static_cast<std::size_t>(length) >= kLongestPath) {
    return "HOME is not set";
  }
  std::memcpy(content, kContent, sizeof kContent);
  std::snprintf(folder, sizeof folder, "%s/Preferences", makersFolder);
  fileLength = static_cast<std::size_t>(std::snprintf(
      file, sizeof file, "%s/com.tarvix.VRM-D6autosetup.plist", folder));
  return nullptr;
}

namespace {

void ReadFile() {
  struct stat status;
  const int settings = open(file, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (settings < 0) return;
  char bytes[4096];
  fstat(settings, &status);
  while (read(settings, bytes, sizeof bytes) > 0) {
  }
  close(settings);
}

}  // namespace

void ReadSettings() {
  struct stat status;
  stat(makersFolder, &status);
  ReadFile();
}

namespace {

// Reads the whole folder, as the library does to find files that killed
// programs have left.
void ReadFolder(int descriptor) {
  alignas(8) char entries[32768];
  while (syscall(SYS_getdents64, descriptor, entries, sizeof entries) > 0) {
  }
}

// Writes the content to an unnamed file and gives it the name `fresh`.
void MakeFresh(const char *fresh) {
  struct stat status;
  lstat(file, &status);
  const int made = open(folder, O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
  Ignore(write(made, content, sizeof content - 1));
  Ignore(fchown(made, status.st_uid, status.st_gid));
  fchmod(made, status.st_mode & 0777);
  fsync(made);
  char from[32];
  std::snprintf(from, sizeof from, "/proc/self/fd/%d", made);
  Ignore(linkat(AT_FDCWD, from, AT_FDCWD, fresh, AT_SYMLINK_FOLLOW));
  close(made);
}

// The signal is blocked during the write, as in the library: otherwise it could
// end the process.
void ReplaceSettings() {
  geteuid();
  sigset_t pending;
  sigset_t signal;
  sigset_t before;
  sigemptyset(&signal);
  sigaddset(&signal, SIGXFSZ);
  sigpending(&pending);
  pthread_sigmask(SIG_BLOCK, &signal, &before);

  struct stat status;
  stat(folder, &status);
  char target[8];
  Ignore(readlink(file, target, sizeof target));
  char fresh[sizeof file + 8];
  std::memcpy(fresh, file, fileLength);
  std::memcpy(fresh + fileLength, ".floor1", sizeof ".floor1");
  MakeFresh(fresh);
  const int old = open(file, O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
  flock(old, LOCK_EX | LOCK_NB);
  lstat(file, &status);
  rename(fresh, file);
  const int listing =
      open(folder, O_RDONLY | O_NONBLOCK | O_DIRECTORY | O_CLOEXEC);
  fstat(listing, &status);
  fsync(listing);
  ReadFolder(listing);
  close(listing);
  close(old);

  sigpending(&pending);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

}  // namespace

void StoreIndex(std::uint32_t channel, std::uint32_t index) {
  content[kChannelAt] = static_cast<char>('0' + channel);
  content[kIndexAt] = static_cast<char>('0' + index);

  struct stat status;
  stat(makersFolder, &status);
  geteuid();
  stat(folder, &status);
  char target[8];
  Ignore(readlink(file, target, sizeof target));
  const int locked = open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  flock(locked, LOCK_EX | LOCK_NB);
  ReadFile();
  ReplaceSettings();
  flock(locked, LOCK_UN);
  close(locked);
}

}  // namespace ztk::bench::floor
