// SPDX-License-Identifier: MIT
//
// A client that links only the library. For each argument it makes one call and
// prints a line with the argument, the result, "bus" if the library with sd-bus
// is loaded, and "loop" if GLib is loaded.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "ZTKFunc.h"

namespace {

bool HasLoaded(const std::string &soname) {
  std::ifstream maps("/proc/self/maps");
  const std::string text{std::istreambuf_iterator<char>(maps), {}};
  return text.find("/" + soname) != std::string::npos;
}

void Ignore(int32_t /*index*/, void * /*context*/) {}

ZTKResult Do(const std::string &word) {
  uint32_t state = 0;
  if (word == "get") return ZTK_GetMixerSeratoActiveStatus(10, &state);
  if (word == "set") return ZTK_SetBoostLevelIndex(10, 2);
  if (word == "register") {
    return ZTK_RegisterBoostLevelChangedCallback(10, Ignore, nullptr);
  }
  if (word == "mend") {
    std::filesystem::remove_all(std::getenv("LD_LIBRARY_PATH"));
    return 0;
  }
  std::cerr << "plain_child: unknown word\n";
  std::exit(2);
}

}  // namespace

int main(int count, char **words) {
  for (int i = 1; i < count; ++i) {
    std::cout << words[i] << ' ' << Do(words[i]);
    if (HasLoaded(ZTK_SD_BUS_LIBRARY)) std::cout << " bus";
    if (HasLoaded(ZTK_GLIB_LIBRARY)) std::cout << " loop";
    std::cout << std::endl;
  }
  return 0;
}
