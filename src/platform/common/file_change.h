// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_CHANGE_H_
#define ZTK_PLATFORM_COMMON_FILE_CHANGE_H_

#include <chrono>
#include <string>

#include "platform/common/file_descriptor.h"
#include "platform/common/owner_identity.h"

namespace ztk::platform {

// Locks an open file or folder exclusively (flock). Tries again after short
// pauses until `maxWait` has passed. Returns false and sets errno if another
// process still holds the lock (EWOULDBLOCK) or the file system has no locks.
bool LockExclusively(int descriptor, std::chrono::milliseconds maxWait);

// Whether FileChange creates the folder of the file if it is missing.
enum class MissingFolders { Create, Leave };

// While this object exists, other processes that change a file of the same
// folder wait. The object holds a lock on the folder itself, so no lock file
// remains, and the lock ends when the process ends. The thread also has the
// identity of the owner of the path meanwhile (owner_identity.h).
//
// If the file system has no locks, or another process keeps the lock for more
// than a second, the change is made without the lock.
class FileChange {
 public:
  FileChange(const std::string &path, MissingFolders missing);
  ~FileChange();
  FileChange(const FileChange &) = delete;
  FileChange &operator=(const FileChange &) = delete;

  bool locked() const { return locked_; }

 private:
  const OwnerIdentity identity_;
  FileDescriptor folder_;
  bool locked_ = false;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_CHANGE_H_
