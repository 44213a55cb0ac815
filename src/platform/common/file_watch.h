// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_FILE_WATCH_H_
#define ZTK_PLATFORM_COMMON_FILE_WATCH_H_

#include <sys/stat.h>

#include <chrono>
#include <optional>
#include <string>

#include "platform/property_list.h"

namespace ztk::platform {

// Decides whether a settings file that cannot be parsed is damaged, or whether
// another program is still writing it. The caller reads the file again, with
// pauses, until Judge() returns a result. The file is damaged if two readings
// returned the same bytes and the file has not changed for a quarter of a
// second. It is unavailable (EBUSY) if it still changes after half a second.
class FileWatch {
 public:
  // Takes the result of ReadRegularFile(). If it succeeded, the caller could
  // not parse `bytes`. Returns the result for the file. If the file has to be
  // read again, Judge() waits for a moment and returns no value.
  std::optional<property_list::ReadResult> Judge(int error,
                                                 const std::string &bytes,
                                                 const struct stat &status);

 private:
  // Whether the file has not changed for long enough: according to its
  // modification time, or according to its bytes since the first reading. The
  // second test is necessary because the clock of a network file system may
  // differ from the clock of this machine.
  bool IsSettled(const struct stat &status) const;

  std::chrono::milliseconds watched_{0};
  std::chrono::milliseconds unchangedFor_{0};
  std::optional<std::string> lastBytes_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_FILE_WATCH_H_
