// SPDX-License-Identifier: MIT
#include "pseudo_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace ztk::test {

namespace {

// In milliseconds. Only a program that hangs takes so long.
constexpr int kMaxWait = 60000;

}  // namespace

PseudoTerminal::PseudoTerminal(const std::vector<std::string> &words,
                               unsigned short columns,
                               const std::string &output) {
  std::vector<std::string> copies = words;
  std::vector<char *> pointers;
  for (std::string &word : copies) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  winsize size{};
  size.ws_col = columns;
  size.ws_row = 50;
  child_ = forkpty(&terminal_, nullptr, nullptr, &size);
  if (child_ != 0) return;
  if (!output.empty()) {
    const int file =
        open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    dup2(file, STDOUT_FILENO);
  }
  execv(pointers.front(), pointers.data());
  _exit(99);
}

PseudoTerminal::~PseudoTerminal() {
  if (child_ > 0) {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  close(terminal_);
}

bool PseudoTerminal::ReadMore() {
  pollfd polled{.fd = terminal_, .events = POLLIN, .revents = 0};
  if (poll(&polled, 1, kMaxWait) != 1) return false;
  std::array<char, 4096> part;
  const ssize_t length = read(terminal_, part.data(), part.size());
  if (length <= 0) return false;
  for (ssize_t i = 0; i < length; ++i) {
    const char next = part[static_cast<std::size_t>(i)];
    if (next == '\n' && shown_.ends_with('\r')) shown_.pop_back();
    shown_ += next;
  }
  return true;
}

bool PseudoTerminal::WaitFor(const std::string &text) {
  while (true) {
    const std::size_t found = shown_.find(text, waitedFor_);
    if (found != std::string::npos) {
      waitedFor_ = found + text.size();
      return true;
    }
    if (!ReadMore()) return false;
  }
}

void PseudoTerminal::Type(const std::string &keys) const {
  [[maybe_unused]] const ssize_t written =
      write(terminal_, keys.data(), keys.size());
}

int PseudoTerminal::End() {
  while (ReadMore()) {
  }
  int status = 0;
  waitpid(child_, &status, 0);
  child_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace ztk::test
