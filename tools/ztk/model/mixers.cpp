// SPDX-License-Identifier: MIT
#include "ztk/model/mixers.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "api/status.h"
#include "usb/mixers.h"

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

// The sentence about a mixer that was opened.
std::string Sentence(int number, usb::Code code) {
  switch (StateOf(code)) {
    case MixerState::Answered:
      return "";
    case MixerState::Refused:
      return Named(number) + " refuses what it is asked";
    case MixerState::Silent:
      return Named(number) + " does not answer";
    case MixerState::Gone:
      return Named(number) + " is gone: it was unplugged or switched off";
    case MixerState::NotOpened:
    case MixerState::Failed:
      break;
  }
  return "the request to " + Named(number) + " " + Described(code);
}

Mixer Unopened(int number, const std::string &place) {
  const Access access = TryToOpen(place);
  return {.number = number,
          .state = access.obstacle == Obstacle::Vanished
                       ? MixerState::Gone
                       : MixerState::NotOpened,
          .reason = Word(access.obstacle),
          .message = Named(number) + " " + Explained(access)};
}

// Its number is what it was called before; its position may have changed.
Mixer AskMixer(int number, const std::string &place) {
  const std::vector<std::string> now = MixerPlaces();
  const auto found = std::find(now.begin(), now.end(), place);
  if (found == now.end()) return Unopened(number, place);
  const usb::OpenMixer mixer(static_cast<std::int32_t>(found - now.begin()));
  if (!mixer) return Unopened(number, place);
  usb::Reply reply;
  const usb::Code code = GetFirmwareVersionNumber(
      mixer.connection(), reply.bytes, status::kFirmwareVersionLength);
  return {.number = number,
          .state = StateOf(code),
          .reason = Word(StateOf(code)),
          .message = Sentence(number, code)};
}

}  // namespace

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

Reach AskMixers(const std::vector<std::string> &places) {
  Reach reach;
  int number = 0;
  for (const std::string &place : places) {
    reach.mixers.push_back(AskMixer(++number, place));
  }
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
