// SPDX-License-Identifier: MIT
//
// Runs a command and waits for it and for all processes that it started.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_

#include <sys/types.h>

#include <csignal>
#include <string>
#include <vector>

namespace ztk::virtual_mixer {

// Blocks the signals that end programs, so that this program can clean up. It
// has to be made before any thread is started: threads inherit the mask.
class SignalGuard {
 public:
  SignalGuard();
  ~SignalGuard();
  SignalGuard(const SignalGuard &) = delete;
  SignalGuard &operator=(const SignalGuard &) = delete;

  // The blocked signals, SIGCHLD included.
  const sigset_t &Held() const { return held_; }
  // The mask of before, with which commands start.
  const sigset_t &Before() const { return before_; }
  // Whether SIGPIPE was ignored, and so stays ignored for a command.
  bool PipeWasIgnored() const { return pipeWasIgnored_; }

 private:
  sigset_t held_{};
  sigset_t before_{};
  bool pipeWasIgnored_ = false;
};

// Runs the command with the environment ("NAME=value") and returns when the
// last process that descends from it has ended. Signals that are sent to this
// process are passed on to the command or, once it has ended, to the processes
// that are left. The terminal sends its signals to the command itself.
//
// Returns the exit status of the command as a shell does: 128 plus the number
// of the signal that ended it, 127 when there is no such command, 126 when it
// cannot be run; *error then has the reason.
int RunCommand(const std::vector<std::string> &command,
               const std::vector<std::string> &environment,
               const SignalGuard &signals, std::string *error);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_
