// SPDX-License-Identifier: MIT
//
// Settings and undo history that last as long as one run.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_

#include <string>
#include <vector>

namespace ztk::virtual_mixer {

// A new folder under TMPDIR that stands in for the user's folders of
// configuration and of state. Nothing is remembered there for the mixers; all
// else in it leads to what the user has.
class PrivateSettings {
 public:
  // Throws std::runtime_error when there can be no such folder.
  PrivateSettings();
  // Removes the folder, and nothing that it leads to.
  ~PrivateSettings();
  PrivateSettings(const PrivateSettings &) = delete;
  PrivateSettings &operator=(const PrivateSettings &) = delete;

  const std::string &Folder() const { return folder_; }

  // "NAME=value" of what has programs look there.
  std::vector<std::string> Environment() const;

 private:
  std::string folder_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_PRIVATE_SETTINGS_H_
