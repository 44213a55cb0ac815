// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_
#define ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::platform {

// While it exists, this thread accesses files as the user who owns the place of
// a file. Changes something only when the effective user is root and the place
// belongs to someone else, as after `sudo` with the user's HOME. Files and
// folders that root creates there then belong to the user, and a symbolic link
// of that user gives root no more access than the user has.
//
// The place belongs to the owner of the first component of the path, counted
// from the top, that does not belong to root: this user controls everything
// below it. Other threads keep their identity. May be nested for one path.
class OwnerIdentity {
 public:
  explicit OwnerIdentity(const std::string &path);
  ~OwnerIdentity();
  OwnerIdentity(const OwnerIdentity &) = delete;
  OwnerIdentity &operator=(const OwnerIdentity &) = delete;

  // False when the system refused the identity: then the files must not be
  // accessed.
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
