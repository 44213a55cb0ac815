// SPDX-License-Identifier: MIT
#include "ztk/doctor/finding.h"

namespace ztk::model {

std::string ShellQuoted(const std::string &word) {
  constexpr char kSafe[] =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_./:=@~-";
  if (!word.empty() && word.find_first_not_of(kSafe) == std::string::npos) {
    return word;
  }
  std::string quoted = "'";
  for (const char character : word) {
    quoted +=
        character == '\'' ? std::string("'\\''") : std::string(1, character);
  }
  return quoted + "'";
}

}  // namespace ztk::model
