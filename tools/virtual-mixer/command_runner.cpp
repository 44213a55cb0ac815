// SPDX-License-Identifier: MIT
#include "virtual-mixer/command_runner.h"

#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "cli/strings.h"

namespace ztk::virtual_mixer {
namespace {

constexpr int kCannotRun = 126;
constexpr int kNotFound = 127;

std::vector<char *> Pointers(const std::vector<std::string> &texts) {
  std::vector<char *> pointers;
  pointers.reserve(texts.size() + 1);
  // posix_spawn does not write to them.
  for (const std::string &text : texts) {
    pointers.push_back(const_cast<char *>(text.c_str()));
  }
  pointers.push_back(nullptr);
  return pointers;
}

// Starts the command. Returns 0 or the error number.
int Spawn(const std::vector<std::string> &command,
          const std::vector<std::string> &environment,
          const SignalGuard &signals, pid_t *pid) {
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setsigmask(&attributes, &signals.Before());
  sigset_t defaults;
  sigemptyset(&defaults);
  // GLib ignores it for the whole process.
  if (!signals.PipeWasIgnored()) sigaddset(&defaults, SIGPIPE);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  posix_spawnattr_setflags(&attributes,
                           POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  const int failure =
      posix_spawnp(pid, command[0].c_str(), nullptr, &attributes,
                   Pointers(command).data(), Pointers(environment).data());
  posix_spawnattr_destroy(&attributes);
  return failure;
}

int ExitStatus(int status) {
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

// The parent of a process; 0 when the process has ended.
pid_t ParentOf(pid_t pid) {
  std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
  std::string text;
  std::getline(file, text, '\0');
  // The name of the program stands before it and may contain any character, so
  // the search starts behind the name.
  const std::size_t nameEnd = text.rfind(')');
  if (nameEnd == std::string::npos || nameEnd + 4 > text.size()) return 0;
  return std::atoi(text.c_str() + nameEnd + 4);
}

std::vector<pid_t> Children() {
  std::vector<pid_t> children;
  std::error_code ignored;
  for (const auto &entry :
       std::filesystem::directory_iterator("/proc", ignored)) {
    const auto pid =
        cli::ParseNumber(entry.path().filename().string(), 1, 0x7FFFFFFF);
    if (!pid) continue;
    const auto child = static_cast<pid_t>(*pid);
    if (ParentOf(child) == getpid()) children.push_back(child);
  }
  return children;
}

void SignalChildren(int signal) {
  for (const pid_t child : Children()) kill(child, signal);
}

// Names and process ids, as in "sleep (4711), sh (4712)".
std::string NamesOfChildren() {
  std::string names;
  for (const pid_t child : Children()) {
    const std::string number = std::to_string(child);
    std::ifstream file("/proc/" + number + "/comm");
    std::string name;
    std::getline(file, name);
    if (!names.empty()) names += ", ";
    names += name + " (" + number + ")";
  }
  return names;
}

class ChildProcesses {
 public:
  explicit ChildProcesses(pid_t command) : command_(command) {}

  // Takes the exit status of every child that has ended. False when no child is
  // left.
  bool Reap() {
    while (true) {
      int status = 0;
      const pid_t pid = waitpid(-1, &status, WNOHANG);
      if (pid < 0) return false;
      if (pid == 0) return true;
      if (pid != command_) continue;
      exitStatus_ = ExitStatus(status);
      commandEnded_ = true;
    }
  }

  void PassOn(const siginfo_t &info) {
    if (!commandEnded_) {
      // The terminal has sent the signal to the command already.
      if (info.si_code > 0) return;
      kill(command_, info.si_signo);
      // An interrupt may be meant for the command alone; the other signals end
      // all processes.
      if (info.si_signo != SIGINT) ending_ = info.si_signo;
      return;
    }
    // Background processes ignore the signals of the terminal.
    ending_ = info.si_code <= 0 ? info.si_signo : SIGTERM;
    SignalChildren(ending_);
  }

  // Processes that the command has left running become children of this process
  // only when their parents end.
  void TellNewOrphans() const {
    if (commandEnded_ && ending_ != 0) SignalChildren(ending_);
  }

  bool IsWaitingForTheRest() const { return commandEnded_ && ending_ == 0; }

  int ExitStatusOfCommand() const { return exitStatus_; }

 private:
  const pid_t command_;
  bool commandEnded_ = false;
  int exitStatus_ = 0;
  int ending_ = 0;
};

// Processes that end with the command are not reported.
constexpr timespec kBeforeAWord{.tv_sec = 0, .tv_nsec = 500'000'000};

// A user who has left a shell sees no other sign of processes that still run.
void SayWhatIsWaitedFor() {
  const std::string names = NamesOfChildren();
  if (names.empty()) return;
  std::fprintf(stderr,
               "ztk-virtual-mixer: waiting for what still runs among the "
               "mixers: %s; Ctrl-C ends it\n",
               names.c_str());
}

// Waits for the next signal. Unless *quiet, prints once which processes are
// waited for after the command has ended, and sets *quiet.
int NextSignal(const ChildProcesses &children, const SignalGuard &signals,
               bool *quiet, siginfo_t *info) {
  if (*quiet || !children.IsWaitingForTheRest()) {
    return sigwaitinfo(&signals.Held(), info);
  }
  const int signal = sigtimedwait(&signals.Held(), info, &kBeforeAWord);
  if (signal < 0 && errno == EAGAIN) {
    SayWhatIsWaitedFor();
    *quiet = true;
  }
  return signal;
}

}  // namespace

SignalGuard::SignalGuard() {
  sigemptyset(&held_);
  for (const int signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    sigaddset(&held_, signal);
  }
  // If the parent ignored SIGCHLD, no exit status would be available.
  std::signal(SIGCHLD, SIG_DFL);
  struct sigaction pipe {};
  sigaction(SIGPIPE, nullptr, &pipe);
  pipeWasIgnored_ = pipe.sa_handler == SIG_IGN;
  pthread_sigmask(SIG_BLOCK, &held_, &before_);
}

SignalGuard::~SignalGuard() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

int RunCommand(const std::vector<std::string> &command,
               const std::vector<std::string> &environment,
               const SignalGuard &signals, std::string *error) {
  prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
  pid_t pid = 0;
  const int failure = Spawn(command, environment, signals, &pid);
  if (failure != 0) {
    *error = command[0] + ": " + std::strerror(failure);
    return failure == ENOENT ? kNotFound : kCannotRun;
  }
  ChildProcesses children(pid);
  // The output in a script must not depend on time.
  bool quiet = isatty(STDERR_FILENO) == 0;
  while (children.Reap()) {
    children.TellNewOrphans();
    siginfo_t info{};
    if (NextSignal(children, signals, &quiet, &info) < 0) continue;
    if (info.si_signo != SIGCHLD) children.PassOn(info);
  }
  return children.ExitStatusOfCommand();
}

}  // namespace ztk::virtual_mixer
