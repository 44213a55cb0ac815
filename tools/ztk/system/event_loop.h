// SPDX-License-Identifier: MIT
//
// What a program that listens for changes needs of its system.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_
#define ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_

#include <cstdint>

namespace ztk::model {

// What the library's callbacks do not hear: it announces changes of USB output
// audio under another model's name than it listens to.
using OutputListener = void (*)(std::int32_t channel, std::int32_t index,
                                void *context);
void ListenToOutputAudio(OutputListener listener, void *context);

enum class LoopEnd : std::uint8_t {
  Interrupted,  // SIGINT or SIGTERM
  Stopped,      // StopLoop()
  NoBus,        // nothing can be heard, or no longer
  NoLibrary     // a library that hearing takes cannot be loaded
};

// Runs the loop that delivers changes. Calls `ready` once whatever was
// registered before is being heard, and `everySecond` about once in a second.
LoopEnd RunLoop(void (*ready)(), void (*everySecond)());

// Ends the loop from within a callback.
void StopLoop();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_
