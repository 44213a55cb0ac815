// SPDX-License-Identifier: MIT
#include "platform/linux/languages.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace ztk::platform::bundle {
namespace {

using std::string_view;

// In older bundles, a folder has the English name of its language.
struct OlderName {
  string_view language;
  string_view folder;
};
constexpr OlderName kOlderNames[] = {
    {.language = "en", .folder = "English"},
    {.language = "ja", .folder = "Japanese"},
    {.language = "fr", .folder = "French"},
    {.language = "de", .folder = "German"},
    {.language = "it", .folder = "Italian"},
    {.language = "nl", .folder = "Dutch"},
    {.language = "es", .folder = "Spanish"},
};

constexpr string_view kTraditional = "zh_TW";
constexpr string_view kSimplified = "zh_CN";

string_view FromEnvironment(const char *name) {
  const char *value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// "C.UTF-8" is the C locale with another character set.
bool IsCLocale(string_view locale) {
  return locale == "C" || locale == "POSIX" || locale.starts_with("C.");
}

string_view MessagesLocale() {
  for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const string_view locale = FromEnvironment(name);
    if (!locale.empty()) return locale;
  }
  return "C";
}

bool IsChinese(string_view language) {
  return language == "zh" || language == "yue";
}

// Returns the folder for a form of Chinese, which depends on the script or the
// country in the locale. Cantonese ("yue") is written in traditional
// characters.
string_view ChineseFolder(string_view language, string_view rest) {
  constexpr std::array<string_view, 5> kTraditionalForms = {"Hant", "hant",
                                                            "TW", "HK", "MO"};
  const bool simplified = rest.starts_with("Hans") || rest.starts_with("hans");
  const bool traditional =
      !simplified &&
      (language == "yue" ||
       std::any_of(
           kTraditionalForms.begin(), kTraditionalForms.end(),
           [rest](string_view form) { return rest.starts_with(form); }));
  return traditional ? kTraditional : kSimplified;
}

bool IsLocaleCharacter(char character) {
  return (character >= 'a' && character <= 'z') ||
         (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || character == '_';
}

void AddOnce(string_view name, std::vector<std::string> *names) {
  if (std::find(names->begin(), names->end(), name) == names->end()) {
    names->emplace_back(name);
  }
}

}  // namespace

std::vector<std::string> PreferredLocales() {
  std::vector<std::string> locales;
  const string_view locale = MessagesLocale();
  if (IsCLocale(locale)) return locales;

  string_view list = FromEnvironment("LANGUAGE");
  while (!list.empty()) {
    const string_view entry = list.substr(0, list.find(':'));
    if (IsCLocale(entry)) return locales;
    if (!entry.empty()) locales.emplace_back(entry);
    list.remove_prefix(std::min(entry.size() + 1, list.size()));
  }
  locales.emplace_back(locale);
  return locales;
}

std::vector<std::string> FolderNames(string_view locale) {
  // Removes the character set and the modifier, and replaces "-" because
  // "zh-Hant" is another spelling of "zh_Hant".
  std::string full(locale.substr(0, locale.find_first_of(".@")));
  std::replace(full.begin(), full.end(), '-', '_');
  // A locale name with other characters could lead to a folder outside of the
  // bundle.
  if (full.empty() ||
      !std::all_of(full.begin(), full.end(), IsLocaleCharacter)) {
    return {};
  }

  const std::string language = full.substr(0, full.find('_'));
  std::vector<std::string> names = {full};
  if (IsChinese(language)) {
    const string_view rest = string_view(full).substr(language.size());
    AddOnce(ChineseFolder(language, rest.empty() ? rest : rest.substr(1)),
            &names);
  }
  AddOnce(language, &names);
  for (const OlderName &older : kOlderNames) {
    if (older.language == language) AddOnce(older.folder, &names);
  }
  return names;
}

}  // namespace ztk::platform::bundle
