// SPDX-License-Identifier: MIT
#include "tool.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace ztk::virtual_mixer {
namespace {

std::string ReadAll(const std::string &path) {
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void SendTo(const std::string &path, int descriptor) {
  const int file =
      open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  dup2(file, descriptor);
}

}  // namespace

std::vector<std::string> SplitLines(const std::string &text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

ToolTest::ToolTest() {
  std::string made = "/tmp/vmXXXXXX";
  if (mkdtemp(made.data()) == nullptr) std::abort();
  folder_ = made;
  std::filesystem::create_directory(folder_ + "/tmp");
}

ToolTest::~ToolTest() { std::filesystem::remove_all(folder_); }

ToolResult ToolTest::Tool(const std::vector<std::string> &arguments) const {
  std::vector<std::string> words{VIRTUAL_MIXER};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char *> pointers;
  for (std::string &word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    SendTo(folder_ + "/out", STDOUT_FILENO);
    SendTo(folder_ + "/err", STDERR_FILENO);
    setenv("TMPDIR", (folder_ + "/tmp").c_str(), 1);
    setenv("PROBE", PROBE, 1);
    setenv("UDEV_PROBE", UDEV_PROBE, 1);
    setenv("TOOL", VIRTUAL_MIXER, 1);
    setenv("DIR", folder_.c_str(), 1);
    execv(VIRTUAL_MIXER, pointers.data());
    _exit(99);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .out = ReadAll(folder_ + "/out"),
          .err = ReadAll(folder_ + "/err")};
}

ToolResult ToolTest::Inside(const std::vector<std::string> &options,
                            const std::string &script) const {
  std::vector<std::string> arguments{"run"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  for (const char *word : {"--", "sh", "-c"}) arguments.emplace_back(word);
  arguments.push_back(script);
  return Tool(arguments);
}

std::vector<std::string> ToolTest::Lines(const std::string &name) const {
  return SplitLines(ReadAll(folder_ + "/" + name));
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
