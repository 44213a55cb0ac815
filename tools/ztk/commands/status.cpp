// SPDX-License-Identifier: MIT
#include <array>
#include <cstdio>
#include <set>

#include "api/status.h"
#include "cli/strings.h"
#include "usb/mixers.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/reach.h"
#include "ztk/model/remembered.h"
#include "ztk/model/settings.h"
#include "ztk/progress.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// What a reply is preset to, as a read does not tell how much came.
constexpr std::uint8_t kUntouched = 0xFF;

constexpr std::size_t kValueColumn = 15;

// One fact: a value for programs, and words for people.
struct Fact {
  const char *name;
  const char *title;
  Json value;
  std::string words;
};

using Read = usb::Code (*)(usb::Connection device, std::uint8_t *buffer,
                           std::uint16_t length);

// Asks one mixer. After a request without an answer the others are not sent:
// each would be waited for as long.
class MixerReader {
 public:
  explicit MixerReader(usb::Connection mixer) : mixer_(mixer) {}

  // Empty when it answered; else why not.
  std::string Ask(Read read, usb::Reply *reply, std::uint16_t length) {
    for (std::uint16_t i = 0; i < length; ++i) reply->bytes[i] = kUntouched;
    if (silent_) return "not asked";
    const usb::Code code = read(mixer_, reply->bytes, length);
    if (code == platform::usb::kSuccess) return "";
    silent_ = code == platform::usb::kTimeout;
    return model::Described(code);
  }

 private:
  usb::Connection mixer_;
  bool silent_ = false;
};

std::string Formatted(const char *format, unsigned first, unsigned second = 0) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), format, first, second);
  return text.data();
}

Fact Firmware(MixerReader *reader) {
  Fact fact{.name = "firmware", .title = "firmware", .value = {}, .words = {}};
  usb::Reply reply;
  fact.words = reader->Ask(GetFirmwareVersionNumber, &reply,
                           status::kFirmwareVersionLength);
  if (!fact.words.empty()) return fact;
  const unsigned low = reply.bytes[0];
  const unsigned high = reply.bytes[1];
  const unsigned number = low | high << 8;
  const std::string hex = Formatted("0x%04X", number);
  // Only the number is the mixer's; the version is read from its bytes.
  const std::string version = Formatted("%x.%02x", high, low);
  fact.value = {{"number", number}, {"hex", hex}, {"derived", version}};
  fact.words =
      std::to_string(number) + " (" + hex + ", read as " + version + ")";
  return fact;
}

Fact CertificationLevel(MixerReader *reader) {
  Fact fact{.name = "certificationLevel",
            .title = "certified",
            .value = {},
            .words = {}};
  usb::Reply reply;
  fact.words =
      reader->Ask(GetCertifyLevel, &reply, status::kCertifyLevelLength);
  if (!fact.words.empty()) return fact;
  const std::uint32_t level = status::BigEndian32(reply.bytes);
  fact.value = level;
  fact.words = "level " + std::to_string(level);
  return fact;
}

Fact Selectors(MixerReader *reader) {
  Fact fact{
      .name = "selectors", .title = "selectors", .value = {}, .words = {}};
  usb::Reply reply;
  fact.words =
      reader->Ask(GetInputSelectorInfo, &reply, status::kSelectorInfoLength);
  if (!fact.words.empty()) return fact;
  fact.value = Json::array();
  for (int channel = 0; channel < status::kSelectors; ++channel) {
    // The first byte has no meaning here.
    const std::uint8_t position = reply.bytes[channel + 1];
    const bool known = position < status::kSelectorPositions;
    fact.value.push_back(known ? Json(position) : Json());
    if (channel > 0) fact.words += "   ";
    fact.words += "CH" + std::to_string(channel + 1) + " " +
                  (known ? std::to_string(position) : "unknown");
  }
  return fact;
}

Fact Serato(MixerReader *reader) {
  Fact fact{.name = "serato", .title = "Serato", .value = {}, .words = {}};
  usb::Reply reply;
  fact.words =
      reader->Ask(GetSeratoActiveInfo, &reply, status::kSeratoActiveLength);
  if (!fact.words.empty()) return fact;
  const std::uint8_t state = reply.bytes[0];
  if (state > 1) {
    fact.words = "unknown";
    return fact;
  }
  fact.value = state == 1 ? "active" : "inactive";
  fact.words = state == 1 ? "active" : "not active";
  return fact;
}

std::string Row(const std::string &title, const std::string &words) {
  return cli::Padded("  " + title, kValueColumn) + " " + words + "\n";
}

// A fact whose value is null carries its words, which say why.
void AddFact(Fact fact, Json *fields, std::string *text) {
  if (fact.value.is_null()) {
    (*fields)["unanswered"][fact.name] = fact.words;
  }
  (*fields)[fact.name] = std::move(fact.value);
  *text += Row(fact.title, fact.words);
}

// What the mixers of one listing told.
struct Listing {
  Json mixers = Json::array();
  std::string text;
  std::vector<std::string> warnings;
  int reached = 0;
  bool everythingAnswered = true;
};

void AddMixer(int position, const std::string &place, Listing *listing) {
  const usb::OpenMixer mixer(position);
  Json fields{{"position", position + 1},
              {"reachable", static_cast<bool>(mixer)}};
  std::string *text = &listing->text;
  const std::string number = std::to_string(position + 1);
  if (mixer) {
    *text += "Mixer " + number + " is reachable\n";
    MixerReader reader(mixer.connection());
    AddFact(Firmware(&reader), &fields, text);
    AddFact(CertificationLevel(&reader), &fields, text);
    AddFact(Selectors(&reader), &fields, text);
    AddFact(Serato(&reader), &fields, text);
    ++listing->reached;
  } else {
    const std::string reason =
        "mixer " + number + " " + Explained(TryToOpen(place));
    *text += "Mixer " + number + " is attached but cannot be opened\n";
    fields["reason"] = reason;
    listing->warnings.push_back(reason);
  }
  if (!mixer || fields.contains("unanswered")) {
    listing->everythingAnswered = false;
  }
  listing->mixers.push_back(std::move(fields));
}

Listing AskEach(const std::vector<std::string> &places) {
  Listing listing;
  int position = 0;
  for (const std::string &place : places) AddMixer(position++, place, &listing);
  return listing;
}

// Mixers are opened by their position, which is another one's as soon as a
// mixer before it has gone. So when something was not told, and by now other
// mixers are attached, all are asked again.
Listing AskAll() {
  constexpr int kTries = 3;
  std::vector<std::string> places = MixerPlaces();
  for (int tries = 1;; ++tries) {
    Listing listing = AskEach(places);
    if (listing.everythingAnswered || tries == kTries) return listing;
    std::vector<std::string> now = MixerPlaces();
    if (now == places) return listing;
    places = std::move(now);
  }
}

void AddMixers(Report *report) {
  const Progress progress(kWaitingForMixer);
  Listing listing = AskAll();
  const std::size_t found = listing.mixers.size();
  report->fields["connected"] = found > 0;
  report->fields["found"] = found;
  report->fields["reached"] = listing.reached;
  report->fields["mixers"] = std::move(listing.mixers);
  report->text = found == 0 ? "No mixer is attached\n" : listing.text;
  report->warnings = std::move(listing.warnings);
}

void AddRemembered(Report *report) {
  SettingsSnapshot settings;
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
      if (!index) continue;
      Json fields{{"setting", setting->name}, {"model", ModelName(*setting)}};
      AddValueFields(*setting, channel, *index, &fields);
      list.push_back(std::move(fields));
      text += Row(PlaceName(*setting, channel),
                  DescribedValue(*setting, channel, *index) + "  (" +
                      ModelName(*setting) + ")");
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
}

}  // namespace

Report ShowStatus(const Arguments & /*arguments*/) {
  Report report;
  AddMixers(&report);
  AddRemembered(&report);
  return report;
}

}  // namespace ztk::program
