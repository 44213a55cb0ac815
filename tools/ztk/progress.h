// SPDX-License-Identifier: MIT
//
// Shows that the program waits for something, and ends the program when the
// user presses Ctrl-C.
#ifndef ZTK_TOOLS_ZTK_PROGRESS_H_
#define ZTK_TOOLS_ZTK_PROGRESS_H_

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace ztk::program {

// The message after Ctrl-C.
inline constexpr char kInterrupted[] =
    "interrupted; what was under way may have been done in part, ztk status "
    "shows what is remembered";

// The message after Ctrl-C while the user is asked, before anything was done.
inline constexpr char kInterruptedAsking[] = "interrupted; nothing was changed";

inline constexpr char kWaitingForMixer[] = "Waiting for a mixer";
// The longest usual wait for the mixers, in seconds: one second if a mixer does
// not answer, and one more if all mixers are asked again because one was
// plugged in or unplugged meanwhile.
inline constexpr int kLongestQuestion = 2;

// While it exists, shows on the error stream what the program waits for and for
// how long. Shows nothing when that stream is not a terminal, and nothing in
// the first half second: most mixers answer within milliseconds. Only one may
// exist at a time. Text that is written to the terminal meanwhile may appear on
// the same line.
//
// It has a thread of its own, because a request to a mixer cannot be
// interrupted.
class Progress {
 public:
  // `what` is a text such as kWaitingForMixer. `longest` is the longest time in
  // seconds, or 0 if it is not known.
  explicit Progress(std::string what, int longest = 0);
  ~Progress();
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

 private:
  void Tell();

  std::string what_;
  int longest_;
  bool supportsCursorControl_ = false;
  std::mutex mutex_;
  std::condition_variable end_;
  bool ended_ = false;
  std::thread thread_;
};

// While it exists, the message after Ctrl-C is kInterruptedAsking. Make one
// while the user is asked a question and nothing has been done yet.
class Asking {
 public:
  Asking();
  ~Asking();
  Asking(const Asking &) = delete;
  Asking &operator=(const Asking &) = delete;
};

// From now on Ctrl-C ends the program with status 130. It writes `jsonLine`, if
// not empty, to the output and the message to the error stream. While the
// library replaces a settings file it blocks the signal, so the file is always
// complete. Does nothing when the signal was ignored already.
void EndOnInterrupt(const std::string &jsonLine);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_PROGRESS_H_
