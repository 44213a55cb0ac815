// SPDX-License-Identifier: MIT
//
// The line that tells what ztk waits for, when Ctrl-C cannot end it at once:
// the kernel does not interrupt a request to a mixer. The signal is blocked in
// place of such a request.
#include "ztk/progress.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

namespace ztk::program {
namespace {

// Waits until a line is typed, while the signal is pending.
[[noreturn]] void WaitWithPendingSignal(int terminal) {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    dup2(terminal, stream);
  }
  setenv("TERM", "xterm", 1);
  alarm(20);
  sigset_t interrupt;
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  sigprocmask(SIG_BLOCK, &interrupt, nullptr);
  kill(getpid(), SIGINT);
  char typed = 0;
  {
    const Progress progress("Waiting for a mixer", 5);
    if (read(STDIN_FILENO, &typed, 1) != 1) _exit(1);
  }
  _exit(0);
}

TEST(Progress, TellsThatCtrlCWillEndItAfterTheRequest) {
  int ours = -1;
  int programs = -1;
  winsize size = {.ws_row = 24, .ws_col = 80, .ws_xpixel = 0, .ws_ypixel = 0};
  ASSERT_EQ(openpty(&ours, &programs, nullptr, nullptr, &size), 0);
  const pid_t child = fork();
  if (child == 0) WaitWithPendingSignal(programs);
  close(programs);
  const std::string expected =
      "\r\033[KWaiting for a mixer, at most 5 s; ending";
  std::string shown;
  std::array<char, 256> part{};
  while (shown.find("; ") == std::string::npos || shown.back() == ' ') {
    const ssize_t length = read(ours, part.data(), part.size());
    if (length <= 0) break;
    shown.append(part.data(), static_cast<std::size_t>(length));
  }
  EXPECT_EQ(shown, expected);
  EXPECT_EQ(write(ours, "\n", 1), 1);
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  close(ours);
}

}  // namespace
}  // namespace ztk::program
