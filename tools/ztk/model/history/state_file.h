// SPDX-License-Identifier: MIT
//
// A private file of this program, which several of its processes share.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_STATE_FILE_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_STATE_FILE_H_

#include <cstdint>
#include <string>

namespace ztk::model {

// The folder for the state of programs; empty when the user has no home. It may
// not exist.
std::string StateFolder();

// A lock against other processes of this program. The system releases it when
// the process ends, also after a crash.
class StateLock {
 public:
  enum class Result : std::uint8_t {
    Held,
    Busy,        // another process held it for the whole waiting time
    Unavailable  // the folder is missing, or no file can be made in it
  };

  // Makes the folder, and waits at most 5 s for the process that holds the
  // lock.
  explicit StateLock(const std::string &folder);
  ~StateLock();
  StateLock(const StateLock &) = delete;
  StateLock &operator=(const StateLock &) = delete;

  Result result() const { return result_; }
  // Why it is not held, as a part of a sentence.
  const std::string &reason() const { return reason_; }

 private:
  void Open(const std::string &path);
  void Wait(const std::string &path);
  void Fail(const std::string &path);

  int file_ = -1;
  Result result_ = Result::Unavailable;
  std::string reason_;
};

struct StateFileContent {
  std::string text;    // empty for a file that does not exist
  std::string reason;  // why an existing file cannot be read; else empty
};

// Reads a regular file of at most 1 MiB. Does not follow a symbolic link.
StateFileContent ReadStateFile(const std::string &path);

// Replaces the file so that a reader sees the old or the new content. With
// `keepOld` the old file is kept beside it. False on failure.
bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_STATE_FILE_H_
