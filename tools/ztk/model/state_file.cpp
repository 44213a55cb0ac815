// SPDX-License-Identifier: MIT
#include "ztk/model/state_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "platform/common/descriptor.h"
#include "platform/common/replace_file.h"

namespace ztk::model {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr seconds kLongestWait{5};
constexpr milliseconds kPause{5};
constexpr std::size_t kLargest = std::size_t{1} << 20;  // bytes

std::string AbsoluteVariable(const char *name) {
  const char *value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

// All but the first; what fails shows when a file is made.
void MakeFolders(const std::string &path) {
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    mkdir(path.substr(0, slash).c_str(), 0700);
  }
  mkdir(path.c_str(), 0700);
}

bool IsRegularFile(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

std::string ErrorText(const std::string &path, int error) {
  return path + ": " +
         (error == ELOOP ? "it is a symbolic link" : std::strerror(error));
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

// The number is only told to the user: nothing depends on it being written.
void WriteProcessNumber(int file) {
  const std::string number = std::to_string(getpid()) + "\n";
  if (ftruncate(file, 0) != 0 ||
      pwrite(file, number.data(), number.size(), 0) < 0) {
    errno = 0;
  }
}

}  // namespace

std::string StateFolder() {
  std::string state = AbsoluteVariable("XDG_STATE_HOME");
  if (state.empty()) {
    const std::string home = AbsoluteVariable("HOME");
    if (home.empty()) return "";
    state = home + "/.local/state";
  }
  return state + "/tarvix";
}

StateLock::StateLock(const std::string &folder) {
  if (folder.empty()) {
    reason_ = "HOME is not set";
    return;
  }
  MakeFolders(folder);
  const std::string path = folder + "/ztk.lock";
  Open(path);
  if (file_ >= 0) Wait(path);
}

StateLock::~StateLock() {
  if (file_ >= 0) close(file_);
}

// Does not wait for the other end of a pipe that has the file's name.
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
  const auto end = steady_clock::now() + kLongestWait;
  while (flock(file_, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) {
      reason_ = ErrorText(path, errno);
      return;
    }
    if (steady_clock::now() >= end) {
      result_ = Result::Busy;
      reason_ = OtherProcess(file_) +
                " is at work and has not finished within " +
                std::to_string(kLongestWait.count()) + " s";
      return;
    }
    std::this_thread::sleep_for(kPause);
  }
  result_ = Result::Held;
  WriteProcessNumber(file_);
}

StateFileContent ReadStateFile(const std::string &path) {
  StateFileContent content;
  const platform::Descriptor file(
      open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
  if (!file.valid()) {
    if (errno != ENOENT) content.reason = ErrorText(path, errno);
    return content;
  }
  if (!IsRegularFile(file.get())) {
    return {.text = {}, .reason = path + ": it is not a regular file"};
  }
  std::array<char, 4096> part{};
  while (content.text.size() <= kLargest) {
    const ssize_t length = read(file.get(), part.data(), part.size());
    if (length == 0) return content;
    if (length < 0 && errno == EINTR) continue;
    if (length < 0) return {.text = {}, .reason = ErrorText(path, errno)};
    content.text.append(part.data(), static_cast<std::size_t>(length));
  }
  return {.text = {}, .reason = path + ": it is larger than 1 MiB"};
}

bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld) {
  return platform::ReplaceFile(path, text, keepOld);
}

}  // namespace ztk::model
