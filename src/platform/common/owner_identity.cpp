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

// The owner of the first component that does not belong to root; root when
// there is none. A symbolic link counts as a component, because its owner
// decides where the path leads. A file at the end does not count: its owner may
// have no right to its folder.
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

// The functions of the C library would change the groups of every thread.
#if defined(SYS_setgroups32)
constexpr long kSetGroups = SYS_setgroups32;
#else
constexpr long kSetGroups = SYS_setgroups;
#endif

bool SetGroups(const std::vector<gid_t> &groups) {
  return syscall(kSetGroups, groups.size(), groups.data()) == 0;
}

// setfsuid() and setfsgid() do not report failures: for an invalid number they
// change nothing and return the current one.
constexpr auto kNobodyAtAll = static_cast<uid_t>(-1);
uid_t CurrentUser() { return static_cast<uid_t>(setfsuid(kNobodyAtAll)); }
gid_t CurrentGroup() { return static_cast<gid_t>(setfsgid(kNobodyAtAll)); }

}  // namespace

// With another file system user the kernel also takes from the thread the
// capabilities that override permissions, until root's number returns.
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

// The number that ends a thread's own identity.
constexpr auto kNoIdentity = static_cast<uid_t>(-101);

bool SetThreadIdentity(uid_t user, gid_t group) {
// This function is deprecated, but no other one does this for a single thread.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
  return pthread_setugid_np(user, group) == 0;
#pragma clang diagnostic pop
}

}  // namespace

// While a thread has an identity of its own, geteuid() returns that one.
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
