// SPDX-License-Identifier: MIT
//
// Calls one function several times, so that its system calls can be counted.
// Before each call and after the last one it writes to an invalid descriptor.
// This fails, and is a mark in the trace.
#ifndef ZTK_BENCH_REPEAT_H_
#define ZTK_BENCH_REPEAT_H_

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "operations.h"

namespace ztk::bench {

using Call = bool (*)(std::uint32_t turn);

inline void Mark() {
  constexpr char kMark[] = "mark";
  if (write(-1, kMark, sizeof kMark - 1) >= 0) std::abort();
}

inline const Operation *FindOperation(std::string_view name) {
  for (const Operation &operation : kOperations) {
    if (name == operation.name) return &operation;
  }
  return nullptr;
}

// The main program with the arguments CONTENDER OPERATION TIMES. `choose`
// returns the call of a contender, or null for an unknown contender.
template <typename Choose>
int RepeatMain(int argc, char **argv, const char *contenders, Choose choose) {
  const Operation *operation = argc == 4 ? FindOperation(argv[2]) : nullptr;
  const Call call =
      operation != nullptr ? choose(argv[1], *operation) : nullptr;
  if (call == nullptr) {
    std::fprintf(stderr, "%s %s count|set|query|apply TIMES\n", argv[0],
                 contenders);
    return 2;
  }
  // The library needs no preparation.
  const bool needsPlaces =
      operation->changesSettings && std::string_view(argv[1]) != "library";
  const char *problem = needsPlaces ? floor::Prepare() : nullptr;
  if (problem != nullptr) {
    std::fprintf(stderr, "%s: %s\n", argv[0], problem);
    return EXIT_FAILURE;
  }
  const long times = std::strtol(argv[3], nullptr, 10);
  for (long i = 0; i < times; ++i) {
    Mark();
    call(static_cast<std::uint32_t>(i % 2));
  }
  Mark();
  return EXIT_SUCCESS;
}

}  // namespace ztk::bench

#endif  // ZTK_BENCH_REPEAT_H_
