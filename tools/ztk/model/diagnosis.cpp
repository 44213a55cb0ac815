// SPDX-License-Identifier: MIT
#include "ztk/model/diagnosis.h"

#include "ztk/model/reach.h"
#include "ztk/model/settings.h"

namespace ztk::model {

namespace {

Finding ExplainUnanswered(const Mixer &mixer, const std::string &place) {
  if (mixer.state == MixerState::Gone) {
    return {.id = "gone",
            .what = mixer.message,
            .cause = "its plug or its power may be loose",
            .command = "ztk doctor"};
  }
  const bool silent = mixer.state == MixerState::Silent;
  return {.id = silent ? "silent" : "refusing",
          .what = mixer.message,
          .cause = silent ? "it is attached and may be opened, but it is still "
                            "starting or hangs; this starts it anew, as "
                            "switching it off and on does"
                          : "it is attached and may be opened, but something "
                            "in it fails; this starts it anew, as switching "
                            "it off and on does",
          .command = RestartCommand(place)};
}

// Asks every mixer that can be opened.
Findings CheckMixers(std::string *good) {
  const std::vector<std::string> places = MixerPlaces();
  if (places.empty()) return {ExplainNoMixer()};
  Findings findings;
  const Reach reach = AskMixers(places);
  for (const Mixer &mixer : reach.mixers) {
    const std::string &place =
        places[static_cast<std::size_t>(mixer.number - 1)];
    if (mixer.state == MixerState::Answered) continue;
    findings.push_back(mixer.state == MixerState::NotOpened
                           ? ExplainUnopened(mixer.number, place)
                           : ExplainUnanswered(mixer, place));
  }
  const std::size_t count = reach.found();
  *good = count == 1
              ? "1 mixer is attached and answers"
              : std::to_string(count) + " mixers are attached and answer";
  return findings;
}

Findings CheckSettings(std::string *good) {
  return CheckSettingsFiles(ModelNames(), good);
}

constexpr CheckedPart kParts[] = {
    {.name = "mixers", .asksMixers = true, .check = CheckMixers},
    {.name = "settings", .asksMixers = false, .check = CheckSettings},
    {.name = "bus", .asksMixers = false, .check = CheckBus},
    {.name = "texts", .asksMixers = false, .check = CheckTexts}};

}  // namespace

std::span<const CheckedPart> CheckedParts() { return kParts; }

}  // namespace ztk::model
