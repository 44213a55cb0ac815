// SPDX-License-Identifier: MIT
#include "support/temp_home.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ztk::test {

TempHome::TempHome() {
  std::string name = "/tmp/ztk-home-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    throw std::runtime_error("no temporary home");
  }
  path_ = name;
  setenv("HOME", name.c_str(), 1);
  unsetenv("XDG_CONFIG_HOME");
}

TempHome::~TempHome() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempHome::SettingsFile(const std::string &model) const {
  return path_ / ".config/tarvix/Preferences" /
         ("com.tarvix." + model + "autosetup.plist");
}

std::string ReadAll(const std::filesystem::path &file) {
  const std::ifstream stream(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

void WriteAll(const std::filesystem::path &file, const std::string &bytes) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace ztk::test
