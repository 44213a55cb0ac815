// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_TEMP_HOME_H_
#define ZTK_TESTS_SUPPORT_TEMP_HOME_H_

#include <filesystem>
#include <string>

namespace ztk::test {

// A new, empty home folder for this process and its children. It is removed
// when the object is destroyed.
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

// Returns the content of a file, or an empty text if there is no file.
std::string ReadAll(const std::filesystem::path &file);
// Writes a file, and creates its folder if necessary.
void WriteAll(const std::filesystem::path &file, const std::string &bytes);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_TEMP_HOME_H_
