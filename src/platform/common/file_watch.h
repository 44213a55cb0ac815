// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_WATCH_H_
#define ZTK_PLATFORM_COMMON_FILE_WATCH_H_

#include <sys/stat.h>

#include <chrono>

namespace ztk::platform {

// Decides whether a file that does not parse is damaged, or whether another
// program is copying over it and has stopped in the middle. Such a file is read
// again and again, with pauses, until IsSettled() or IsOver().
class FileWatch {
 public:
  // Whether a file that had the same bytes at the last two readings counts as
  // damaged: its last change is long ago, or it has not changed for as long
  // while it was watched. The clock of a network file system may differ from
  // ours.
  bool IsSettled(const struct stat &status) const;
  // Whether it was watched long enough, and changed all the time.
  bool IsOver() const;
  // Waits until the next reading. `unchanged` tells whether the last one gave
  // the same bytes as the one before.
  void Wait(bool unchanged);

 private:
  std::chrono::milliseconds watched_{0};
  std::chrono::milliseconds unchanged_{0};
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_WATCH_H_
