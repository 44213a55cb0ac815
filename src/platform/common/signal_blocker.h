// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_
#define ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_

#include <signal.h>

namespace ztk::platform {

// While this object exists, it blocks two kinds of signals in its thread. The
// signals that ask a program to end are delivered when the object is destroyed,
// so that no unfinished file remains. SIGXFSZ, which a write raises if the file
// would become too large, is discarded, because by default it ends the process.
class SignalBlocker {
 public:
  SignalBlocker() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGXFSZ}) {
      sigaddset(&held, signal);
    }
    wasPending_ = FileSizeSignalIsPending();
    held_ = pthread_sigmask(SIG_BLOCK, &held, &before_) == 0;
  }
  ~SignalBlocker() {
    if (!held_) return;
    if (!wasPending_ && FileSizeSignalIsPending()) {
      sigset_t fileSize;
      sigemptyset(&fileSize);
      sigaddset(&fileSize, SIGXFSZ);
      // The signal is pending already, so sigwait() returns at once.
      int taken = 0;
      sigwait(&fileSize, &taken);
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  SignalBlocker(const SignalBlocker &) = delete;
  SignalBlocker &operator=(const SignalBlocker &) = delete;

 private:
  static bool FileSizeSignalIsPending() {
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1;
  }

  sigset_t before_;
  bool wasPending_ = false;
  bool held_ = false;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_
