// SPDX-License-Identifier: MIT
//
// Measures the calls of the library, of the floor and of a program that uses
// libusb, with the devices that this process can access. bench/run provides
// virtual devices.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

#include "libusb_way.h"
#include "operations.h"

namespace {

using namespace ztk::bench;

// The caller sets this variable if this program may write to its home folder
// and to a mixer.
constexpr char kMayChange[] = "ZTK_BENCH_MAY_CHANGE_SETTINGS";

bool IsSet(const char *variable) { return std::getenv(variable) != nullptr; }

void Repeat(benchmark::State &state, bool (*call)(std::uint32_t turn),
            bool needsMixer) {
  std::uint32_t turn = 0;
  for (auto _ : state) {
    turn ^= 1;
    const bool reached = call(turn);
    if (!reached && needsMixer) {
      state.SkipWithError("no mixer was reached");
      break;
    }
  }
}

void NameOfChoice(benchmark::State &state) {
  ZTKTextRef text = nullptr;
  std::uint32_t index = 0;
  for (auto _ : state) {
    index = (index + 1) & 7;
    benchmark::DoNotOptimize(
        ZTK_GetUSBInputAudioText(kProduct, 1, index, 0, &text));
    benchmark::DoNotOptimize(text);
  }
}

void NumberOfChoices(benchmark::State &state) {
  std::uint32_t count = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        ZTK_GetNumOfInputAudioIndex(kProduct, kChannel, &count));
    benchmark::DoNotOptimize(count);
  }
}

void RejectedSetter(benchmark::State &state) {
  std::uint32_t channel = 5;  // out of range
  for (auto _ : state) {
    benchmark::DoNotOptimize(channel);
    benchmark::DoNotOptimize(ZTK_SetUSBInputAudio(kProduct, channel, 0));
  }
}

void RegisterContenders(std::size_t index, bool needsMixer) {
  const Operation &operation = kOperations[index];
  const std::string name = operation.name;
  const auto add = [needsMixer](const std::string &full, auto *call) {
    benchmark::RegisterBenchmark(full.c_str(), Repeat, call, needsMixer)
        ->Unit(benchmark::kMicrosecond)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
  };
  add(name + "/library", operation.library);
  add(name + "/floor", operation.floor);
  add(name + "/libusb", libusb_way::kCalls[index]);
}

// Without mixers, only the count can be measured.
void RegisterAll(bool hasMixer, bool mayChange) {
  for (std::size_t i = 0; i < std::size(kOperations); ++i) {
    if (i > 0 && !hasMixer) continue;
    if (kOperations[i].changesSettings && !mayChange) continue;
    RegisterContenders(i, hasMixer);
  }
  benchmark::RegisterBenchmark("text/library", NameOfChoice);
  benchmark::RegisterBenchmark("choices/library", NumberOfChoices);
  benchmark::RegisterBenchmark("rejected/library", RejectedSetter);
}

}  // namespace

int main(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  const bool hasMixer = floor::Count() > 0;
  const bool mayChange = hasMixer && IsSet(kMayChange);
  if (mayChange) {
    if (const char *problem = floor::Prepare(); problem != nullptr) {
      std::fprintf(stderr, "library_bench: %s\n", problem);
      return EXIT_FAILURE;
    }
    // The first call makes the settings file; all others replace it.
    ZTK_SetUSBInputAudio(kProduct, kChannel, kChoices[0]);
  } else {
    std::fprintf(stderr, "library_bench: setters are left out: %s\n",
                 hasMixer ? "set ZTK_BENCH_MAY_CHANGE_SETTINGS to let them "
                            "change this user's settings and mixers"
                          : "there is no mixer");
  }
  RegisterAll(hasMixer, mayChange);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return EXIT_SUCCESS;
}
