// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_RUN_PROGRAM_H_
#define ZTK_TESTS_SUPPORT_RUN_PROGRAM_H_

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace ztk::test {

struct ProgramResult {
  int status = -1;  // -1 after a signal
  std::string out;
  std::string err;
};

// Runs a program until it ends. The first word is its path. The files "out" and
// "err" in the folder receive its output. `prepare`, if any, runs in the new
// process before the program. If it returns another number than 0, the process
// ends with this status.
ProgramResult RunProgram(const std::vector<std::string> &words,
                         const std::filesystem::path &folder,
                         const std::function<int()> &prepare = nullptr);

// Returns the words of "ztk-virtual-mixer run OPTIONS -- sh -c SCRIPT".
std::vector<std::string> SandboxWords(const std::string &program,
                                      const std::vector<std::string> &options,
                                      const std::string &script);

std::vector<std::string> SplitLines(const std::string &text);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_RUN_PROGRAM_H_
