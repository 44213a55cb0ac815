// SPDX-License-Identifier: MIT
#include "ztk/commands/warning.h"

#include <algorithm>
#include <optional>

#include "api/input_audio.h"
#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"
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
  const std::string nearest = cli::Nearest(word, names);
  throw Failure(ExitCode::Usage,
                "no language " + cli::Quoted(word) +
                    (nearest.empty() ? "" : "; nearest: " + nearest) +
                    "; accepted, by number, name or code: " +
                    cli::Listed(accepted) + ", 99 your own");
}

// Null when the library has no sentence.
ZTKResult Sentence(std::uint32_t channel, std::uint32_t language,
                   ZTKTextRef *text) {
  *text = nullptr;
  const Progress progress(kWaitingForMixer);
  return ZTK_GetWarningTextForSetUSBAudioInput(kOwnProduct, channel,
                                               ZTK_WARNING, language, text);
}

std::string PlainSentence(const std::string &place) {
  const std::string why = WhyInstalledIsNotFound();
  return "the mixer's input selector does not stand where " + place +
         " can be heard; position 4 is needed, ztk status shows where it "
         "stands (the translated text is missing: " +
         (why.empty() ? "install VRM-D6Setup.framework" : why) + ")";
}

// The sentence of the library does not name the channel, so `before` precedes
// it.
std::string Explanation(std::uint32_t channel, const std::string &before) {
  ZTKTextRef text = nullptr;
  Sentence(channel, kUsersLanguage, &text);
  return before + (text != nullptr ? Utf8(text)
                                   : PlainSentence(PlaceName(kInput, channel)));
}

// "mixer 2: ", "mixers 2, 3: ": those of several whose selector stands wrong.
// Asks them. None where no selector stands wrong: a mixer that does not answer
// counts for the library as one.
std::optional<std::string> MixersWithWrongSelector(std::uint32_t channel) {
  const Progress progress(kWaitingForMixer, kLongestQuestion);
  std::vector<std::string> numbers;
  for (const MixerStatus &mixer : AskForSelectors()) {
    if (!mixer.selectors.value) continue;
    const auto position = (*mixer.selectors.value)[channel];
    if (position == input_audio::kAudiblePosition) continue;
    numbers.push_back(std::to_string(mixer.mixer.number));
  }
  if (numbers.empty()) return std::nullopt;
  return (numbers.size() == 1 ? "mixer " : "mixers ") + cli::Listed(numbers) +
         ": ";
}

void AddExplanation(std::uint32_t channel, const Reach &reach,
                    const std::string &place, Report *report) {
  std::optional<std::string> mixers = "";
  if (reach.found() > 1) mixers = MixersWithWrongSelector(channel);
  if (!mixers) return;
  report->warnings.push_back(Explanation(channel, *mixers + place));
}

// Without a mixer the error says what became of the choice. The fifth channel
// has no selector: nobody can do anything about its warning.
bool CanBeActedOn(std::uint32_t channel, const Reach &reach) {
  return reach.found() > 0 && channel < kWarningChannels;
}

}  // namespace

void ExplainWarning(std::uint32_t channel, const Reach &reach, Report *report) {
  if (!CanBeActedOn(channel, reach)) return;
  AddExplanation(channel, reach, "", report);
}

void ExplainWarnings(const MadeChanges &made, Report *report) {
  for (const MadeChange &one : made.changes) {
    const std::uint32_t channel = one.change.channel;
    if (one.result != ZTK_WARNING || !one.selectorsKnown ||
        !CanBeActedOn(channel, made.reach)) {
      continue;
    }
    AddExplanation(channel, made.reach, PlaceName(kInput, channel) + ": ",
                   report);
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
    const auto number = cli::ParseNumber(*word);
    if (!number || *number < 1 || *number > kInput.channels) {
      throw Failure(ExitCode::Usage,
                    "USB input audio has no channel " + cli::Quoted(*word) +
                        cli::NearestAndAccepted(*word, 1, kWarningChannels));
    }
    channel = *number - 1;
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
                  "the library finds no such text: " +
                      (why.empty() ? "make sure that VRM-D6Setup.framework is "
                                     "installed"
                                   : why));
  }
  Report report;
  report.text = cli::OneLine(Utf8(text)) + "\n";
  report.fields = {{"result", result},
                   {"channel", channel + 1},
                   {"language", language},
                   {"text", Utf8(text)}};
  return report;
}

}  // namespace ztk::program
