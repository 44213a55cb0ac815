// SPDX-License-Identifier: MIT
#include "support/preload.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace ztk::test {
namespace {

constexpr char kSandboxLibrary[] = "libumockdev-preload.so.0";

// The address sanitizer must be the first library. With clang, it is linked
// into the program.
#if defined(ZTK_TEST_ASAN) && !defined(__clang__)
constexpr char kLibraries[] = "libasan.so.8:libumockdev-preload.so.0";
#else
constexpr char kLibraries[] = "libumockdev-preload.so.0";
#endif

}  // namespace

void PreloadSandbox(char **arguments) {
  const char *before = std::getenv("LD_PRELOAD");
  if (before != nullptr && std::strstr(before, kSandboxLibrary) != nullptr) {
    return;
  }
  std::string libraries = kLibraries;
  if (before != nullptr) libraries += std::string(":") + before;
  setenv("LD_PRELOAD", libraries.c_str(), 1);
  execv("/proc/self/exe", arguments);
}

}  // namespace ztk::test
