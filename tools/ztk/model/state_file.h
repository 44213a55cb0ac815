// SPDX-License-Identifier: MIT
//
// A file that this program keeps for itself, and that several of them share.
#ifndef ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_
#define ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_

#include <string>

namespace ztk::program {

// The folder for what a program keeps between its runs; empty where the user
// has no home. It need not exist.
std::string StateFolder();

// Keeps other programs of this kind out while it lives. It goes with the
// process, however that ends.
class StateLock {
 public:
  // Makes the folder, and waits for those that came before: not for ever, as
  // one of them may have been stopped.
  explicit StateLock(const std::string &folder);
  ~StateLock();
  StateLock(const StateLock &) = delete;
  StateLock &operator=(const StateLock &) = delete;

  bool held() const { return file_ >= 0; }
  // Why it is not held, as a part of a sentence.
  const std::string &reason() const { return reason_; }

 private:
  int file_ = -1;
  std::string reason_;
};

// Empty for a file that is not there, or too large to be one of ours.
std::string ReadStateFile(const std::string &path);

// Puts the text there so that a reader sees the old or the new one. With
// `keepOld` the old one stays beside it. False when it could not.
bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_
