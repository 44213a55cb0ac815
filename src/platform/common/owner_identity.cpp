// SPDX-License-Identifier: MIT
#include "platform/common/owner_identity.h"

#include <sys/stat.h>
#include <unistd.h>

#if defined(__linux__)
#include <sys/fsuid.h>
#include <sys/syscall.h>
#endif

namespace ztk::platform {
namespace {

struct Owner {
  uid_t user = 0;
  gid_t group = 0;
};

// Returns the owner of the first component of the path that does not belong to
// root, or root if there is no such component. A symbolic link counts as a
// component, because its owner decides where the path leads. A file at the end
// does not count, because its owner may have no rights in the folder.
Owner OwnerOfPlace(const std::string &path) {
  for (std::size_t end = 1; end != std::string::npos;) {
    end = path.find('/', end);
    struct stat status = {};
    if (lstat(path.substr(0, end).c_str(), &status) != 0) break;
    const bool isFile = end == std::string::npos && !S_ISLNK(status.st_mode);
    if (status.st_uid != 0 && !isFile) {
      return {.user = status.st_uid, .group = status.st_gid};
    }
    if (end != std::string::npos) ++end;
  }
  return {};
}

}  // namespace

#if defined(__linux__)

namespace {

// The system call is used because setgroups() of the C library would change the
// groups of every thread.
#if defined(SYS_setgroups32)
constexpr long kSetGroups = SYS_setgroups32;
#else
constexpr long kSetGroups = SYS_setgroups;
#endif

bool SetGroups(const std::vector<gid_t> &groups) {
  return syscall(kSetGroups, groups.size(), groups.data()) == 0;
}

// setfsuid() and setfsgid() do not report failures. For an invalid number they
// change nothing and return the current number, so a call with it reads the
// current number.
constexpr auto kInvalidId = static_cast<uid_t>(-1);
uid_t CurrentUser() { return static_cast<uid_t>(setfsuid(kInvalidId)); }
gid_t CurrentGroup() { return static_cast<gid_t>(setfsgid(kInvalidId)); }

}  // namespace

// While the file system user is not root, the thread also lacks the
// capabilities that override file permissions: the kernel removes them in
// setfsuid() and restores them when the user is root again.
OwnerIdentity::OwnerIdentity(const std::string &path) {
  if (geteuid() != 0) return;
  const Owner owner = OwnerOfPlace(path);
  if (owner.user == 0) return;

  const int count = getgroups(0, nullptr);
  formerGroups_.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
  if (getgroups(count, formerGroups_.data()) != count || !SetGroups({})) {
    good_ = false;
    return;
  }
  changed_ = true;
  formerGroup_ = static_cast<gid_t>(setfsgid(owner.group));
  formerUser_ = static_cast<uid_t>(setfsuid(owner.user));
  good_ = CurrentUser() == owner.user && CurrentGroup() == owner.group;
}

OwnerIdentity::~OwnerIdentity() {
  if (!changed_) return;
  setfsuid(formerUser_);
  setfsgid(formerGroup_);
  SetGroups(formerGroups_);
}

#else

namespace {

// With this number, the thread has the identity of the process again.
constexpr auto kNoIdentity = static_cast<uid_t>(-101);

bool SetThreadIdentity(uid_t user, gid_t group) {
// pthread_setugid_np() is deprecated, but no other function changes the
// identity of a single thread.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
  return pthread_setugid_np(user, group) == 0;
#pragma clang diagnostic pop
}

}  // namespace

// While a thread has its own identity, geteuid() returns the user of that
// identity. So a nested object changes nothing.
OwnerIdentity::OwnerIdentity(const std::string &path) {
  if (geteuid() != 0) return;
  const Owner owner = OwnerOfPlace(path);
  if (owner.user == 0) return;
  changed_ = SetThreadIdentity(owner.user, owner.group);
  good_ = changed_;
}

OwnerIdentity::~OwnerIdentity() {
  if (changed_) SetThreadIdentity(kNoIdentity, kNoIdentity);
}

#endif

}  // namespace ztk::platform
