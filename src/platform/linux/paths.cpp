// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "platform/text.h"

namespace ztk::platform::paths {
namespace {

constexpr char kMakersFolder[] = "/tarvix";

bool IsFolder(const std::string &path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The environment's value, or nothing unless it is an absolute path: a
// relative one would put the settings wherever the program happens to run.
std::string AbsoluteFromEnvironment(const char *name) {
  const char *value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

// Home of the user as the password database has it; empty without an entry.
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

ZTKTextRef UserLibrary() try {
  std::string home = AbsoluteFromEnvironment("HOME");
  if (home.empty()) home = HomeFromPasswordDatabase();
  std::string config = AbsoluteFromEnvironment("XDG_CONFIG_HOME");
  if (config.empty() && !home.empty()) config = home + "/.config";
  if (config.empty()) return nullptr;

  const std::string library = config + kMakersFolder;
  // A home that is shared with macOS keeps its settings in one place, unless
  // settings were already written to the place of this system.
  const bool shared = !home.empty() && !IsFolder(library) &&
                      IsFolder(home + "/Library/Preferences");
  const std::string chosen = shared ? home + "/Library" : library;
  return text::Format("%@", chosen.c_str());
} catch (const std::bad_alloc &) {
  return nullptr;
}

}  // namespace ztk::platform::paths
