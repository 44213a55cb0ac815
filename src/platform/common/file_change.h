// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_CHANGE_H_
#define ZTK_PLATFORM_COMMON_FILE_CHANGE_H_

#include <chrono>
#include <string>

#include "platform/common/file_descriptor.h"
#include "platform/common/owner_identity.h"

namespace ztk::platform {

// Locks an open file or folder exclusively (flock). Tries again after short
// pauses until `patience` has passed. False, with errno set, when another
// process still holds the lock (EWOULDBLOCK) or the file system has no locks.
bool LockExclusively(int descriptor, std::chrono::milliseconds patience);

// Whether a missing folder of the file is created.
enum class MissingFolders { Create, Leave };

// While it exists, other processes that change a file of the same folder wait:
// it holds a lock on the folder itself, so no file is left behind, and the lock
// ends with the process. It also takes the identity of the folder's owner
// (owner_identity.h) and creates the folder where it is missing.
//
// A file system without locks, or a process that keeps the lock for more than a
// second, does not prevent the change: it goes on without the lock.
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
