// SPDX-License-Identifier: MIT
#include "ztk/model/silence.h"

#include "api/input_audio.h"
#include "ztk/model/remembered.h"
#include "ztk/model/settings.h"

namespace ztk::model {

bool NeedsSelector(std::uint32_t channel, std::uint32_t index) {
  return channel < status::kSelectors &&
         index < input_audio::kIndexWarnsBelow.withMixer;
}

std::vector<SilentRouting> FindSilentRoutings(
    const std::vector<MixerStatus> &mixers, const RecordedSending &recorded) {
  std::vector<SilentRouting> silent;
  for (const MixerStatus &mixer : mixers) {
    if (!mixer.selectors.value) continue;
    for (std::uint32_t channel = 0; channel < status::kSelectors; ++channel) {
      const auto position = (*mixer.selectors.value)[channel];
      if (!position || *position == input_audio::kAudiblePosition) continue;
      const auto index = CurrentIndex(kInput, kInput.product, channel);
      if (!index || !NeedsSelector(channel, *index)) continue;
      // After a reset the mixers still have the choice that was sent before.
      if (!Remembered(kInput, channel) &&
          recorded.Of(kInput, channel, std::nullopt) != Sending::Complete) {
        continue;
      }
      silent.push_back({.mixer = mixer.mixer.number,
                        .channel = channel,
                        .index = *index,
                        .position = *position});
    }
  }
  return silent;
}

std::string SelectorSentence(const SilentRouting &routing,
                             const std::string &what, bool namesMixer) {
  const std::string needed = std::to_string(input_audio::kAudiblePosition);
  return std::string("the input selector") +
         (namesMixer ? " of mixer " + std::to_string(routing.mixer) : "") +
         " for CH" + std::to_string(routing.channel + 1) + " is in position " +
         std::to_string(routing.position) + "; " + what +
         " is heard only in position " + needed + ": turn it to " + needed;
}

std::string Described(const SilentRouting &routing, bool namesMixer) {
  return PlaceName(kInput, routing.channel) + " is silent: " +
         SelectorSentence(
             routing, DescribedValue(kInput, routing.channel, routing.index),
             namesMixer);
}

}  // namespace ztk::model
