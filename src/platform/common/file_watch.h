// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_WATCH_H_
#define ZTK_PLATFORM_COMMON_FILE_WATCH_H_

#include <sys/stat.h>

#include <chrono>
#include <optional>
#include <string>

#include "platform/property_list.h"

namespace ztk::platform {

// Decides whether a settings file that does not parse is damaged, or whether
// another program is copying over it and has stopped in the middle. Such a file
// is read again and again, with pauses, until there is a verdict: it is damaged
// when two readings gave the same bytes and it has not changed for a quarter of
// a second; it is unavailable (EBUSY) when it still changes after half a
// second.
class FileWatch {
 public:
  // Takes the result of one reading by ReadRegularFile(), whose bytes did not
  // parse. Returns the verdict, or nothing after a pause: read the file again.
  std::optional<property_list::ReadResult> Judge(int error,
                                                 const std::string &bytes,
                                                 const struct stat &status);

 private:
  // Whether a file that had the same bytes at the last two readings counts as
  // damaged: its last change is long ago, or it has not changed for as long
  // while it was watched. The clock of a network file system may differ from
  // ours.
  bool IsSettled(const struct stat &status) const;

  std::chrono::milliseconds watched_{0};
  std::chrono::milliseconds unchanged_{0};
  std::optional<std::string> lastBytes_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_WATCH_H_
