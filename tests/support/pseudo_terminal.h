// SPDX-License-Identifier: MIT
//
// Runs a program in a pseudo terminal. The test reads the output and types
// keys.
#ifndef ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_
#define ZTK_TESTS_SUPPORT_PSEUDO_TERMINAL_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ztk::test {

class PseudoTerminal {
 public:
  // Starts a program in a terminal of this width. If `output` is not empty, the
  // standard output goes to this file.
  PseudoTerminal(const std::vector<std::string> &words, unsigned short columns,
                 const std::string &output = "");
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal &) = delete;
  PseudoTerminal &operator=(const PseudoTerminal &) = delete;

  // Waits for this text in the output after the text of the last wait. Returns
  // false if the program ends or prints nothing for a minute.
  bool WaitFor(const std::string &text);
  void Type(const std::string &keys) const;

  // Waits until the program has ended. Returns its exit status, or 128 plus the
  // number of the signal.
  int End();

  // The whole output so far, with "\n" as line end.
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
