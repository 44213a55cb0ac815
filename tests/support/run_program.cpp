// SPDX-License-Identifier: MIT
#include "support/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sstream>

#include "support/temp_home.h"

namespace ztk::test {

namespace {

void SendTo(const std::filesystem::path &file, int stream) {
  const int opened =
      open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  dup2(opened, stream);
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string> &words,
                         const std::filesystem::path &folder,
                         const std::function<int()> &prepare) {
  std::vector<std::string> copies = words;
  std::vector<char *> pointers;
  for (std::string &word : copies) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    SendTo(folder / "out", STDOUT_FILENO);
    SendTo(folder / "err", STDERR_FILENO);
    const int refused = prepare ? prepare() : 0;
    if (refused != 0) _exit(refused);
    execv(pointers.front(), pointers.data());
    _exit(99);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .out = ReadAll(folder / "out"),
          .err = ReadAll(folder / "err")};
}

std::vector<std::string> SandboxWords(const std::string &program,
                                      const std::vector<std::string> &options,
                                      const std::string &script) {
  std::vector<std::string> words{program, "run"};
  words.insert(words.end(), options.begin(), options.end());
  words.insert(words.end(), {"--", "sh", "-c", script});
  return words;
}

std::vector<std::string> SplitLines(const std::string &text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace ztk::test
