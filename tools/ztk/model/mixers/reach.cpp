// SPDX-License-Identifier: MIT
#include "ztk/model/mixers/reach.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "api/status.h"
#include "usb/mixers.h"
#include "ztk/model/mixers/in_parallel.h"

namespace ztk::model {

namespace {

MixerState StateOf(usb::Code code) {
  switch (code) {
    case platform::usb::kSuccess:
      return MixerState::Answered;
    case platform::usb::kPipeStalled:
      return MixerState::Refused;
    case platform::usb::kTimeout:
      return MixerState::Silent;
    case platform::usb::kNoDevice:
      return MixerState::Gone;
    default:
      return MixerState::Failed;
  }
}

std::string Named(int number) { return "mixer " + std::to_string(number); }

const char *Word(MixerState state) {
  switch (state) {
    case MixerState::Answered:
      return "answered";
    case MixerState::Refused:
      return "refused";
    case MixerState::Silent:
      return "silent";
    case MixerState::Gone:
      return "gone";
    case MixerState::NotOpened:
    case MixerState::Failed:
      break;
  }
  return "failed";
}

MixerState StateOf(const ZTKRequestOutcome &request) {
  switch (request.result) {
    case ZTK_REQUEST_NONE:
    case ZTK_REQUEST_ACCEPTED:
      return MixerState::Answered;
    case ZTK_REQUEST_REFUSED:
      return MixerState::Refused;
    case ZTK_REQUEST_SILENT:
      return MixerState::Silent;
    case ZTK_REQUEST_GONE:
      return MixerState::Gone;
    default:
      return MixerState::Failed;
  }
}

// The sentence about a mixer that was opened.
std::string Sentence(int number, MixerState state) {
  switch (state) {
    case MixerState::Refused:
      return Named(number) + " refuses requests";
    case MixerState::Silent:
      return Named(number) + " does not answer";
    case MixerState::Gone:
      return Named(number) + " is gone: it was unplugged or switched off";
    case MixerState::Answered:
    case MixerState::NotOpened:
    case MixerState::Failed:
      break;
  }
  return "";
}

// The result of the request that sets a value.
Mixer AfterWrite(int number, const ZTKRequestOutcome &write) {
  Mixer mixer{
      .number = number, .state = StateOf(write), .reason = {}, .message = {}};
  mixer.reason = Word(mixer.state);
  switch (mixer.state) {
    case MixerState::Refused:
      mixer.message = Named(number) + " refuses the value";
      break;
    case MixerState::Failed:
      mixer.message = "the request to " + Named(number) +
                      " failed: " + SystemErrorText(write.systemCode);
      break;
    default:
      mixer.message = Sentence(number, mixer.state);
      break;
  }
  return mixer;
}

}  // namespace

Mixer Unopened(int number, const std::string &place) {
  const Access access = TryToOpen(place);
  return {.number = number,
          .state = access.obstacle == Obstacle::Vanished
                       ? MixerState::Gone
                       : MixerState::NotOpened,
          .reason = Word(access.obstacle),
          .message = Named(number) + " " + Explained(access)};
}

Mixer AfterRequest(int number, usb::Code code) {
  const MixerState state = StateOf(code);
  return {
      .number = number,
      .state = state,
      .reason = Word(state),
      .message = state == MixerState::Failed
                     ? "the request to " + Named(number) + " " + Described(code)
                     : Sentence(number, state)};
}

std::size_t Reach::answered() const {
  return static_cast<std::size_t>(std::count_if(
      mixers.begin(), mixers.end(),
      [](const Mixer &mixer) { return mixer.state == MixerState::Answered; }));
}

std::size_t Reach::opened() const {
  return static_cast<std::size_t>(std::count_if(
      mixers.begin(), mixers.end(),
      [](const Mixer &mixer) { return mixer.state != MixerState::NotOpened; }));
}

std::size_t RecordedCalls::acceptedLast() const {
  return static_cast<std::size_t>(
      std::count_if(last_.mixers, last_.mixers + last_.mixersListed,
                    [](const ZTKMixerOutcome &mixer) {
                      return mixer.write.opened != 0 &&
                             StateOf(mixer.write) == MixerState::Answered;
                    }));
}

void RecordedCalls::Collect(ZTKResult result,
                            const std::vector<std::string> &places) {
  last_ = {};
  if (result == ZTK_REJECTED) return;
  last_.size = sizeof last_;
  ZTK_GetLastOutcome(&last_);
  for (const std::string &place : places) MixerAt(place);
  // The library opens mixers by their position. When one is unplugged, the
  // positions of the mixers after it change, and the library misses the next
  // one.
  std::size_t unplugged = 0;
  std::vector<bool> served(places.size());
  for (std::size_t i = 0; i < last_.mixersListed; ++i) {
    const std::size_t position = i + unplugged;
    if (position >= places.size()) break;
    const ZTKRequestOutcome &write = last_.mixers[i].write;
    if (write.opened == 0) continue;
    served[position] = true;
    Mixer &mixer = MixerAt(places[position]);
    if (mixer.state == MixerState::Answered) {
      mixer = AfterWrite(mixer.number, write);
    }
    if (write.result == ZTK_REQUEST_GONE) ++unplugged;
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    Mixer &mixer = MixerAt(places[i]);
    if (served[i] || mixer.state != MixerState::Answered) continue;
    mixer = Unopened(mixer.number, places[i]);
  }
  for (std::size_t i = 0; i < places_.size(); ++i) {
    Mixer &mixer = reach_.mixers[i];
    const bool here =
        std::find(places.begin(), places.end(), places_[i]) != places.end();
    if (mixer.state == MixerState::Answered && !here) {
      mixer = Unopened(mixer.number, places_[i]);
    }
  }
}

Mixer &RecordedCalls::MixerAt(const std::string &place) {
  const auto known = std::find(places_.begin(), places_.end(), place);
  if (known != places_.end()) {
    return reach_.mixers[static_cast<std::size_t>(known - places_.begin())];
  }
  places_.push_back(place);
  const int number = static_cast<int>(places_.size());
  return reach_.mixers.emplace_back(Mixer{.number = number,
                                          .state = MixerState::Answered,
                                          .reason = {},
                                          .message = {}});
}

namespace {

// Asks the mixer at the place. The mixer keeps its number, although its
// position on the bus may have changed.
Mixer AskMixer(int number, const std::string &place) {
  const std::vector<std::string> now = MixerPlaces();
  const auto found = std::find(now.begin(), now.end(), place);
  if (found == now.end()) return Unopened(number, place);
  const usb::OpenMixer mixer(static_cast<std::int32_t>(found - now.begin()));
  if (!mixer) return Unopened(number, place);
  usb::Reply reply;
  return AfterRequest(number,
                      GetFirmwareVersionNumber(mixer.connection(), reply.bytes,
                                               status::kFirmwareVersionLength));
}

}  // namespace

Reach AskMixers(const std::vector<std::string> &places) {
  Reach reach;
  reach.mixers.resize(places.size());
  InParallel(places.size(), [&](std::size_t position) {
    reach.mixers[position] =
        AskMixer(static_cast<int>(position) + 1, places[position]);
  });
  return reach;
}

std::string Described(usb::Code code) {
  switch (code) {
    case platform::usb::kPipeStalled:
      return "refused by the mixer";
    case platform::usb::kTimeout:
      return "no answer";
    case platform::usb::kNoDevice:
      return "the mixer is gone";
    default:
      break;
  }
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "failed, code 0x%08X",
                static_cast<unsigned>(code));
  return text.data();
}

}  // namespace ztk::model
