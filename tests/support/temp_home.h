// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_TEMP_HOME_H_
#define ZTK_TESTS_SUPPORT_TEMP_HOME_H_

#include <filesystem>
#include <string>

namespace ztk::test {

// A new, empty home of this process and its children, removed at the end.
class TempHome {
 public:
  TempHome();
  ~TempHome();
  TempHome(const TempHome &) = delete;
  TempHome &operator=(const TempHome &) = delete;

  const std::filesystem::path &path() const { return path_; }
  // The settings file of a model, which may not exist.
  std::filesystem::path SettingsFile(const std::string &model) const;

 private:
  std::filesystem::path path_;
};

// The whole of a file; empty when there is none.
std::string ReadAll(const std::filesystem::path &file);
void WriteAll(const std::filesystem::path &file, const std::string &bytes);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_TEMP_HOME_H_
