// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_
#define ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_

#include <signal.h>

namespace ztk::platform {

// While this object exists, it blocks two kinds of signals in its thread. The
// signals that ask a program to end are delivered when the object is destroyed,
// so that no unfinished file remains. SIGXFSZ, which a write raises if the file
// would exceed the file size limit of the process, is discarded unless it was
// pending before, because by default it ends the process.
class SignalBlocker {
 public:
  SignalBlocker() {
    sigset_t blocked;
    sigemptyset(&blocked);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGXFSZ}) {
      sigaddset(&blocked, signal);
    }
    fileSizeSignalWasPending_ = FileSizeSignalIsPending();
    isBlocking_ = pthread_sigmask(SIG_BLOCK, &blocked, &previousMask_) == 0;
  }
  ~SignalBlocker() {
    if (!isBlocking_) return;
    if (!fileSizeSignalWasPending_ && FileSizeSignalIsPending()) {
      sigset_t fileSizeSignal;
      sigemptyset(&fileSizeSignal);
      sigaddset(&fileSizeSignal, SIGXFSZ);
      // The signal is pending already, so sigwait() returns at once.
      int taken = 0;
      sigwait(&fileSizeSignal, &taken);
    }
    pthread_sigmask(SIG_SETMASK, &previousMask_, nullptr);
  }
  SignalBlocker(const SignalBlocker &) = delete;
  SignalBlocker &operator=(const SignalBlocker &) = delete;

 private:
  static bool FileSizeSignalIsPending() {
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1;
  }

  sigset_t previousMask_;
  bool fileSizeSignalWasPending_ = false;
  bool isBlocking_ = false;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_COMMON_SIGNAL_BLOCKER_H_
