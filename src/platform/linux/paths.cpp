// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include <sys/stat.h>

#include <new>
#include <string>

#include "platform/common/file_access.h"
#include "platform/common/user_home.h"
#include "platform/text.h"

namespace ztk::platform::paths {
namespace {

constexpr char kMakersFolder[] = "/tarvix";

bool IsFolder(const std::string &path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

ZTKTextRef UserLibrary() try {
  const std::string home = UserHome();
  std::string config = AbsolutePathFromEnvironment("XDG_CONFIG_HOME");
  if (config.empty() && !home.empty()) config = home + "/.config";
  if (config.empty()) return nullptr;

  const std::string library = config + kMakersFolder;
  // A home folder may be shared with macOS. Both systems then use the folder of
  // macOS, unless the folder of this system exists already.
  const bool shared = !home.empty() && !IsFolder(library) &&
                      IsFolder(home + "/Library/Preferences");
  const std::string chosen = shared ? home + "/Library" : library;
  return text::Format("%@", chosen.c_str());
} catch (const std::bad_alloc &) {
  return nullptr;
}

}  // namespace ztk::platform::paths
