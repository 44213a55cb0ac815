// SPDX-License-Identifier: MIT
//
// A user at a terminal, who reads the output of a program and types.
#ifndef ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_
#define ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::test {

class PseudoTerminal {
 public:
  // Starts a program in a terminal of this width. Its standard output goes to
  // the file `output` unless that is empty.
  PseudoTerminal(const std::vector<std::string> &words, unsigned short columns,
                 const std::string &output = "");
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal &) = delete;
  PseudoTerminal &operator=(const PseudoTerminal &) = delete;

  // Waits for this text in the output after the text of the last wait; false
  // when the program ends or a minute has passed.
  bool WaitFor(const std::string &text);
  void Type(const std::string &keys) const;

  // Waits until the program has ended; its exit status, or 128 and the signal.
  int End();

  // The whole output, with "\n" as line end.
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
