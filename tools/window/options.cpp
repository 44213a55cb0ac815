// SPDX-License-Identifier: MIT
#include "window/options.h"

#include <cstdio>
#include <string_view>

#include "build_config.h"

namespace ztk::window {

namespace {

constexpr int kUsage = 2;

constexpr char kHelp[] =
    "Usage: ztk-window [QT-OPTION]...\n"
    "       ztk-window --help | --version\n"
    "\n"
    "Shows and changes the settings of the USB DJ mixer VRM-D6 in a window.\n"
    "man ztk-window tells more.\n";

}  // namespace

std::optional<int> RunWithoutWindow(int argc, const char *const *argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "--help" || word == "-h") {
      std::fputs(kHelp, stdout);
      return 0;
    }
    if (word == "--version") {
      std::printf("ztk-window %s\n", build::kVersion);
      return 0;
    }
  }
  return std::nullopt;
}

std::optional<int> RefuseUnknown(int argc, const char *const *argv) {
  if (argc < 2) return std::nullopt;
  std::fprintf(stderr,
               "ztk-window: unknown argument \"%s\"; accepted: --help, "
               "--version, and the options of Qt\n",
               argv[1]);
  return kUsage;
}

}  // namespace ztk::window
