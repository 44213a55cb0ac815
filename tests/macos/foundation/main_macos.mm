// SPDX-License-Identifier: MIT
//
// Foundation reads the user's home folder when it is loaded. So this program
// makes a temporary home folder and starts itself again with it. The
// notification center is that of the user who is logged in.
#include <gtest/gtest.h>
#include <mach-o/dyld.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "client.h"
#include "foundation_test.h"
#include "support/temp_home.h"

namespace ztk::test {

std::string OwnProgram() {
  std::array<char, 4096> path{};
  std::uint32_t size = path.size();
  return _NSGetExecutablePath(path.data(), &size) == 0 ? path.data() : "";
}

}  // namespace ztk::test

namespace {

using namespace ztk::test;

constexpr char kInside[] = "ZTK_TEST_INSIDE";

int RunInside(char **arguments) {
  const TempHome home;
  setenv("CFFIXED_USER_HOME", home.path().c_str(), 1);
  setenv(kInside, "1", 1);
  const std::string program = OwnProgram();
  const pid_t child = fork();
  if (child == 0) {
    execv(program.c_str(), arguments);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

bool OnlyLists(int count, char **arguments) {
  for (int i = 1; i < count; ++i) {
    if (std::strcmp(arguments[i], "--gtest_list_tests") == 0) return true;
  }
  return false;
}

}  // namespace

int main(int count, char **arguments) {
  if (count > 1 && std::strcmp(arguments[1], kClient) == 0) {
    return RunClient(count - 2, arguments + 2);
  }
  if (std::getenv(kInside) == nullptr && !OnlyLists(count, arguments)) {
    return RunInside(arguments);
  }
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
