// SPDX-License-Identifier: MIT
//
// repeat_calls for the program that uses libusb. It is separate because the
// tests that count system calls must not need libusb:
//
//   repeat_libusb libusb count|set|query|apply TIMES
#include "libusb_way.h"
#include "repeat.h"

int main(int argc, char **argv) {
  using ztk::bench::kOperations;
  return ztk::bench::RepeatMain(
      argc, argv, "libusb",
      [](std::string_view, const ztk::bench::Operation &operation) {
        return ztk::bench::libusb_way::kCalls[&operation - kOperations];
      });
}
