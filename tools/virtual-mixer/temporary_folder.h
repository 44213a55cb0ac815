// SPDX-License-Identifier: MIT
//
// Temporary folders that do not stay behind, even when a program is killed.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_TEMPORARY_FOLDER_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_TEMPORARY_FOLDER_H_

#include <string>

#include "platform/common/file_descriptor.h"

namespace ztk::virtual_mixer {

// Marks a folder as used by this process: a locked file in the folder, whose
// lock the kernel releases when the process ends in whatever way.
class FolderMark {
 public:
  FolderMark() = default;
  // Throws std::runtime_error when the folder cannot be marked.
  explicit FolderMark(const std::string &folder);

 private:
  platform::FileDescriptor file_;
};

// Removes the marked folders of this user in `parent` whose process has ended:
// a program that is killed (SIGKILL) cannot remove its own. Only folders with
// the names that these programs use are looked at.
void RemoveAbandonedFolders(const std::string &parent);

// The folder for temporary files: TMPDIR, or /tmp where TMPDIR is not an
// absolute path or longer than `longest` characters.
std::string TemporaryParent(std::size_t longest = 4096);

// Makes a folder that only this user can enter, and marks it. Its name is
// `name` and a random ending. The destructor removes it.
class TemporaryFolder {
 public:
  // Throws std::runtime_error when the folder cannot be made.
  TemporaryFolder(const std::string &parent, const std::string &name);
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;
  const std::string &Path() const { return path_; }

 private:
  std::string path_;
  FolderMark mark_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_TEMPORARY_FOLDER_H_
