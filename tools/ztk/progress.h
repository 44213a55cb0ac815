// SPDX-License-Identifier: MIT
//
// Showing that something is waited for, and ending when the user has waited
// long enough.
#ifndef ZTK_TOOLS_ZTK_PROGRESS_H_
#define ZTK_TOOLS_ZTK_PROGRESS_H_

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace ztk::program {

// What is told after Ctrl-C.
inline constexpr char kInterrupted[] =
    "interrupted; what was under way may have been done in part, ztk status "
    "shows what is remembered";

// The same where the user was asked, and nothing was done before.
inline constexpr char kInterruptedAsking[] = "interrupted; nothing was changed";

inline constexpr char kWaitingForMixer[] = "Waiting for a mixer";
// Mixers are asked at the same time, and no more once one is silent: one second
// for the request, one for a mixer that comes or goes meanwhile.
inline constexpr int kLongestQuestion = 2;

// While it lives, tells on the error stream what is waited for and for how
// long. Nothing where that is no terminal, and nothing in the first half
// second: most mixers answer within milliseconds. One at a time. What is
// written to the terminal meanwhile may stand behind it.
//
// A thread of its own, because a request to a mixer cannot be interrupted.
class Progress {
 public:
  // `what` as in kWaitingForMixer; it takes at most so many seconds, 0 where
  // that is not known.
  explicit Progress(std::string what, int longest = 0);
  ~Progress();
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

 private:
  void Tell();

  std::string what_;
  int longest_;
  bool hasCursor_ = false;
  std::mutex mutex_;
  std::condition_variable end_;
  bool ended_ = false;
  std::thread thread_;
};

// While it lives the user is asked what to do, and nothing is under way.
class Asking {
 public:
  Asking();
  ~Asking();
  Asking(const Asking &) = delete;
  Asking &operator=(const Asking &) = delete;
};

// From now on Ctrl-C ends the program with status 130 and one line that says
// so, and before it, where `jsonLine` is not empty, that line on the output.
// A settings file that is being replaced is finished first: the library holds
// the signal back. Nothing changes where the signal was ignored already.
void EndOnInterrupt(const std::string &jsonLine);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_PROGRESS_H_
