// SPDX-License-Identifier: MIT
//
// The words that completions offer for the arguments.
#include "cli/strings.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/commands/warning.h"
#include "ztk/model/choice.h"
#include "ztk/model/products.h"
#include "ztk/table/table_parts.h"

namespace ztk::program {

namespace {

// The part of a text after the words that were typed already: the whole text
// when there are none, empty when the text does not begin with them.
std::string Rest(const std::string &text, const std::string &words) {
  if (words.empty()) return text;
  if (cli::LowerCase(text).rfind(cli::LowerCase(words) + " ", 0) != 0) {
    return "";
  }
  return text.substr(words.size() + 1);
}

// The channel that was typed before the choice; 0 if no channel was typed. None
// if the typed word is not a channel.
std::optional<std::uint32_t> ChannelBefore(const Setting &setting,
                                           const Arguments &before) {
  const std::string *word = before.Find(Parameter::kChannel);
  return word == nullptr ? 0 : ParseChannel(setting, *word);
}

}  // namespace

std::vector<cli::Value> ChannelValues(const Setting &setting,
                                      std::uint32_t count) {
  std::vector<cli::Value> values;
  for (std::uint32_t channel = 0; channel < count; ++channel) {
    values.push_back({.word = std::to_string(channel + 1),
                      .meaning = PlaceName(setting, channel)});
  }
  return values;
}

// Offers texts instead of numbers, except for a text that looks like an option,
// and when the user has begun to type a number.
std::vector<cli::Value> ChoiceValues(const Setting &setting,
                                     const Arguments &before,
                                     const std::string &begun) {
  const auto channel = ChannelBefore(setting, before);
  if (!channel) return {};
  const std::string *words = before.Find(Parameter::kChoice);
  const std::string known = words == nullptr ? "" : *words;
  const bool number =
      !begun.empty() && begun.front() >= '0' && begun.front() <= '9';
  std::vector<cli::Value> values;
  for (const Choice &choice : ChoicesOf(setting, setting.product, *channel)) {
    const std::string position = std::to_string(choice.number);
    if (known.empty() && (number || choice.text.starts_with('-'))) {
      values.push_back({.word = position, .meaning = choice.text});
    }
    const std::string rest = Rest(choice.text, known);
    if (!rest.empty() && !number) {
      values.push_back({.word = rest, .meaning = "choice " + position});
    }
  }
  return values;
}

std::vector<cli::Value> ProductValues() {
  std::vector<cli::Value> values;
  for (const Product &product : Products()) {
    values.push_back({.word = product.name, .meaning = "model"});
  }
  return values;
}

std::vector<cli::Value> ModelValues() {
  std::vector<cli::Value> values;
  for (const std::string &model : ModelNames()) {
    values.push_back({.word = model, .meaning = "model"});
  }
  return values;
}

std::vector<cli::Value> SettingValues() {
  std::vector<cli::Value> values;
  for (const Setting *setting : AllSettings()) {
    values.push_back({.word = setting->name, .meaning = setting->title});
  }
  return values;
}

std::vector<cli::Value> LanguageValues() {
  std::vector<cli::Value> values;
  for (const std::string &name : LanguageNames()) {
    values.push_back({.word = name, .meaning = "language"});
  }
  return values;
}

}  // namespace ztk::program
