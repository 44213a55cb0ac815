// SPDX-License-Identifier: MIT
//
// The settings files that the library could not read and keeps under another
// name.
#ifndef ZTK_TOOLS_ZTK_MODEL_KEPT_FILES_H_
#define ZTK_TOOLS_ZTK_MODEL_KEPT_FILES_H_

#include <string>
#include <vector>

namespace ztk::model {

// The files beside `file` whose names are its name and ".unreadable-1", "-2",
// ...; the one that was kept last is the last.
std::vector<std::string> KeptFiles(const std::string &file);

// A command that puts the kept file in the place of `file`, and lets its owner
// read and write it.
std::string BringBackCommand(const std::string &kept, const std::string &file);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_KEPT_FILES_H_
