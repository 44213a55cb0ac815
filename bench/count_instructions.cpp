// SPDX-License-Identifier: MIT
//
// Makes each call of each contender once in callgrind, after other calls as a
// warm-up. callgrind writes a file for each call:
//
//   valgrind --tool=callgrind --collect-atstart=no count_instructions
//
// The files contain "Client Request: OPERATION/CONTENDER" and the number of
// instructions in user space, including those of threads that libusb starts.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

#include "libusb_way.h"
#include "operations.h"

namespace {

using namespace ztk::bench;

constexpr std::uint32_t kWarmUp = 2;

bool Count(const std::string &name, bool (*call)(std::uint32_t turn)) {
  for (std::uint32_t turn = 0; turn < kWarmUp; ++turn) call(turn % 2);
  CALLGRIND_TOGGLE_COLLECT;
  const bool reached = call(0);
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(name.c_str());
  if (!reached) {
    std::fprintf(stderr, "count_instructions: %s reached no mixer\n",
                 name.c_str());
  }
  return reached;
}

}  // namespace

int main() {
  if (const char *problem = floor::Prepare(); problem != nullptr) {
    std::fprintf(stderr, "count_instructions: %s\n", problem);
    return EXIT_FAILURE;
  }
  bool reached = true;
  for (std::size_t i = 0; i < std::size(kOperations); ++i) {
    const Operation &operation = kOperations[i];
    const std::string name = operation.name;
    reached &= Count(name + "/library", operation.library);
    reached &= Count(name + "/floor", operation.floor);
    reached &= Count(name + "/libusb", libusb_way::kCalls[i]);
  }
  return reached ? EXIT_SUCCESS : EXIT_FAILURE;
}
