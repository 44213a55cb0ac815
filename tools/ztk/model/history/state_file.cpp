// SPDX-License-Identifier: MIT
#include "ztk/model/history/state_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>

#include "platform/common/file_access.h"
#include "platform/common/file_change.h"
#include "platform/common/owner_identity.h"
#include "platform/common/replace_file.h"
#include "platform/common/user_home.h"

namespace ztk::model {

namespace {

constexpr std::chrono::milliseconds kLongestWait{5000};
constexpr std::size_t kLargest = std::size_t{1} << 20;  // bytes

bool IsRegularFile(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

std::string ErrorText(const std::string &path, int error) {
  switch (error) {
    case ELOOP:
      return path + ": it is a symbolic link";
    case EINVAL:
      return path + ": it is not a regular file";
    case EFBIG:
      return path + ": it is larger than 1 MiB";
    default:
      return path + ": " + std::strerror(error);
  }
}

// The process that holds the lock has written its number into the file.
std::string OtherProcess(int file) {
  std::array<char, 16> digits{};
  const ssize_t length = pread(file, digits.data(), digits.size(), 0);
  std::string number;
  for (ssize_t i = 0; i < length; ++i) {
    const char digit = digits[static_cast<std::size_t>(i)];
    if (digit < '0' || digit > '9') break;
    number += digit;
  }
  return number.empty() ? "another ztk"
                        : "another ztk, process " + number + ",";
}

// The number is only shown to the user, so a failure to write it does not
// matter.
void WriteProcessNumber(int file) {
  const std::string number = std::to_string(getpid()) + "\n";
  if (ftruncate(file, 0) != 0 ||
      pwrite(file, number.data(), number.size(), 0) < 0) {
    errno = 0;
  }
}

}  // namespace

std::string StateFolder() {
  std::string state = platform::AbsolutePathFromEnvironment("XDG_STATE_HOME");
  if (state.empty()) {
    const std::string home = platform::UserHome();
    if (home.empty()) return "";
    state = home + "/.local/state";
  }
  return state + "/tarvix";
}

StateLock::StateLock(const std::string &folder) {
  if (folder.empty()) {
    reason_ = "you have no home folder";
    return;
  }
  const std::string path = folder + "/ztk.lock";
  // Root makes the file as the user to whom the folder belongs.
  const platform::OwnerIdentity identity(path);
  if (!identity.good()) {
    reason_ = path + ": the system does not let root act as its owner";
    return;
  }
  platform::MakeFolders(path, platform::kMaxMissingFolders);
  Open(path);
  if (file_ >= 0) Wait(path);
}

StateLock::~StateLock() {
  if (file_ >= 0) close(file_);
}

// Does not block when a pipe has the name of the file.
void StateLock::Open(const std::string &path) {
  file_ = open(path.c_str(),
               O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
  if (file_ < 0) {
    reason_ = ErrorText(path, errno);
  } else if (!IsRegularFile(file_)) {
    reason_ = path + ": it is not a regular file";
    close(file_);
    file_ = -1;
  }
}

void StateLock::Wait(const std::string &path) {
  if (platform::LockExclusively(file_, kLongestWait)) {
    result_ = Result::Held;
    WriteProcessNumber(file_);
  } else if (errno == EWOULDBLOCK) {
    result_ = Result::Busy;
    reason_ =
        OtherProcess(file_) + " is at work and has not finished within 5 s";
  } else {
    reason_ = ErrorText(path, errno);
  }
}

StateFileContent ReadStateFile(const std::string &path) {
  const platform::OwnerIdentity identity(path);
  StateFileContent content;
  const int error = identity.good()
                        ? platform::ReadRegularFile(path.c_str(), kLargest,
                                                    &content.text, O_NOFOLLOW)
                        : EPERM;
  if (error == 0) return content;
  content.text.clear();
  if (error != ENOENT && error != ENOTDIR) {
    content.reason = ErrorText(path, error);
  }
  return content;
}

bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld) {
  return platform::ReplaceFile(path, text, keepOld);
}

}  // namespace ztk::model
