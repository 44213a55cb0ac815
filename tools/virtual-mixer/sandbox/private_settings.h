// SPDX-License-Identifier: MIT
//
// Settings and undo history that exist as long as one run.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_

#include <string>
#include <vector>

#include "virtual-mixer/temporary_folder.h"

namespace ztk::virtual_mixer {

// A new folder under TMPDIR that replaces the user's folders of configuration
// and of state. It has no settings of the mixers; everything else in it is a
// symbolic link to what the user has.
class PrivateSettings {
 public:
  // Throws std::runtime_error when there can be no such folder.
  PrivateSettings();
  PrivateSettings(const PrivateSettings &) = delete;
  PrivateSettings &operator=(const PrivateSettings &) = delete;

  const std::string &Folder() const { return folder_.Path(); }

  // The environment variables ("NAME=value") by which programs find it.
  std::vector<std::string> Environment() const;

 private:
  TemporaryFolder folder_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_
