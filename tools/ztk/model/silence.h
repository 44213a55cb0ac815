// SPDX-License-Identifier: MIT
//
// Why nothing is recorded on a USB channel.
#ifndef ZTK_TOOLS_ZTK_MODEL_SILENCE_H_
#define ZTK_TOOLS_ZTK_MODEL_SILENCE_H_

#include <cstdint>
#include <string>
#include <vector>

#include "ztk/model/history/sendings.h"
#include "ztk/model/mixers/mixer_status.h"

namespace ztk::model {

// A channel of USB input audio whose current choice can only be heard with the
// input selector in another position.
struct SilentRouting {
  int mixer;              // its number
  std::uint32_t channel;  // from 0
  std::uint32_t index;    // the choice: the remembered one, or the default
  std::uint8_t position;  // of the input selector
};

// In the order of the mixers and channels. Leaves out mixers that have not
// reported their selectors, and channels whose choice is not known after a
// reset.
std::vector<SilentRouting> FindSilentRoutings(
    const std::vector<MixerStatus> &mixers, const RecordedSending &recorded);

// "USB input 1 is silent: the input selector for CH1 is in
// position 3; CH1 Control Tone PHONO (1) is heard only in position 4: turn it
// to 4". Only the choice with which the channel is silent is known: a mixer
// cannot be asked for its own. Names the mixer if there are several.
std::string Described(const SilentRouting &routing, bool namesMixer);

// The part of the sentence of Described() after its first colon. `what` is the
// choice.
std::string SelectorSentence(const SilentRouting &routing,
                             const std::string &what, bool namesMixer);

// Whether the choice depends on the input selector of its channel.
bool NeedsSelector(std::uint32_t channel, std::uint32_t index);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_SILENCE_H_
