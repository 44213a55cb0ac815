// SPDX-License-Identifier: MIT
//
// A user at a terminal: sees what a program shows and types when it is time.
#ifndef ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_
#define ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::test {

class PseudoTerminal {
 public:
  // Starts a program in a terminal of this width. Its stdout goes to `output`
  // instead where that is not empty.
  PseudoTerminal(const std::vector<std::string> &words, unsigned short columns,
                 const std::string &output = "");
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal &) = delete;
  PseudoTerminal &operator=(const PseudoTerminal &) = delete;

  // True once the text has been shown, after what was waited for before; false
  // when the program ends, or a minute passes, without it.
  bool WaitFor(const std::string &text);
  void Type(const std::string &keys) const;

  // Waits until the program has ended; its exit status, or 128 and the signal.
  int End();

  // All that was shown, with lines ending in "\n" alone.
  const std::string &shown() const { return shown_; }

 private:
  bool ReadMore();

  pid_t child_ = -1;
  int terminal_ = -1;
  std::string shown_;
  std::size_t waitedFor_ = 0;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_
