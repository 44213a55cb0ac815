// SPDX-License-Identifier: MIT
#include "platform/common/user_home.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "platform/common/file_access.h"

namespace ztk::platform {
namespace {

// Returns the user's home folder from the password database. Empty if the user
// has no entry.
std::string HomeFromPasswordDatabase() {
  constexpr std::size_t kLargestEntry = std::size_t{1} << 20;
  for (std::size_t size = 1024; size <= kLargestEntry; size *= 2) {
    std::vector<char> buffer(size);
    struct passwd entry = {};
    struct passwd *found = nullptr;
    const int error =
        getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
    if (error == ERANGE) continue;
    if (error != 0 || found == nullptr || found->pw_dir == nullptr) return "";
    return found->pw_dir[0] == '/' ? found->pw_dir : "";
  }
  return "";
}

}  // namespace

std::string UserHome() {
  std::string home = AbsolutePathFromEnvironment("HOME");
  return home.empty() ? HomeFromPasswordDatabase() : home;
}

}  // namespace ztk::platform
