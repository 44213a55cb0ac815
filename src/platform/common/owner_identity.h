// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_
#define ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::platform {

// While this object exists, its thread accesses files as the owner of a path.
// The owner is the user who owns the first component of the path that does not
// belong to root: this user controls everything below that component. A file at
// the end of the path does not count. If there is no such component, the owner
// is root.
//
// The identity changes only if the effective user is root and the owner is
// another user, for example after `sudo` with the HOME of a user. Then the
// files and folders that root creates belong to the owner, and a symbolic link
// of the owner gives root no more access than the owner has.
//
// Other threads keep their identity. Objects for the same path may be nested.
class OwnerIdentity {
 public:
  explicit OwnerIdentity(const std::string &path);
  ~OwnerIdentity();
  OwnerIdentity(const OwnerIdentity &) = delete;
  OwnerIdentity &operator=(const OwnerIdentity &) = delete;

  // False if the system refused to change the identity. The caller must not
  // access the files then.
  bool good() const { return good_; }

 private:
  bool good_ = true;
  bool changed_ = false;
  [[maybe_unused]] uid_t formerUser_ = 0;
  [[maybe_unused]] gid_t formerGroup_ = 0;
  std::vector<gid_t> formerGroups_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_
