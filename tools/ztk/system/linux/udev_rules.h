// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_SYSTEM_LINUX_UDEV_RULES_H_
#define ZTK_TOOLS_ZTK_SYSTEM_LINUX_UDEV_RULES_H_

#include <unistd.h>

#include <string>

namespace ztk::model {

// The path of the rules file that udev uses; empty when there is none. A file
// replaces files of the same name in later folders.
inline std::string FindUdevRules(const std::string &name) {
  for (const char *folder : {"/etc/udev/rules.d/", "/run/udev/rules.d/",
                             "/usr/local/lib/udev/rules.d/",
                             "/usr/lib/udev/rules.d/", "/lib/udev/rules.d/"}) {
    std::string path = folder + name;
    if (access(path.c_str(), F_OK) == 0) return path;
  }
  return "";
}

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_LINUX_UDEV_RULES_H_
