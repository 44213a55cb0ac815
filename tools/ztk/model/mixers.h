// SPDX-License-Identifier: MIT
//
// What the library's answers do not tell: which mixers were reached.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXERS_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXERS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "usb/USB.h"
#include "ztk/system/places.h"

namespace ztk::model {

// What became of a mixer that was asked something.
enum class MixerState : std::uint8_t {
  Answered,
  Refused,    // it is there and says no
  Silent,     // it let the time run out
  Gone,       // it was attached before, or until the request
  NotOpened,  // nothing could be sent to it
  Failed
};

struct Mixer {
  int number;  // from 1, in the order of the bus
  MixerState state;
  std::string reason;   // a word for programs: "silent", "not-permitted", ...
  std::string message;  // a sentence, empty when it answered
};

struct Reach {
  std::vector<Mixer> mixers;  // all that were attached

  std::size_t found() const { return mixers.size(); }
  std::size_t answered() const;
  // To how many something could be sent.
  std::size_t opened() const;
};

// Asks each mixer at these places something harmless.
Reach AskMixers(const std::vector<std::string> &places);

struct Sent {
  ZTKResult result;
  Reach reach;
};

// Calls a function of the library that sends, and asks every mixer that was
// attached before it whether it is there: the library does not tell.
template <typename Function>
Sent SendAndLook(Function send) {
  const std::vector<std::string> before = MixerPlaces();
  const ZTKResult result = send();
  // A call that was rejected has sent nothing.
  if (result == ZTK_REJECTED) return {.result = result, .reach = {}};
  return {.result = result, .reach = AskMixers(before)};
}

// The end of a request in words: "no answer", "refused by the mixer", ...
std::string Described(usb::Code code);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXERS_H_
