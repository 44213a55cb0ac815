// SPDX-License-Identifier: MIT
#include "tool.h"

#include <cstdlib>
#include <filesystem>

#include "support/temp_home.h"

namespace ztk::virtual_mixer {

ToolTest::ToolTest() {
  std::string made = "/tmp/vmXXXXXX";
  if (mkdtemp(made.data()) == nullptr) std::abort();
  folder_ = made;
  std::filesystem::create_directory(folder_ + "/tmp");
  // Scripts name the programs without quotation marks, but the path of the
  // build may contain spaces.
  std::filesystem::create_symlink(PROBE, folder_ + "/probe");
  std::filesystem::create_symlink(UDEV_PROBE, folder_ + "/udev-probe");
  std::filesystem::create_symlink(VIRTUAL_MIXER,
                                  folder_ + "/ztk-virtual-mixer");
}

ToolTest::~ToolTest() { std::filesystem::remove_all(folder_); }

ToolResult ToolTest::Run(const std::vector<std::string> &words) const {
  return test::RunProgram(words, folder_, [this] {
    setenv("TMPDIR", (folder_ + "/tmp").c_str(), 1);
    setenv("PROBE", (folder_ + "/probe").c_str(), 1);
    setenv("UDEV_PROBE", (folder_ + "/udev-probe").c_str(), 1);
    setenv("TOOL", (folder_ + "/ztk-virtual-mixer").c_str(), 1);
    setenv("DIR", folder_.c_str(), 1);
    return 0;
  });
}

ToolResult ToolTest::Tool(const std::vector<std::string> &arguments) const {
  std::vector<std::string> words{VIRTUAL_MIXER};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return Run(words);
}

ToolResult ToolTest::Inside(const std::vector<std::string> &options,
                            const std::string &script) const {
  return Run(test::SandboxWords(VIRTUAL_MIXER, options, script));
}

std::vector<std::string> ToolTest::Lines(const std::string &name) const {
  return SplitLines(test::ReadAll(folder_ + "/" + name));
}

std::vector<std::string> ToolTest::LeftBehind() const {
  std::vector<std::string> names;
  for (const auto &entry :
       std::filesystem::directory_iterator(folder_ + "/tmp")) {
    names.push_back(entry.path().filename());
  }
  return names;
}

}  // namespace ztk::virtual_mixer
