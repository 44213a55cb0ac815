// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_CHILD_H_
#define ZTK_TESTS_SUPPORT_CHILD_H_

#include <sys/types.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace ztk::test {

// A running program. The test reads its output line by line.
class ChildProcess {
 public:
  // The first word is the path of the program. `prepare`, if any, runs in the
  // new process before the program. If it returns a text, the new process
  // prints the text and ends.
  explicit ChildProcess(const std::vector<std::string> &words,
                        const std::function<std::string()> &prepare = nullptr);
  ~ChildProcess();
  ChildProcess(const ChildProcess &) = delete;
  ChildProcess &operator=(const ChildProcess &) = delete;

  // Returns the next line without its line end, or an empty text at the end of
  // the output.
  std::string ReadLine();
  // Closes the standard input of the program, which makes it end. Returns its
  // exit status, or 128 plus the number of the signal.
  int Finish();

 private:
  pid_t process_ = -1;
  int toChild_ = -1;
  std::FILE *fromChild_ = nullptr;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_CHILD_H_
