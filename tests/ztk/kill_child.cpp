// SPDX-License-Identifier: MIT
//
// Starts ztk many times and kills it at a random moment, while another ztk runs
// undisturbed. After each round the settings file must contain the old or the
// new value. Runs inside a sandbox.
//
//   kill_child TIMES SETTINGS-FILE
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "platform/property_list.h"

namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;
namespace plist = ztk::platform::property_list;

pid_t Start(const std::vector<std::string> &words) {
  std::vector<std::string> copies = words;
  std::vector<char *> pointers;
  for (std::string &word : copies) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child != 0) return child;
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  execvp(pointers.front(), pointers.data());
  _exit(99);
}

int End(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

// -1 when the file is not valid or has no such value.
int ValueIn(const char *file, const char *key) {
  plist::Dictionary *settings = plist::ReadFile(file);
  std::int32_t value = -1;
  if (settings != nullptr) plist::IntegerValue(settings, key, &value);
  plist::Release(settings);
  return value;
}

std::vector<std::string> SetBoost(int index) {
  return {"ztk", "boost", "set", std::to_string(index + 1)};
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 3) return 2;
  const int times = std::atoi(argv[1]);
  const char *const file = argv[2];
  End(Start({"ztk", "input", "set", "2", "1"}));
  const auto begin = steady_clock::now();
  End(Start(SetBoost(0)));
  const auto usual =
      std::chrono::duration_cast<microseconds>(steady_clock::now() - begin);
  std::mt19937 random(20240607);
  int killed = 0;
  int changed = 0;
  int old = 0;
  int input = 0;
  for (int i = 0; i < times; ++i) {
    const int wanted = (i + 1) % 4;
    // In every fourth round, the other ztk, which is not killed.
    const bool two = i % 4 == 0;
    const int otherWanted = (input + 1) % 7;
    const pid_t other = two ? Start({"ztk", "input", "set", "2",
                                     std::to_string(otherWanted + 1)})
                            : 0;
    const pid_t victim = Start(SetBoost(wanted));
    std::this_thread::sleep_for(usual * static_cast<int>(random() % 1200) /
                                1000);
    kill(victim, SIGKILL);
    if (WIFSIGNALED(End(victim))) ++killed;
    if (two) {
      const int status = End(other);
      if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::printf("round %d: the other one failed\n", i);
      }
      input = otherWanted;
    }
    const int value = ValueIn(file, "MaxLevel");
    if (value != old && value != wanted) {
      std::printf("round %d: %d, neither %d nor %d\n", i, value, old, wanted);
    }
    if (ValueIn(file, "Output1") != input) {
      std::printf("round %d: the other value is lost\n", i);
    }
    if (value == wanted && value != old) ++changed;
    old = value;
  }
  std::printf("killed %d of %d, changed %d\n", killed, times, changed);
}
