// SPDX-License-Identifier: MIT
#include "ztk/doctor/finding.h"

#include <sys/stat.h>
#include <unistd.h>

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

std::string TakeOverCommand(const std::string &path, const char *mode) {
  struct stat status {};
  const bool own =
      stat(path.c_str(), &status) == 0 && status.st_uid == geteuid();
  return (own ? std::string("chmod ") + mode : "sudo chown \"$(id -un)\"") +
         " " + ShellQuoted(path);
}

}  // namespace ztk::model
