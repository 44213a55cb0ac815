// SPDX-License-Identifier: MIT
#include "platform/common/file_watch.h"

#include <cerrno>

#include "platform/common/file_access.h"
#include "platform/common/pause.h"

namespace ztk::platform {
namespace {

using property_list::ReadResult;
using property_list::ReadState;
using std::chrono::milliseconds;

constexpr milliseconds kPause{10};
// A program that copies a file does not pause longer than this, even on a busy
// machine.
constexpr milliseconds kQuiet{250};
constexpr milliseconds kMaxWait{500};

ReadResult ResultOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return {.state = ReadState::Absent};
    case EFBIG:
      return {.state = ReadState::Damaged};
    default:
      return {.state = ReadState::Unavailable, .error = error};
  }
}

}  // namespace

std::optional<ReadResult> FileWatch::Judge(int error, const std::string &bytes,
                                           const struct stat &status) {
  if (error != 0 && error != EBUSY) return ResultOf(error);
  const bool sameBytes = error == 0 && lastBytes_ == bytes;
  if (sameBytes && IsSettled(status)) {
    return ReadResult{.state = ReadState::Damaged};
  }
  if (watched_ >= kMaxWait) return ResultOf(EBUSY);
  lastBytes_ = error == 0 ? std::optional(bytes) : std::nullopt;
  Pause(kPause);
  watched_ += kPause;
  unchangedFor_ = sameBytes ? unchangedFor_ + kPause : milliseconds(0);
  return std::nullopt;
}

bool FileWatch::IsSettled(const struct stat &status) const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return unchangedFor_ >= kQuiet || now - ModificationTime(status) >= kQuiet;
}

}  // namespace ztk::platform
