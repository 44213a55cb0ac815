// SPDX-License-Identifier: MIT
#include "ztk/system/file_text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace ztk::model {

File OpenFile(const std::string &path, const char *mode) {
  return {std::fopen(path.c_str(), mode), std::fclose};
}

std::string ReadText(std::FILE *file, std::size_t limit) {
  std::string text;
  std::array<char, 4096> bytes;
  while (text.size() < limit) {
    const std::size_t wanted = std::min(limit - text.size(), bytes.size());
    const std::size_t got = std::fread(bytes.data(), 1, wanted, file);
    text.append(bytes.data(), got);
    if (got < wanted) break;
  }
  return text;
}

std::string FileText(const std::string &path) {
  const File file = OpenFile(path, "re");
  if (!file) return "";
  return ReadText(file.get(), std::numeric_limits<std::size_t>::max());
}

}  // namespace ztk::model
