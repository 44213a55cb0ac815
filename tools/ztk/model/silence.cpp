// SPDX-License-Identifier: MIT
#include "ztk/model/silence.h"

#include "api/input_audio.h"
#include "ztk/model/settings.h"

namespace ztk::model {

bool NeedsSelector(std::uint32_t channel, std::uint32_t index) {
  return channel < status::kSelectors &&
         index < input_audio::kIndexWarnsBelow.withMixer;
}

std::vector<SilentRouting> FindSilentRoutings(
    const std::vector<MixerStatus> &mixers) {
  std::vector<SilentRouting> silent;
  for (const MixerStatus &mixer : mixers) {
    if (!mixer.selectors.value) continue;
    for (std::uint32_t channel = 0; channel < status::kSelectors; ++channel) {
      const auto position = (*mixer.selectors.value)[channel];
      const auto index = CurrentIndex(kInput, kInput.product, channel);
      if (!position || *position == input_audio::kAudiblePosition || !index ||
          !NeedsSelector(channel, *index)) {
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

}  // namespace ztk::model
