// SPDX-License-Identifier: MIT
#include "platform/common/file_change.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <optional>

#include "platform/common/file_access.h"
#include "platform/common/pause.h"

namespace ztk::platform {

bool LockExclusively(int descriptor, std::chrono::milliseconds maxWait) {
  using std::chrono::steady_clock;
  // The pause is short, because a process that changes the file all the time
  // releases the lock only for a short time.
  constexpr std::chrono::microseconds kPause{300};
  if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) return true;
  const auto end = steady_clock::now() + maxWait;
  while (errno == EWOULDBLOCK || errno == EINTR) {
    if (steady_clock::now() >= end) {
      errno = EWOULDBLOCK;
      return false;
    }
    Pause(kPause);
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) return true;
  }
  return false;
}

FileChange::FileChange(const std::string &path, MissingFolders missing)
    : identity_(path) {
  constexpr std::chrono::milliseconds kMaxWait{1000};
  if (!identity_.good()) return;
  if (missing == MissingFolders::Create) MakeFolders(path, kMaxMissingFolders);
  // Two paths may lead to the same file. So the folder that is locked is the
  // one that contains the file itself.
  const std::optional<std::string> file = FollowLinks(path);
  if (!file) return;
  folder_ = OpenFolderOf(*file);
  locked_ = folder_.valid() && LockExclusively(folder_.get(), kMaxWait);
}

// A child process may have a copy of the descriptor. Closing the descriptor
// would then not end the lock, but unlocking does.
FileChange::~FileChange() {
  if (locked_) flock(folder_.get(), LOCK_UN);
}

}  // namespace ztk::platform
