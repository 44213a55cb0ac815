// SPDX-License-Identifier: MIT
//
// Foundation reads its environment when it is loaded. So this program first
// makes an environment and then starts itself again in it: a home with
// GNUstep's folders, a private notification center, and a root that may be
// written.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "client.h"
#include "foundation_test.h"
#include "support/temp_home.h"
#include "support/temporary_root.h"

namespace ztk::test {

std::string OwnProgram() { return "/proc/self/exe"; }

}  // namespace ztk::test

namespace {

using namespace ztk::test;

constexpr char kInside[] = "ZTK_TEST_INSIDE";

void SetSurroundings(const TempHome &home) {
  const std::string folder = home.path();
  const std::string config = folder + "/GNUstep.conf";
  WriteAll(config, "GNUSTEP_USER_DIR_LIBRARY=" + folder +
                       "/Library\nGNUSTEP_USER_DEFAULTS_DIR=" + folder +
                       "/Defaults\n");
  // GNUstep requires that only the owner may write its configuration.
  std::filesystem::permissions(config, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::owner_write);
  setenv("GNUSTEP_CONFIG_FILE", config.c_str(), 1);
  setenv("TEMP", folder.c_str(), 1);
  setenv("LC_ALL", "C.UTF-8", 1);
  setenv(kInside, "1", 1);
}

// The process ends when its parent ends, even if the test is killed.
pid_t Start(const char *program, char *const *arguments) {
  const pid_t parent = getpid();
  const pid_t process = fork();
  if (process != 0) return process;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() == parent) execv(program, arguments);
  _exit(127);
}

pid_t StartCenter() {
  char name[] = "gdnc";
  char stay[] = "--no-fork";
  char *const arguments[] = {name, stay, nullptr};
  return Start(ZTK_GDNC, arguments);
}

// Waits until the center is registered under its name: "GDNCServer", in the
// encoding of GNUstep.
bool CenterAnswers(const TempHome &home, pid_t center) {
  const auto name = home.path() / "NSMessagePort/names/R0ROQ1NlcnZlcg==";
  int status = 0;
  while (!std::filesystem::exists(name)) {
    if (waitpid(center, &status, WNOHANG) == center) return false;
    usleep(5000);
  }
  return true;
}

int RunInside(char **arguments) {
  const TempHome home;
  SetSurroundings(home);
  const std::string refusal = EnterTemporaryRoot(
      {{"/System/probe", ""}, {"/Library/probe", ""}, {"/private/probe", ""}});
  if (!refusal.empty()) setenv(kNoRoot, refusal.c_str(), 1);

  const pid_t center = StartCenter();
  if (!CenterAnswers(home, center)) {
    std::fputs("macos_foundation_tests: gdnc does not start\n", stderr);
    return 1;
  }
  int status = 0;
  waitpid(Start(OwnProgram().c_str(), arguments), &status, 0);
  kill(center, SIGTERM);
  waitpid(center, nullptr, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

bool OnlyLists(int count, char **arguments) {
  for (int i = 1; i < count; ++i) {
    if (std::strcmp(arguments[i], "--gtest_list_tests") == 0) return true;
  }
  return false;
}

// By default GNUstep writes property lists in another form than XML.
void WriteAsMacOSDoes() {
  @autoreleasepool {
    [[NSUserDefaults standardUserDefaults]
        registerDefaults:@{@"GSMacOSXCompatible" : @"YES"}];
  }
}

}  // namespace

int main(int count, char **arguments) {
  if (count > 1 && std::strcmp(arguments[1], kClient) == 0) {
    WriteAsMacOSDoes();
    return RunClient(count - 2, arguments + 2);
  }
  if (std::getenv(kInside) == nullptr && !OnlyLists(count, arguments)) {
    return RunInside(arguments);
  }
  WriteAsMacOSDoes();
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
