// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_
#define ZTK_PLATFORM_COMMON_OWNER_IDENTITY_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::platform {

// Has this thread access files as the user to whom the place of a file belongs,
// while the object lives. Changes something only when the effective user is
// root and the place belongs to someone else, as after `sudo` with the user's
// HOME. Files and folders that root creates there then belong to the user, and
// a symbolic link that the user has put there leads root only where the user
// may go.
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
  // touched.
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
