// SPDX-License-Identifier: MIT
#include "support/child.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace ztk::test {

namespace {

// Makes a pipe that other programs do not inherit. pipe2() is not used because
// not every system has it.
bool MakePipe(int *ends) {
  if (pipe(ends) != 0) return false;
  return fcntl(ends[0], F_SETFD, FD_CLOEXEC) == 0 &&
         fcntl(ends[1], F_SETFD, FD_CLOEXEC) == 0;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &words,
                           const std::function<std::string()> &prepare) {
  int in[2];
  int out[2];
  if (!MakePipe(in) || !MakePipe(out)) {
    throw std::runtime_error("no pipe");
  }
  std::vector<char *> line;
  for (const std::string &word : words) {
    line.push_back(const_cast<char *>(word.c_str()));
  }
  line.push_back(nullptr);
  process_ = fork();
  if (process_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    const std::string error = prepare ? prepare() : "";
    if (error.empty()) execv(line[0], line.data());
    dprintf(STDOUT_FILENO, "%s\n", error.c_str());
    _exit(error.empty() ? 127 : 0);
  }
  close(in[0]);
  close(out[1]);
  toChild_ = in[1];
  fromChild_ = fdopen(out[0], "r");
}

ChildProcess::~ChildProcess() {
  if (process_ > 0) Finish();
}

std::string ChildProcess::ReadLine() {
  char *line = nullptr;
  std::size_t size = 0;
  const ssize_t length = getline(&line, &size, fromChild_);
  std::string text = length > 0 ? line : "";
  free(line);
  if (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

int ChildProcess::Finish() {
  close(toChild_);
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  std::fclose(fromChild_);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace ztk::test
