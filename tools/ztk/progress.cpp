// SPDX-License-Identifier: MIT
#include "ztk/progress.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <string_view>
#include <utility>

#include "cli/terminal.h"
#include "ztk/report.h"

namespace ztk::program {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr milliseconds kPatience{500};
constexpr seconds kStep{1};
constexpr char kClearLine[] = "\r\033[K";
constexpr char kHowToEnd[] = "; Ctrl-C ends";
constexpr char kEnding[] = "; ending";

// True while a line without an end stands on the terminal.
std::atomic<bool> theLineStands = false;
std::atomic<bool> theUserIsAsked = false;
static_assert(std::atomic<bool>::is_always_lock_free);

// Made before the signal can arrive, because a signal handler must not allocate
// memory.
std::string_view theJsonLine;
bool theErrorsGoToATerminal = false;

// There is no stream left to report a failure on.
void WriteNow(int stream, std::string_view text) {
  [[maybe_unused]] const ssize_t written =
      write(stream, text.data(), text.size());
}

void OnInterrupt(int /*signal*/) {
  if (theLineStands.load()) {
    WriteNow(STDERR_FILENO, kClearLine);
  } else if (theErrorsGoToATerminal) {
    // After the "^C" that the terminal shows.
    WriteNow(STDERR_FILENO, "\n");
  }
  WriteNow(STDOUT_FILENO, theJsonLine);
  WriteNow(STDERR_FILENO, "ztk: ");
  WriteNow(STDERR_FILENO,
           theUserIsAsked.load() ? kInterruptedAsking : kInterrupted);
  WriteNow(STDERR_FILENO, "\n");
  _exit(static_cast<int>(ExitCode::Interrupted));
}

// Whether the user has pressed Ctrl-C during a request, which cannot be
// interrupted. Only a thread that blocks the signal can see that it is pending.
bool IsInterruptPending() {
  sigset_t pending;
  return sigpending(&pending) == 0 && sigismember(&pending, SIGINT) == 1;
}

// ", 1 of at most 6 s"
std::string Waited(int waited, int longest) {
  if (longest == 0) {
    return waited == 0 ? "" : ", " + std::to_string(waited) + " s";
  }
  return (waited == 0 ? ", " : ", " + std::to_string(waited) + " of ") +
         std::string("at most ") + std::to_string(longest) + " s";
}

void ShowWaiting(const std::string &what, int waited, int longest) {
  const std::size_t columns = cli::Columns(STDERR_FILENO);
  const std::string end = IsInterruptPending() ? kEnding : kHowToEnd;
  std::string line = what + Waited(waited, longest) + end;
  // A line that is wider than the terminal could not be cleared.
  if (columns > 0 && line.size() >= columns) {
    line = what + Waited(waited, 0) + end;
    if (line.size() >= columns) line.resize(columns - 1);
  }
  theLineStands = true;
  WriteNow(STDERR_FILENO, kClearLine);
  WriteNow(STDERR_FILENO, line);
}

}  // namespace

Progress::Progress(std::string what, int longest)
    : what_(std::move(what)),
      longest_(longest),
      supportsCursorControl_(cli::SupportsCursorControl(STDERR_FILENO)) {
  if (!cli::IsTerminal(STDERR_FILENO)) return;
  // Only the main thread handles signals, because it alone knows when they have
  // to wait.
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  thread_ = std::thread(&Progress::Tell, this);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

Progress::~Progress() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
  }
  end_.notify_one();
  thread_.join();
}

void Progress::Tell() {
  const auto begin = steady_clock::now();
  std::unique_lock lock(mutex_);
  auto next = begin + kPatience;
  for (int tick = 0; !end_.wait_until(lock, next, [this] { return ended_; });
       ++tick) {
    if (supportsCursorControl_) {
      ShowWaiting(what_, tick, longest_);
    } else if (tick == 0) {
      WriteNow(STDERR_FILENO,
               what_ + Waited(tick, longest_) + kHowToEnd + "\n");
    }
    next += kStep;
  }
  if (!theLineStands) return;
  WriteNow(STDERR_FILENO, kClearLine);
  theLineStands = false;
}

Asking::Asking() { theUserIsAsked = true; }

Asking::~Asking() { theUserIsAsked = false; }

void EndOnInterrupt(const std::string &jsonLine) {
  theErrorsGoToATerminal = cli::IsTerminal(STDERR_FILENO);
  static std::string line;
  line = jsonLine;
  theJsonLine = line;
  struct sigaction action {};
  if (sigaction(SIGINT, nullptr, &action) != 0) return;
  if (action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = OnInterrupt;
  sigaction(SIGINT, &action, nullptr);
}

}  // namespace ztk::program
