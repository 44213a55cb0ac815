// SPDX-License-Identifier: MIT
#include "client.h"

#import <Foundation/Foundation.h>

#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>

#include "ZTKFunc.h"
#include "foundation_test.h"
#include "iokit_double.h"

namespace ztk::test {
namespace {

void PrintChannelChange(std::int32_t channel, std::int32_t index,
                        void *context) {
  std::printf("%s %d %d\n", static_cast<const char *>(context), channel, index);
  std::fflush(stdout);
}

void PrintChange(std::int32_t index, void *context) {
  std::printf("%s %d\n", static_cast<const char *>(context), index);
  std::fflush(stdout);
}

bool InputHasEnded() {
  pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
  return poll(&input, 1, 0) > 0;
}

// Runs the event loop until standard input ends.
int Run(const char *what) {
  std::puts(what);
  std::fflush(stdout);
  while (!InputHasEnded()) {
    @autoreleasepool {
      [[NSRunLoop currentRunLoop]
             runMode:NSDefaultRunLoopMode
          beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.02]];
    }
  }
  return 0;
}

void *Name(const char *name) { return const_cast<char *>(name); }

int Listen(std::span<char *> words) {
  for (const std::string word : words) {
    if (word == "input") {
      ZTK_RegisterInputAudioChangedCallback(10, PrintChannelChange,
                                            Name("input"));
    } else if (word == "-input") {
      ZTK_UnregisterInputAudioChangedCallback(10, nullptr);
    } else if (word == "output") {
      ZTK_RegisterOutputAudioChangedCallback(10, PrintChannelChange,
                                             Name("output"));
    } else if (word == "boost") {
      ZTK_RegisterBoostLevelChangedCallback(10, PrintChange, Name("boost"));
    } else if (word == "midi") {
      ZTK_RegisterMidiChannelChangedCallback(1, PrintChange, Name("midi"));
    } else {
      return 3;
    }
  }
  return Run("ready");
}

int Set(std::span<char *> words) {
  for (const char *word : words) {
    unsigned channel = 0;
    unsigned index = 0;
    if (std::sscanf(word, "input:%u:%u", &channel, &index) == 2) {
      ZTK_SetUSBInputAudio(10, channel, index);
    } else if (std::sscanf(word, "output:%u:%u", &channel, &index) == 2) {
      ZTK_SetUSBOutputAudio(8, channel, index);
    } else if (std::sscanf(word, "boost:%u", &index) == 1) {
      ZTK_SetBoostLevelIndex(10, index);
    } else if (std::sscanf(word, "midi:%u", &index) == 1) {
      ZTK_SetMidiChannelIndex(1, index);
    } else {
      return 3;
    }
  }
  return Run("set");
}

int Warn(std::span<char *> languages) {
  iokit::CurrentWorld().bus = {iokit::Mixer()};
  for (const char *language : languages) {
    ZTKTextRef text = ZTK_TEXT("untouched");
    const ZTKResult result = ZTK_GetWarningTextForSetUSBAudioInput(
        10, 1, 101, static_cast<std::uint32_t>(std::atoi(language)), &text);
    std::printf("%u %s\n", result, StringOf(text).c_str());
  }
  return Run("warned");
}

}  // namespace

int RunClient(int count, char **words) {
  @autoreleasepool {
    const std::span<char *> all(words, static_cast<std::size_t>(count));
    const std::string what = all.empty() ? "" : all[0];
    if (what == "listen") return Listen(all.subspan(1));
    if (what == "set") return Set(all.subspan(1));
    if (what == "warn") return Warn(all.subspan(1));
    return 2;
  }
}

}  // namespace ztk::test
