// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
#define ZTK_PLATFORM_COMMON_REPLACE_FILE_H_

#include <string>
#include <string_view>

namespace ztk::platform {

// Replaces a file, so that a reader sees the old content or the new one: a new
// file beside it takes its name. False when that cannot be done; then the old
// file stands and nothing is left behind.
//
// A missing folder of the path is made, open to its owner only, and up to two
// above it; a home directory is never made. A symbolic link stays, and the file
// that it names is replaced, or made where there is none. An existing file
// keeps its mode and, where the caller may set it, its owner; a new one is for
// its owner only.
//
// With `keepOld` the old file is kept beside the new one under the first free
// name of "<file>.unreadable-1", "-2" and so on to 1000; where that cannot be
// done it is not replaced. One that may neither be linked nor read is moved
// there first, and for a moment there is none. The new file can then be read by
// its owner in any case.
//
// A process that may not write so large a file is not killed for it (SIGXFSZ).
bool ReplaceFile(const std::string &path, std::string_view content,
                 bool keepOld);

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_REPLACE_FILE_H_
