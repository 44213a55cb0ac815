// SPDX-License-Identifier: MIT
#include "platform/common/file_watch.h"

#include "platform/common/file_access.h"
#include "platform/common/pause.h"

namespace ztk::platform {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPause{10};
// A copy goes on sooner than this, even on a busy machine.
constexpr milliseconds kQuiet{250};
constexpr milliseconds kPatience{500};

}  // namespace

bool FileWatch::IsSettled(const struct stat &status) const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return unchanged_ >= kQuiet || now - ModificationTime(status) >= kQuiet;
}

bool FileWatch::IsOver() const { return watched_ >= kPatience; }

void FileWatch::Wait(bool unchanged) {
  Pause(kPause);
  watched_ += kPause;
  unchanged_ = unchanged ? unchanged_ + kPause : milliseconds(0);
}

}  // namespace ztk::platform
