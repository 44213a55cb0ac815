// SPDX-License-Identifier: MIT
#include "ztk/commands/warning.h"

#include <algorithm>
#include <optional>

#include "api/input_audio.h"
#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"
#include "ztk/model/silence.h"
#include "ztk/progress.h"
#include "ztk/report/change_report.h"
#include "ztk/system/facts.h"
#include "ztk/system/library_text.h"

namespace ztk::program {

namespace {

constexpr std::uint32_t kUsersLanguage = 99;

// The languages of the library: the number and the names of each.
struct Language {
  std::uint32_t number;
  const char *name;
  const char *code;
  const char *otherCode;
};
constexpr Language kLanguages[] = {
    {.number = 0, .name = "English", .code = "en", .otherCode = "eng"},
    {.number = 1, .name = "Japanese", .code = "ja", .otherCode = "jpn"},
    {.number = 2, .name = "French", .code = "fr", .otherCode = "fra"},
    {.number = 3, .name = "German", .code = "de", .otherCode = "deu"},
    {.number = 4, .name = "Italian", .code = "it", .otherCode = "ita"},
    {.number = 5, .name = "Dutch", .code = "nl", .otherCode = "nld"},
    {.number = 6, .name = "Spanish", .code = "es", .otherCode = "spa"},
    {.number = 7, .name = "Russian", .code = "ru", .otherCode = "rus"},
    {.number = 8, .name = "Portuguese", .code = "pt", .otherCode = "por"},
    {.number = 9,
     .name = "Simplified Chinese",
     .code = "zh-CN",
     .otherCode = "zh-Hans"},
    {.number = 10,
     .name = "Traditional Chinese",
     .code = "zh-TW",
     .otherCode = "zh-Hant"},
    {.number = 11, .name = "Korean", .code = "ko", .otherCode = "kor"}};

// "zh-CN" is also written as "zh_CN".
std::string Folded(const std::string &word) {
  std::string folded = cli::LowerCase(word);
  std::replace(folded.begin(), folded.end(), '_', '-');
  return folded;
}

std::uint32_t ParseLanguage(const std::string &word) {
  const std::string wanted = Folded(word);
  const auto number = cli::ParseNumber(word);
  std::vector<std::string> accepted;
  std::vector<std::string> names;
  for (const Language &language : kLanguages) {
    if (number == language.number || wanted == Folded(language.name) ||
        wanted == Folded(language.code) ||
        wanted == Folded(language.otherCode)) {
      return language.number;
    }
    names.emplace_back(language.name);
    accepted.push_back(std::to_string(language.number) + " " + language.name +
                       " " + language.code);
  }
  if (number == kUsersLanguage) return kUsersLanguage;
  accepted.emplace_back("99 your own");
  throw Failure(ExitCode::Usage,
                "no language " + cli::Quoted(word) +
                    cli::Suggestion(cli::Nearest(word, names), accepted,
                                    ", by number, name or code") +
                    "; see ztk warning --help");
}

// Asks the library for its sentence. *text is null if the library has none.
ZTKResult Sentence(std::uint32_t channel, std::uint32_t language,
                   ZTKTextRef *text) {
  *text = nullptr;
  const Progress progress(kWaitingForMixer);
  return ZTK_GetWarningTextForSetUSBAudioInput(kOwnProduct, channel,
                                               ZTK_WARNING, language, text);
}

// Whether nothing can be heard with the selector in this position.
bool IsWrong(const std::optional<std::uint8_t> &position) {
  return position != input_audio::kAudiblePosition;
}

// For each mixer whose selector is in a wrong position, a sentence of this
// program that names both positions.
std::vector<std::string> PlainSentences(
    std::uint32_t channel, const std::string &what,
    const std::vector<MixerStatus> &mixers) {
  std::vector<std::string> sentences;
  for (const MixerStatus &mixer : mixers) {
    if (!mixer.selectors.value) continue;
    const auto position = (*mixer.selectors.value)[channel];
    if (!position || !IsWrong(position)) continue;
    sentences.push_back(SelectorSentence({.mixer = mixer.mixer.number,
                                          .channel = channel,
                                          .index = 0,
                                          .position = *position},
                                         what, mixers.size() > 1));
  }
  return sentences;
}

// The sentence of the library does not name the channel, so `place` precedes
// it. It does not name the positions either, so the plain sentences follow it.
// With several mixers, adds nothing if every selector is in the right
// position: the library also returns 101 because a mixer does not answer.
void AddExplanation(std::uint32_t channel, const Reach &reach,
                    const std::vector<MixerStatus> &mixers,
                    const std::string &what, const std::string &place,
                    Report *report) {
  ZTKTextRef text = nullptr;
  Sentence(channel, kUsersLanguage, &text);
  const std::vector<std::string> plain = PlainSentences(channel, what, mixers);
  if (text == nullptr) {
    for (const std::string &sentence : plain) {
      report->warnings.push_back(place + sentence);
    }
  } else if (reach.found() == 1 || !plain.empty()) {
    std::string warning = place + Utf8(text);
    for (const std::string &sentence : plain) warning += " (" + sentence + ")";
    report->warnings.push_back(warning);
  }
}

std::vector<MixerStatus> Ask() {
  const Progress progress(kWaitingForMixer, kLongestQuestion);
  return AskForSelectors();
}

// Whether the user can correct what the warning describes. The fifth channel
// has no selector that could be turned. Without a mixer, the error message
// already says what to do.
bool CanBeActedOn(std::uint32_t channel, const Reach &reach) {
  return reach.found() > 0 && channel < kWarningChannels;
}

}  // namespace

void ExplainWarning(std::uint32_t channel, const std::string &what,
                    const Reach &reach, Report *report) {
  if (!CanBeActedOn(channel, reach)) return;
  AddExplanation(channel, reach, Ask(), what, "", report);
}

void ExplainWarnings(const MadeChanges &made, Report *report) {
  std::optional<std::vector<MixerStatus>> mixers;
  for (const MadeChange &one : made.changes) {
    const std::uint32_t channel = one.change.channel;
    if (one.result != ZTK_WARNING || !one.selectorsKnown ||
        !CanBeActedOn(channel, made.reach)) {
      continue;
    }
    if (!mixers) mixers = Ask();
    AddExplanation(channel, made.reach, *mixers,
                   DescribedValue(kInput, channel, one.change.index),
                   PlaceName(kInput, channel) + ": ", report);
  }
}

std::vector<std::string> LanguageNames() {
  std::vector<std::string> names;
  for (const Language &language : kLanguages) {
    const std::string name = language.name;
    names.push_back(name.find(' ') == std::string::npos ? name : language.code);
  }
  return names;
}

Report ShowWarning(const Arguments &arguments) {
  std::uint32_t channel = 0;
  if (const std::string *word = arguments.Find(Parameter::kOfChannel)) {
    const auto parsed = ParseChannel(kInput, *word);
    if (!parsed) {
      throw Failure(ExitCode::Usage,
                    "USB input audio has no channel " + cli::Quoted(*word) +
                        cli::NearestAndAccepted(*word, 1, kWarningChannels));
    }
    channel = *parsed;
  }
  std::uint32_t language = kUsersLanguage;
  if (const std::string *word = arguments.Find(Parameter::kLanguage)) {
    language = ParseLanguage(*word);
  }
  ZTKTextRef text = nullptr;
  const ZTKResult result = Sentence(channel, language, &text);
  if (result == ZTK_REJECTED) {
    throw Failure(ExitCode::Rejected, PlaceName(kInput, channel) +
                                          " has no input selector, so the "
                                          "library has no text for it; "
                                          "accepted: 1 to 4");
  }
  if (text == nullptr) {
    const std::string why = WhyInstalledIsNotFound();
    throw Failure(ExitCode::Failed,
                  why.empty() ? "the warning texts are not installed; ztk "
                                "doctor shows how to install them"
                              : "the library finds no such text: " + why);
  }
  Report report;
  report.isAnswer = true;
  report.text = cli::OneLine(Utf8(text)) + "\n";
  report.fields = {{"result", result},
                   {"channel", channel + 1},
                   {"language", language},
                   {"text", Utf8(text)}};
  return report;
}

}  // namespace ztk::program
