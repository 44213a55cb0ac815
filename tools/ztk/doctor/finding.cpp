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

std::string ParentFolder(const std::string &path) {
  const std::size_t slash = path.rfind('/');
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string FileInTheWay(std::string folder) {
  struct stat status {};
  while (stat(folder.c_str(), &status) != 0) {
    if (folder.find('/', 1) == std::string::npos) return "";
    folder = ParentFolder(folder);
  }
  return S_ISDIR(status.st_mode) ? "" : folder;
}

std::string ClearTheWayCommand(const std::string &path) {
  struct stat status {};
  const bool ordinary =
      stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
  return ordinary ? MoveAwayCommand(path) : "ls -l " + ShellQuoted(path);
}

}  // namespace ztk::model
