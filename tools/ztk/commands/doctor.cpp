// SPDX-License-Identifier: MIT
#include <array>
#include <span>

#include "cli/strings.h"
#include "cli/terminal.h"
#include "platform/bundle.h"
#include "platform/text.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/finding.h"
#include "ztk/model/mixers.h"
#include "ztk/progress.h"
#include "ztk/system/facts.h"
#include "ztk/system/text.h"

namespace ztk::program {

namespace {

struct Part {
  const char *name;
  Findings (*look)(std::string *good);
};

// In the order in which a user needs them.
constexpr Part kParts[] = {{.name = "mixers", .look = FindMixerTrouble},
                           {.name = "settings", .look = FindSettingsTrouble},
                           {.name = "bus", .look = FindBusTrouble},
                           {.name = "texts", .look = FindTextTrouble}};

constexpr std::size_t kColumn = 10;

Finding ExplainUnanswered(const Mixer &mixer, const std::string &place) {
  const std::string name = "mixer " + std::to_string(mixer.number);
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

void AddFinding(const char *part, const Finding &finding, Report *report) {
  report->fields["findings"].push_back(
      {{"id", finding.id},
       {"part", part},
       {"severity", finding.isNote ? "note" : "problem"},
       {"finding", finding.what},
       {"cause", finding.cause},
       {"command", finding.command}});
  report->text += cli::Padded(part, kColumn) +
                  (finding.isNote ? "note: " : "") + finding.what + "\n" +
                  cli::Padded("", kColumn) + "cause: " + finding.cause + "\n" +
                  cli::kWhole + cli::Padded("", kColumn) +
                  "type:  " + finding.command + "\n";
}

// True when the bundle has the sentences too.
bool HasTexts(const platform::bundle::Bundle *bundle) {
  const ZTKTextRef key = ZTK_TEXT("WARNING1");
  const ZTKTextRef text =
      platform::bundle::LocalizedText(bundle, key, ZTK_TEXT("Localizable"));
  // The lookup answers the key where there is no sentence.
  return text != nullptr && Utf8(text) != Utf8(key);
}

}  // namespace

Findings FindMixerTrouble(std::string *good) {
  const std::vector<std::string> places = MixerPlaces();
  if (places.empty()) return {ExplainNoMixer()};
  Findings findings;
  const Progress progress(kWaitingForMixer);
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

Findings FindTextTrouble(std::string *good) {
  *good = "the warning texts are installed";
  const std::array paths{
      ZTK_TEXT("/System/Library/Frameworks/VRM-D6Setup.framework"),
      ZTK_TEXT("/Library/Frameworks/VRM-D6Setup.framework")};
  bool found = false;
  const bool onlyFirst = !WhyInstalledIsNotFound().empty();
  for (const ZTKTextRef path : std::span(paths).first(onlyFirst ? 1 : 2)) {
    platform::bundle::Bundle *bundle = platform::bundle::AtPath(path);
    const bool complete = bundle != nullptr && HasTexts(bundle);
    found = found || bundle != nullptr;
    platform::bundle::Release(bundle);
    if (complete) return {};
  }
  return {ExplainTexts(found)};
}

std::string ShellQuoted(const std::string &word) {
  constexpr char kSafe[] =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_./:=@~-";
  if (!word.empty() && word.find_first_not_of(kSafe) == std::string::npos) {
    return word;
  }
  std::string quoted = "'";
  for (const char character : word) {
    quoted +=
        character == '\'' ? std::string("'\\''") : std::string(1, character);
  }
  return quoted + "'";
}

Report Diagnose(const Arguments & /*arguments*/) {
  Report report;
  report.fields["checks"] = Json::array();
  report.fields["findings"] = Json::array();
  std::size_t problems = 0;
  for (const Part &part : kParts) {
    std::string good;
    const Findings findings = part.look(&good);
    report.fields["checks"].push_back(
        {{"part", part.name},
         {"ok", findings.empty()},
         {"message", findings.empty() ? Json(good) : Json()}});
    if (findings.empty()) {
      report.text += cli::Padded(part.name, kColumn) + "ok: " + good + "\n";
    }
    for (const Finding &finding : findings) {
      AddFinding(part.name, finding, &report);
      if (!finding.isNote) ++problems;
    }
  }
  if (problems > 0) {
    report.problem = {
        .exit = ExitCode::Found,
        .message = problems == 1
                       ? "1 problem found; type what stands below its cause"
                       : std::to_string(problems) +
                             " problems found; type what stands below each "
                             "cause, the first one first"};
  }
  return report;
}

}  // namespace ztk::program
