// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_LINUX_TEMP_FOLDER_H_
#define ZTK_TESTS_LINUX_TEMP_FOLDER_H_

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace ztk::test {

// A new, empty folder. It is removed with its contents when the object is
// destroyed.
class TempFolder {
 public:
  TempFolder() {
    std::string name = std::filesystem::temp_directory_path() / "port-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error("no temporary folder");
    }
    path_ = name;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder &) = delete;
  TempFolder &operator=(const TempFolder &) = delete;

  const std::filesystem::path &path() const { return path_; }
  std::string operator/(const std::string &name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

// Sets or removes an environment variable, and restores it when the object is
// destroyed.
class Variable {
 public:
  Variable(const char *name, const std::optional<std::string> &value)
      : name_(name) {
    if (const char *former = std::getenv(name)) former_ = former;
    Set(value);
  }
  ~Variable() { Set(former_); }
  Variable(const Variable &) = delete;
  Variable &operator=(const Variable &) = delete;

 private:
  void Set(const std::optional<std::string> &value) {
    if (value) {
      setenv(name_, value->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }
  const char *name_;
  std::optional<std::string> former_;
};

// Returns the content of a file, or an empty text if there is no file.
inline std::string ContentOf(const std::string &file) {
  const std::ifstream stream(file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

// Makes a file, and the folders above it. The modification time is a minute
// ago, so the library does not expect that another program is still writing the
// file.
inline void Put(const std::string &file, const std::string &content) {
  std::filesystem::create_directories(
      std::filesystem::path(file).parent_path());
  std::ofstream(file, std::ios::binary) << content;
  std::filesystem::last_write_time(
      file,
      std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
}

inline std::vector<std::string> NamesIn(const std::string &folder) {
  std::vector<std::string> names;
  for (const auto &entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Returns the permissions of a file, or 0 if there is no file.
inline unsigned ModeOf(const std::string &file) {
  struct stat status = {};
  return stat(file.c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

// Runs the function in a child process, which may change its user or its
// limits. Returns its exit status, or the negative number of the signal that
// ended it.
inline int ExitCodeOf(const std::function<int()> &function) {
  const pid_t child = fork();
  if (child == 0) _exit(function());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_LINUX_TEMP_FOLDER_H_
