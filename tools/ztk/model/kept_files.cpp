// SPDX-License-Identifier: MIT
#include "ztk/model/kept_files.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <tuple>

#include "cli/strings.h"
#include "ztk/doctor/finding.h"

namespace ztk::model {

namespace {

struct Kept {
  // The time at which it received its name; files with the same time are
  // ordered by their numbers.
  std::tuple<std::int64_t, std::int64_t, std::uint32_t> age;
  std::string path;
};

std::tuple<std::int64_t, std::int64_t> ChangeTime(const struct stat &status) {
#ifdef __APPLE__
  return {status.st_ctimespec.tv_sec, status.st_ctimespec.tv_nsec};
#else
  return {status.st_ctim.tv_sec, status.st_ctim.tv_nsec};
#endif
}

std::optional<Kept> KeptAs(const std::string &path, const std::string &digits) {
  const auto number = cli::ParseNumber(digits);
  struct stat status {};
  if (!number || lstat(path.c_str(), &status) != 0) return std::nullopt;
  return Kept{.age = std::tuple_cat(ChangeTime(status), std::tuple(*number)),
              .path = path};
}

}  // namespace

std::vector<std::string> KeptFiles(const std::string &file) {
  const std::string begin = file + ".unreadable-";
  const std::string folder = file.substr(0, file.rfind('/') + 1);
  std::vector<Kept> kept;
  const std::unique_ptr<DIR, int (*)(DIR *)> entries(opendir(folder.c_str()),
                                                     closedir);
  while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
    const std::string path = folder + static_cast<const char *>(entry->d_name);
    if (!path.starts_with(begin)) continue;
    if (auto one = KeptAs(path, path.substr(begin.size()))) {
      kept.push_back(std::move(*one));
    }
  }
  std::sort(kept.begin(), kept.end(), [](const Kept &one, const Kept &other) {
    return one.age < other.age;
  });
  std::vector<std::string> paths;
  for (Kept &one : kept) paths.push_back(std::move(one.path));
  return paths;
}

std::string BringBackCommand(const std::string &kept, const std::string &file) {
  struct stat status {};
  const bool readable =
      stat(kept.c_str(), &status) == 0 &&
      (status.st_mode & (S_IRUSR | S_IWUSR)) == (S_IRUSR | S_IWUSR);
  return (readable ? "" : "chmod u+rw " + ShellQuoted(kept) + " && ") + "mv " +
         ShellQuoted(kept) + " " + ShellQuoted(file);
}

}  // namespace ztk::model
