// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/remembered.h"
#include "ztk/model/settings.h"
#include "ztk/model/silence.h"
#include "ztk/progress.h"
#include "ztk/report/setting_report.h"
#include "ztk/report/silence_report.h"
#include "ztk/report/unsent_report.h"

namespace ztk::program {

namespace {

constexpr std::size_t kValueColumn = 15;

using Mixers = std::vector<MixerStatus>;

// The name of a fact, its value for programs and its words for people.
struct Fact {
  const char *name;
  const char *title;
  Json value;
  std::string words;
};

std::string Hex(unsigned number) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "0x%04X", number);
  return text.data();
}

// Without a value, the words give the reason.
template <typename Value>
Fact MakeFact(const char *name, const char *title,
              const MixerFact<Value> &given,
              void (*show)(const Value &value, Fact *fact)) {
  Fact fact{.name = name, .title = title, .value = {}, .words = given.why};
  if (given.value) show(*given.value, &fact);
  return fact;
}

// The mixer sends a number; the version is derived from its bytes.
void ShowFirmware(const std::uint16_t &number, Fact *fact) {
  const std::string version = FirmwareVersion(number);
  fact->words = IsWholeFirmware(number) ? version : "unknown";
  fact->value = {
      {"number", number}, {"hex", Hex(number)}, {"derived", version}};
}

void ShowLevel(const std::uint32_t &level, Fact *fact) {
  fact->value = level;
  fact->words =
      IsWholeLevel(level) ? "level " + std::to_string(level) : "unknown";
}

void ShowSelectors(const SelectorPositions &positions, Fact *fact) {
  fact->value = Json::array();
  fact->words = "";
  int channel = 0;
  for (const auto &position : positions) {
    fact->value.push_back(position ? Json(*position) : Json());
    if (channel > 0) fact->words += "   ";
    fact->words += "CH" + std::to_string(++channel) + " " +
                   (position ? std::to_string(*position) : "unknown");
  }
}

void ShowSerato(const bool &active, Fact *fact) {
  fact->value = active ? "active" : "inactive";
  fact->words = active ? "active" : "not active";
}

Fact Firmware(const MixerStatus &mixer) {
  return MakeFact("firmware", "firmware", mixer.firmware, ShowFirmware);
}

std::vector<Fact> FactsOf(const MixerStatus &mixer) {
  return {Firmware(mixer),
          MakeFact("certificationLevel", "certified", mixer.certificationLevel,
                   ShowLevel),
          MakeFact("selectors", "selectors", mixer.selectors, ShowSelectors),
          MakeFact("serato", "Serato", mixer.seratoActive, ShowSerato)};
}

std::string Row(const std::string &title, const std::string &words) {
  return cli::Padded("  " + title, kValueColumn) + " " + words + "\n";
}

bool IsOpened(const MixerStatus &mixer) {
  return mixer.mixer.state != MixerState::NotOpened &&
         mixer.mixer.state != MixerState::Gone;
}

bool IsAnswering(const MixerStatus &mixer) {
  return mixer.answers() && !mixer.refusesAll();
}

// The words after "mixer 1": "answers", "does not answer", ...
std::string StateWords(const MixerStatus &mixer) {
  if (mixer.refusesAll()) {
    return mixer.failure->state == MixerState::Refused ? "refuses requests"
                                                       : "cannot be asked";
  }
  switch (mixer.mixer.state) {
    case MixerState::Answered:
      return "answers";
    case MixerState::Silent:
      return "does not answer";
    case MixerState::Gone:
      return "is gone: it was unplugged or switched off";
    case MixerState::NotOpened:
      return "is attached but cannot be opened";
    case MixerState::Refused:
    case MixerState::Failed:
      break;
  }
  return "cannot be asked";
}

Json FieldsOf(const MixerStatus &mixer) {
  Json fields{
      {"position", mixer.mixer.number},
      {"reachable", IsOpened(mixer)},
      {"answers", mixer.answers()},
      {"refuses", mixer.refusesAll()},
      {"port", mixer.place},
      {"product", mixer.product.empty() ? Json() : Json(mixer.product)}};
  if (!IsOpened(mixer)) {
    fields["reason"] = mixer.mixer.message;
    return fields;
  }
  for (Fact &fact : FactsOf(mixer)) {
    if (fact.value.is_null()) fields["unanswered"][fact.name] = fact.words;
    fields[fact.name] = std::move(fact.value);
  }
  return fields;
}

// "Mixer 1 (VRM-D6)"
std::string NameOf(const MixerStatus &mixer) {
  return "Mixer " + std::to_string(mixer.mixer.number) +
         (mixer.product.empty() ? "" : " (" + mixer.product + ")");
}

// Everything that a mixer reports, on several lines.
std::string Details(const MixerStatus &mixer, bool isOnly) {
  std::string text = NameOf(mixer) +
                     (isOnly ? " " : ", port " + mixer.place + ", ") +
                     StateWords(mixer) + "\n";
  if (!IsAnswering(mixer)) return text;
  for (const Fact &fact : FactsOf(mixer)) text += Row(fact.title, fact.words);
  return text;
}

// One of several mixers, on one line.
std::string Line(const MixerStatus &mixer) {
  return NameOf(mixer) + ", port " + mixer.place + ", " + StateWords(mixer) +
         (mixer.firmware.value ? ", firmware " + Firmware(mixer).words : "") +
         "\n";
}

std::size_t CountAnswering(const Mixers &mixers) {
  return static_cast<std::size_t>(
      std::count_if(mixers.begin(), mixers.end(), IsAnswering));
}

std::string Summary(const Mixers &mixers) {
  const std::size_t answering = CountAnswering(mixers);
  const std::string count = std::to_string(mixers.size());
  if (answering == mixers.size()) return count + " mixers answer\n";
  return count + " mixers are attached, " + std::to_string(answering) +
         (answering == 1 ? " answers\n" : " answer\n");
}

std::string TextOf(const Mixers &mixers, bool verbose) {
  if (mixers.empty()) return "No mixer is attached\n";
  if (mixers.size() == 1) return Details(mixers.front(), true);
  std::string text = Summary(mixers);
  for (const MixerStatus &mixer : mixers) {
    text += verbose ? Details(mixer, false) : Line(mixer);
  }
  return text;
}

// What the settings files hold.
struct Remembrance {
  std::vector<RememberedChoice> choices;
  bool unreadable = false;  // one of the files cannot be read
};

// "the mixer that does not answer", "the mixers that refuse what they are
// asked"; empty when each mixer works.
std::string StuckMixers(const Mixers &mixers) {
  const auto silent =
      std::count_if(mixers.begin(), mixers.end(), [](const MixerStatus &mixer) {
        return mixer.mixer.state == MixerState::Silent;
      });
  const auto refusing = std::count_if(
      mixers.begin(), mixers.end(),
      [](const MixerStatus &mixer) { return mixer.refusesAll(); });
  if (silent + refusing == 0) return "";
  const bool one = silent + refusing == 1;
  std::string words = one ? "the mixer that " : "the mixers that ";
  if (silent > 0) words += one ? "does not answer" : "do not answer";
  if (silent > 0 && refusing > 0) words += " or ";
  if (refusing > 0) {
    words += one ? "refuses requests" : "refuse requests";
  }
  return words;
}

// What to do next if something is missing; else empty. A silent channel needs
// no next step, because the sentence about it names one. `apply` is the command
// that sends the remembered values that not every mixer has accepted.
std::string NextStep(const Mixers &mixers, const Remembrance &remembered,
                     const std::string &apply) {
  // A mixer that was switched off has lost its settings.
  const std::string all = ApplyCommands(remembered.choices);
  const std::string doctor = (all.empty() ? "" : ", then run " + all) +
                             "; if that does not help, run ztk doctor\n";
  if (mixers.empty()) {
    return "Next: plug the mixer in and switch it on" + doctor;
  }
  const std::string stuck = StuckMixers(mixers);
  if (!stuck.empty()) {
    return "Next: switch " + stuck + " off and on again" + doctor;
  }
  const bool allWork =
      std::all_of(mixers.begin(), mixers.end(),
                  [](const MixerStatus &mixer) { return mixer.works(); });
  if (!allWork || remembered.unreadable) {
    return "Next: run ztk doctor; it shows the cause and what to do\n";
  }
  if (!apply.empty()) {
    return "Next: to send these choices to every mixer, run: " + apply + "\n";
  }
  return "";
}

std::vector<std::string> PlacesOf(const Mixers &mixers) {
  std::vector<std::string> places;
  places.reserve(mixers.size());
  for (const MixerStatus &mixer : mixers) places.push_back(mixer.place);
  return places;
}

Mixers AddMixers(bool verbose, Report *report) {
  Mixers mixers = [] {
    const Progress progress(kWaitingForMixer, kLongestQuestion);
    return AskEveryMixer();
  }();
  int reached = 0;
  Json list = Json::array();
  for (const MixerStatus &mixer : mixers) {
    list.push_back(FieldsOf(mixer));
    if (IsOpened(mixer)) ++reached;
    if (!IsOpened(mixer)) report->warnings.push_back(mixer.mixer.message);
  }
  report->fields["connected"] = !mixers.empty();
  report->fields["found"] = mixers.size();
  report->fields["reached"] = reached;
  report->fields["answering"] = CountAnswering(mixers);
  report->fields["mixers"] = std::move(list);
  report->text = TextOf(mixers, verbose);
  return mixers;
}

Remembrance AddRemembered(const RecordedSending &recorded, Report *report) {
  SettingsSnapshot settings;
  Remembrance remembered;
  Json list = Json::array();
  std::string text;
  std::set<std::string> unreadable;
  for (const Setting *setting : AllSettings()) {
    const std::string &why = settings.WhyUnreadable(*setting);
    if (!why.empty() && unreadable.insert(why).second) {
      report->warnings.push_back("cannot read " + why);
    }
    for (std::uint32_t channel = 0; channel < ChannelsToWalk(*setting);
         ++channel) {
      const auto index = settings.Remembered(*setting, channel);
      remembered.choices.push_back(
          {.setting = setting, .channel = channel, .index = index});
      if (!index) continue;
      Json fields = ValueFields(*setting, channel, *index);
      fields["unsent"] = UnsentField(recorded.Of(*setting, channel, *index));
      list.push_back(std::move(fields));
      text += Row(PlaceName(*setting, channel),
                  DescribedValue(*setting, channel, *index) + ", " +
                      ModelName(*setting));
    }
  }
  report->fields["remembered"] = std::move(list);
  if (!text.empty()) {
    report->text += "Remembered\n" + text;
  } else if (unreadable.empty()) {
    report->text += "Nothing is remembered\n";
  } else {
    report->text += "What is remembered cannot be read\n";
  }
  remembered.unreadable = !unreadable.empty();
  return remembered;
}

}  // namespace

Report ShowStatus(const Arguments &arguments) {
  Report report;
  report.isAnswer = true;
  const Mixers mixers = AddMixers(arguments.Has(Parameter::kVerbose), &report);
  const RecordedSending recorded(PlacesOf(mixers));
  const Remembrance remembered = AddRemembered(recorded, &report);
  const Unsent unsent = FindUnsent(remembered.choices, recorded);
  report.text += TextOf(unsent);
  AddSilence(FindSilentRoutings(mixers, recorded), mixers.size() > 1, &report);
  if (!arguments.Has(Parameter::kQuiet)) {
    report.text += NextStep(mixers, remembered, unsent.command);
  }
  return report;
}

}  // namespace ztk::program
