// SPDX-License-Identifier: MIT
//
// The event loop of a program that receives changes.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_
#define ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_

#include <cstdint>

namespace ztk::model {

// Changes of USB output audio do not reach the callbacks of the library: it
// announces them under the name of another model than the one it observes. So
// this program observes them itself.
using OutputListener = void (*)(std::int32_t channel, std::int32_t index,
                                void *context);
void ListenToOutputAudio(OutputListener listener, void *context);

enum class LoopEnd : std::uint8_t {
  Interrupted,  // SIGINT or SIGTERM
  Stopped,      // StopLoop()
  NoBus,        // the session bus has ended
  NoLibrary     // a library for receiving changes cannot be loaded
};

// Runs the loop that delivers changes. Calls `ready` as soon as all callbacks
// that were registered before receive changes, with false if there is no
// session bus, so that they receive none. Calls `everySecond` about once in a
// second.
LoopEnd RunLoop(void (*ready)(bool hasBus), void (*everySecond)());

// Ends the loop from within a callback.
void StopLoop();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_EVENT_LOOP_H_
