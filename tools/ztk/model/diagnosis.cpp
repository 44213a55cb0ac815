// SPDX-License-Identifier: MIT
#include "ztk/model/diagnosis.h"

#include <algorithm>

#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/settings.h"
#include "ztk/model/silence.h"

namespace ztk::model {

namespace {

Finding ExplainUnanswered(const Mixer &mixer, const std::string &place) {
  if (mixer.state == MixerState::Gone) {
    return {.id = "gone",
            .what = mixer.message,
            .cause = "its USB cable or its power cable may be loose",
            .command = "ztk doctor"};
  }
  const bool silent = mixer.state == MixerState::Silent;
  return {.id = silent ? "silent" : "refusing",
          .what = mixer.message,
          .cause = std::string("it is attached and may be opened, but ") +
                   (silent ? "it is still starting or hangs"
                           : "requests to it fail") +
                   "; switch it off and on again, or run this command",
          .command = RestartCommand(mixer.number, place)};
}

Finding ExplainSilence(const SilentRouting &routing, bool namesMixer) {
  // The signal behind the fader does not depend on the selector.
  constexpr int kBehindFader = 3;
  return {.id = "channel-silent",
          .what = Described(routing, namesMixer),
          .cause =
              "the signal before the fader depends on the input selector; turn "
              "the selector to that position, or record the signal after the "
              "fader",
          .command = "ztk input set " + std::to_string(routing.channel + 1) +
                     " " + std::to_string(kBehindFader),
          .isNote = true};
}

// With several mixers, "mixer 2 does not answer" becomes "mixer 2, port 1-2,
// does not answer".
Finding About(int number, const std::string &place, bool several,
              Finding finding) {
  finding.mixer = number;
  const std::string name = "mixer " + std::to_string(number);
  if (several && finding.what.starts_with(name + " ")) {
    finding.what.insert(name.size(), ", port " + place + ",");
  }
  return finding;
}

// Mixers that were attached and are not any more.
Findings FindGone(const std::vector<std::string> &places,
                  const std::vector<MixerStatus> &mixers) {
  Findings findings;
  int number = 0;
  for (const std::string &place : places) {
    ++number;
    const bool isHere = std::any_of(
        mixers.begin(), mixers.end(),
        [&place](const MixerStatus &mixer) { return mixer.place == place; });
    if (isHere) continue;
    const Mixer gone = AfterRequest(number, platform::usb::kNoDevice);
    findings.push_back(About(number, place, places.size() > 1,
                             ExplainUnanswered(gone, place)));
  }
  return findings;
}

// Asks every mixer that can be opened.
Findings CheckMixers(std::string *good) {
  const std::vector<std::string> places = MixerPlaces();
  if (places.empty()) return {ExplainNoMixer()};
  const std::vector<MixerStatus> mixers = AskEveryMixer();
  Findings findings = FindGone(places, mixers);
  for (const MixerStatus &one : mixers) {
    const bool isForbidden = one.mixer.state == MixerState::NotOpened;
    if (!isForbidden && (one.works() || !one.failure)) continue;
    findings.push_back(About(one.mixer.number, one.place, mixers.size() > 1,
                             isForbidden
                                 ? ExplainUnopened(one.mixer.number, one.place)
                                 : ExplainUnanswered(*one.failure, one.place)));
  }
  for (const SilentRouting &routing :
       FindSilentRoutings(mixers, RecordedSending(places))) {
    findings.push_back(ExplainSilence(routing, mixers.size() > 1));
  }
  *good = mixers.size() == 1 ? "1 mixer is attached and answers"
                             : std::to_string(mixers.size()) +
                                   " mixers are attached and answer";
  return findings;
}

Findings CheckSettings(std::string *good) {
  return CheckSettingsFiles(ModelNames(), good);
}

constexpr CheckedPart kParts[] = {
    {.name = "mixers", .asksMixers = true, .check = CheckMixers},
    {.name = "settings", .asksMixers = false, .check = CheckSettings},
    {.name = "bus", .asksMixers = false, .check = CheckBus},
    {.name = "texts", .asksMixers = false, .check = CheckTexts},
    {.name = "history", .asksMixers = false, .check = CheckHistory}};

}  // namespace

std::span<const CheckedPart> CheckedParts() { return kParts; }

}  // namespace ztk::model
