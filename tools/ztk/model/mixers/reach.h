// SPDX-License-Identifier: MIT
//
// Which mixers were reached, and why others were not.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXERS_REACH_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXERS_REACH_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "ZTKOutcome.h"
#include "usb/USB.h"
#include "ztk/system/places.h"

namespace ztk::model {

// The result of a request to a mixer.
enum class MixerState : std::uint8_t {
  Answered,
  Refused,    // it answered that it does not accept the request
  Silent,     // it did not answer in time
  Gone,       // it was unplugged or switched off during the request
  NotOpened,  // nothing could be sent to it
  Failed
};

struct Mixer {
  int number = 0;  // from 1, in the order of the bus
  MixerState state = MixerState::Failed;
  std::string reason;   // a word for programs: "silent", "not-permitted", ...
  std::string message;  // a sentence, empty when it answered
};

struct Reach {
  std::vector<Mixer> mixers;  // all that were attached
  // Before the first request.
  SystemTime started = std::chrono::system_clock::now();

  std::size_t found() const { return mixers.size(); }
  std::size_t answered() const;
  // The number of mixers that a request could be sent to.
  std::size_t opened() const;
};

// Describes the mixer at the place, which could not be opened.
Mixer Unopened(int number, const std::string &place);
// Describes an opened mixer whose last request ended with this code, which can
// also be success.
Mixer AfterRequest(int number, usb::Code code);

// Sends the mixers at these places a query, which changes nothing, all at the
// same time.
Reach AskMixers(const std::vector<std::string> &places);

// Calls functions of the library one after the other, and collects the results
// of their requests from the record of each call.
class RecordedCalls {
 public:
  // Calls the function and returns its result. A rejected call sends nothing.
  template <typename Function>
  ZTKResult Call(Function function) {
    const std::vector<std::string> places = MixerPlaces();
    const ZTKResult result = function();
    Collect(result, places);
    return result;
  }

  // The record of the last call.
  const ZTKOutcome &last() const { return last_; }
  // The number of mixers that accepted the value of the last call.
  std::size_t acceptedLast() const;
  // All mixers that were attached to any of the calls. A mixer that did not
  // accept one of the values does not count as answered.
  const Reach &reach() const { return reach_; }

 private:
  void Collect(ZTKResult result, const std::vector<std::string> &places);
  // The mixer that is plugged in at the place; adds it when it is new.
  Mixer &MixerAt(const std::string &place);

  ZTKOutcome last_{};
  Reach reach_;
  std::vector<std::string> places_;  // of the mixers in reach_
};

// The end of a request in words: "no answer", "refused by the mixer", ...
std::string Described(usb::Code code);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXERS_REACH_H_
