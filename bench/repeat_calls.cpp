// SPDX-License-Identifier: MIT
//
// Calls one function a number of times, for counting its system calls:
//
//   repeat_calls library|floor count|set|query|apply TIMES
//
// Before each call and after the last it writes to a descriptor that is none,
// which fails and leaves a mark in a trace.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "ZTKFunc.h"
#include "operations.h"

namespace {

using ztk::bench::kOperations;
using ztk::bench::Operation;

constexpr int kUsage = 2;

void Mark() {
  constexpr char kMark[] = "mark";
  if (write(-1, kMark, sizeof kMark - 1) >= 0) std::abort();
}

const Operation *Find(const char *name) {
  for (const Operation &operation : kOperations) {
    if (std::strcmp(name, operation.name) == 0) return &operation;
  }
  return nullptr;
}

}  // namespace

int main(int argc, char **argv) {
  const Operation *operation = argc == 4 ? Find(argv[2]) : nullptr;
  const bool isFloor = argc == 4 && std::strcmp(argv[1], "floor") == 0;
  const bool isLibrary = argc == 4 && std::strcmp(argv[1], "library") == 0;
  if (operation == nullptr || isFloor == isLibrary) {
    std::fputs("repeat_calls library|floor count|set|query|apply TIMES\n",
               stderr);
    return kUsage;
  }
  const bool needsPlaces = isFloor && operation->changesSettings;
  const char *problem = needsPlaces ? ztk::bench::floor::Prepare() : nullptr;
  if (problem != nullptr) {
    std::fprintf(stderr, "repeat_calls: %s\n", problem);
    return EXIT_FAILURE;
  }
  const auto call = isFloor ? operation->floor : operation->library;
  const long times = std::strtol(argv[3], nullptr, 10);
  for (long i = 0; i < times; ++i) {
    Mark();
    call(static_cast<std::uint32_t>(i % 2));
  }
  Mark();
  return EXIT_SUCCESS;
}
