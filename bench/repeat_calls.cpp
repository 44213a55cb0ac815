// SPDX-License-Identifier: MIT
//
//   repeat_calls library|floor count|set|query|apply TIMES
#include "repeat.h"

int main(int argc, char **argv) {
  using ztk::bench::Call;
  return ztk::bench::RepeatMain(
      argc, argv, "library|floor",
      [](std::string_view who, const ztk::bench::Operation &operation) -> Call {
        if (who == "library") return operation.library;
        if (who == "floor") return operation.floor;
        return nullptr;
      });
}
