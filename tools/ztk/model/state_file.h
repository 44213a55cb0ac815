// SPDX-License-Identifier: MIT
//
// A file that this program keeps for itself and that several of its processes
// share.
#ifndef ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_
#define ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_

#include <cstdint>
#include <string>

namespace ztk::model {

// The folder for what a program keeps between its runs; empty where the user
// has no home. It need not exist.
std::string StateFolder();

// Keeps other programs of this kind out while it lives. The system releases it
// when the process ends, however that happens.
class StateLock {
 public:
  enum class Result : std::uint8_t {
    Held,
    Busy,        // another process held it for as long as this one waited
    Unavailable  // there is no such folder, or no file can be made in it
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
// `keepOld` the old file is kept beside it. False when it could not.
bool ReplaceStateFile(const std::string &path, const std::string &text,
                      bool keepOld);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_STATE_FILE_H_
