// SPDX-License-Identifier: MIT
//
// Makes each allocation of a call fail once, one after the other. No
// std::bad_alloc may leave the library, and a setter must return its normal
// result. No descriptor may stay open. If the memory for a connection is
// missing, the record of the call has to contain the reason. The core and the
// port are linked into this program, because the allocations of the shared
// library cannot be replaced. The program runs in the sandbox.
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>

#include "ZTKOutcome.h"
#include "linux/failing_new.h"

namespace {

void OnChannel(std::int32_t, std::int32_t, void *) {}

std::uint32_t number = 0;
ZTKTextRef text = nullptr;

struct Call {
  const char *name;
  ZTKResult (*call)();
  ZTKResult expected;
  ZTKResult expectedToo;  // the result if a text or file is missing
  bool opensMixer = false;
};

const Call kCalls[] = {
    {"GetProductId",
     [] { return ZTK_GetProductId("Tarvix Audio Systems vrm-d6", &number); },
     100, 102},
    {"IsUSBConnection", [] { return ZTK_IsUSBConnection(10); }, 103, 104},
    {"SetUSBInputAudio", [] { return ZTK_SetUSBInputAudio(10, 0, 2); }, 100,
     101, true},
    {"SetUSBOutputAudio", [] { return ZTK_SetUSBOutputAudio(8, 0, 2); }, 100,
     100, true},
    {"SetBoostLevelIndex", [] { return ZTK_SetBoostLevelIndex(10, 1); }, 100,
     100, true},
    {"SetMidiChannelIndex", [] { return ZTK_SetMidiChannelIndex(1, 2); }, 100,
     100, true},
    {"GetCurrentBoostLevelIndex",
     [] { return ZTK_GetCurrentBoostLevelIndex(10, &number); }, 100, 100},
    {"SetCurrentBoostLevelIndex",
     [] { return ZTK_SetCurrentBoostLevelIndex(10); }, 100, 100, true},
    {"GetMixerCertifyLevel",
     [] { return ZTK_GetMixerCertifyLevel(10, &number); }, 100, 100, true},
    {"GetLibraryVersionText",
     [] { return ZTK_GetLibraryVersionText(10, &text); }, 100, 102},
    {"GetWarningText",
     [] {
       return ZTK_GetWarningTextForSetUSBAudioInput(10, 0, 101, 99, &text);
     },
     100, 100, true},
    {"RegisterInputAudioChangedCallback",
     [] {
       return ZTK_RegisterInputAudioChangedCallback(10, OnChannel, nullptr);
     },
     100, 100}};

int LowestFreeDescriptor() {
  const int descriptor = dup(STDOUT_FILENO);
  close(descriptor);
  return descriptor;
}

bool LacksMemory(const ZTKRequestOutcome &request) {
  return request.opened == 0 && request.result == ZTK_REQUEST_FAILED &&
         request.systemCode == ENOMEM;
}

// Returns whether the last call could not open the mixer because memory ran
// out, and its record says so.
bool MixerLacksMemory() {
  ZTKOutcome outcome = {};
  outcome.size = sizeof outcome;
  ZTK_GetLastOutcome(&outcome);
  return outcome.mixersListed > 0 && (LacksMemory(outcome.mixers[0].write) ||
                                      LacksMemory(outcome.mixers[0].read));
}

// Makes each allocation of a call fail once. Returns the number of allocations,
// or -1 after a wrong result.
long FailEach(const Call &call) {
  const int descriptor = LowestFreeDescriptor();
  bool mixerLackedMemory = false;
  for (long which = 1;; ++which) {
    ZTKResult result = 0;
    if (!ztk::test::RunFailing(which, [&] { result = call.call(); })) {
      if (mixerLackedMemory == call.opensMixer) return which - 1;
      std::printf("%s: the record does not contain the lack of memory\n",
                  call.name);
      return -1;
    }
    mixerLackedMemory = mixerLackedMemory || MixerLacksMemory();
    if (LowestFreeDescriptor() != descriptor) {
      std::printf("%s: a descriptor is open after allocation %ld failed\n",
                  call.name, which);
      return -1;
    }
    if (result != call.expected && result != call.expectedToo) {
      std::printf("%s: %u when allocation %ld failed\n", call.name,
                  static_cast<unsigned>(result), which);
      return -1;
    }
  }
}

}  // namespace

int main() {
  int failures = 0;
  for (const Call &call : kCalls) {
    // The first call loads or makes what exists only once. It is not counted.
    call.call();
    const long allocations = FailEach(call);
    if (allocations < 0) ++failures;
    std::printf("%s: %ld allocations\n", call.name, allocations);
  }
  return failures == 0 ? 0 : 1;
}
