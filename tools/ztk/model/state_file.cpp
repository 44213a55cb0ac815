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

#include "platform/common/replace_file.h"
#include "ztk/progress.h"

namespace ztk::program {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

// A mixer that does not answer holds its program up for 15 s.
constexpr seconds kPatience{20};
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
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0) {
    reason_ = path + ": " + std::strerror(errno);
    return;
  }
  const Progress progress("Waiting for another ztk");
  const auto end = steady_clock::now() + kPatience;
  while (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) {
      reason_ = path + ": " + std::strerror(errno);
      break;
    }
    if (steady_clock::now() >= end) {
      reason_ = "another ztk does not come to its end";
      break;
    }
    std::this_thread::sleep_for(kPause);
  }
  if (reason_.empty()) {
    file_ = file;
  } else {
    close(file);
  }
}

StateLock::~StateLock() {
  if (file_ >= 0) close(file_);
}

std::string ReadStateFile(const std::string &path) {
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return "";
  std::string text;
  std::array<char, 4096> part{};
  ssize_t got = 0;
  while ((got = read(file, part.data(), part.size())) > 0 &&
         text.size() <= kLargest) {
    text.append(part.data(), static_cast<std::size_t>(got));
  }
  close(file);
  return got < 0 || text.size() > kLargest ? "" : text;
}

bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld) {
  return platform::ReplaceFile(path, text, keepOld);
}

}  // namespace ztk::program
