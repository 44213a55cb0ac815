// SPDX-License-Identifier: MIT
//
// Reads text files with the functions of C. The streams of C++ would prepare
// the formats of the locale at each start, whether a file is read or not.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_FILE_TEXT_H_
#define ZTK_TOOLS_ZTK_SYSTEM_FILE_TEXT_H_

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace ztk::model {

// A file that is closed at the end of the scope; null if it cannot be opened.
using File = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

// Opens a file with a mode of std::fopen(). errno is the reason of a failure.
File OpenFile(const std::string &path, const char *mode);

// Reads to the end of the file, but at most `limit` bytes. std::ferror()
// reports whether the reading failed.
std::string ReadText(std::FILE *file, std::size_t limit);

// The content of a file; empty if there is none, or it cannot be read.
std::string FileText(const std::string &path);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_FILE_TEXT_H_
