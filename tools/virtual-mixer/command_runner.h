// SPDX-License-Identifier: MIT
//
// Runs a command and waits for it and for everything that it leaves behind.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_

#include <sys/types.h>

#include <csignal>
#include <string>
#include <vector>

namespace ztk::virtual_mixer {

// Holds back the signals that end programs, so that whoever made it can clean
// up. To be made before any thread is started: threads inherit it.
class SignalGuard {
 public:
  SignalGuard();
  ~SignalGuard();
  SignalGuard(const SignalGuard &) = delete;
  SignalGuard &operator=(const SignalGuard &) = delete;

  // What is held back, SIGCHLD included.
  const sigset_t &Held() const { return held_; }
  // The mask that a command starts with.
  const sigset_t &Before() const { return before_; }
  // Signals that were ignored and so stay ignored for a command.
  bool PipeWasIgnored() const { return pipeWasIgnored_; }

 private:
  sigset_t held_{};
  sigset_t before_{};
  bool pipeWasIgnored_ = false;
};

// Runs the command with the environment ("NAME=value") and returns when the
// last process that descends from it has ended. Signals that are sent to this
// process go to the command or, once that has ended, to what is left. Those
// from the terminal reach the command without help.
//
// Returns the command's exit status as a shell would: 128 and the signal's
// number when one ended it, 127 when there is no such command, 126 when it
// cannot be run; *error then says why.
int RunCommand(const std::vector<std::string> &command,
               const std::vector<std::string> &environment,
               const SignalGuard &signals, std::string *error);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_COMMAND_RUNNER_H_
