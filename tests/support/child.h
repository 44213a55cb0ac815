// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_CHILD_H_
#define ZTK_TESTS_SUPPORT_CHILD_H_

#include <sys/types.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace ztk::test {

// Another program, running. Reads its lines as they come.
class ChildProcess {
 public:
  // The first word is the program's path. `prepare`, if any, runs in the new
  // process before the program does; when it returns a text, the text is
  // printed and the process ends.
  explicit ChildProcess(const std::vector<std::string> &words,
                        const std::function<std::string()> &prepare = nullptr);
  ~ChildProcess();
  ChildProcess(const ChildProcess &) = delete;
  ChildProcess &operator=(const ChildProcess &) = delete;

  // The next line without its end; empty when the child has closed.
  std::string ReadLine();
  // Closes its standard input, which ends it, and returns its exit status, or
  // 128 plus the number of the signal.
  int Finish();

 private:
  pid_t process_ = -1;
  int toChild_ = -1;
  std::FILE *fromChild_ = nullptr;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_CHILD_H_
