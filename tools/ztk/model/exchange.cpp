// SPDX-License-Identifier: MIT
#include "ztk/model/exchange.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>

#include "cli/strings.h"
#include "ztk/model/remembered.h"

namespace ztk::model {

namespace {

// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
// More errors would only hide the first ones, which a user corrects first.
constexpr std::size_t kMostErrors = 20;

// Keys of the output of "ztk export --json" beside the version and the
// settings. They are ignored, so that this output can be imported too.
constexpr const char *kEnvelope[] = {"schema", "command", "ok", "warnings"};

std::vector<std::string> SettingNames(const std::string &model) {
  std::vector<std::string> names;
  for (const Setting *setting : AllSettings()) {
    if (ModelName(*setting) == model) names.emplace_back(setting->name);
  }
  return names;
}

const Setting *FindSetting(const std::string &model, const std::string &name) {
  for (const Setting *setting : AllSettings()) {
    if (name == setting->name && ModelName(*setting) == model) return setting;
  }
  return nullptr;
}

// The channel, counted from 0, that a name in the file means.
std::optional<std::uint32_t> ChannelNamed(const Setting &setting,
                                          const std::string &name) {
  for (std::uint32_t channel = 0; channel < setting.channels; ++channel) {
    if (name == std::to_string(channel + 1)) return channel;
  }
  return std::nullopt;
}

// Reads a text and collects its errors.
class ImportReader {
 public:
  ImportedSettings Read(const std::string &text) {
    const Json json = Parse(text);
    if (import_.errorCount == 0) ReadDocument(json);
    if (import_.errorCount != 0) import_.changes.clear();
    return std::move(import_);
  }

 private:
  // `what` makes the text of the error. It is called for the first errors only,
  // because it is slow.
  template <typename Text>
  void AddError(const std::string &place, Text what) {
    if (++import_.errorCount > kMostErrors) return;
    import_.errors.push_back(place.empty() ? what() : place + ": " + what());
  }
  void AddError(const std::string &place, const char *what) {
    AddError(place, [what] { return std::string(what); });
  }

  // Also reports a name that is twice in an object. The JSON library would keep
  // the second one without a message.
  Json Parse(const std::string &text) {
    std::vector<std::set<std::string>> names;
    const auto watch = [&](int /*depth*/, Json::parse_event_t event,
                           Json &parsed) {
      if (event == Json::parse_event_t::object_start) names.emplace_back();
      if (event == Json::parse_event_t::object_end) names.pop_back();
      if (event == Json::parse_event_t::key &&
          !names.back().insert(parsed.get<std::string>()).second) {
        AddError("", [&parsed] {
          return cli::Quoted(parsed.get<std::string>()) + " is there twice";
        });
      }
      return true;
    };
    try {
      return Json::parse(text, watch);
    } catch (const Json::parse_error &error) {
      AddError("", [&error] {
        return "not JSON (byte " + std::to_string(error.byte) + ")";
      });
    } catch (const Json::exception &) {
      AddError("", "a number in it is too large");
    }
    return {};
  }

  void ReadDocument(const Json &json) {
    if (!json.is_object() || !json.contains("settings")) {
      return AddError("",
                      "it contains no \"settings\"; accepted: a file that ztk "
                      "export has written");
    }
    for (const auto &[name, value] : json.items()) ReadEntry(name, value);
    if (!json.contains("version")) AddError("version", "it is missing");
  }

  void ReadEntry(const std::string &name, const Json &value) {
    if (name == "version") {
      if (value != kVersion) AddError(name, "it is not supported; accepted: 1");
    } else if (name == "settings") {
      if (!value.is_object()) return AddError(name, "it is not a JSON object");
      for (const auto &[model, settings] : value.items()) {
        ReadModel(model, settings);
      }
    } else if (std::find(std::begin(kEnvelope), std::end(kEnvelope), name) ==
               std::end(kEnvelope)) {
      AddError("", [&name = name] {
        return "no entry " + cli::Quoted(name) +
               "; accepted: version, settings";
      });
    }
  }

  void ReadModel(const std::string &model, const Json &settings) {
    const std::vector<std::string> names = SettingNames(model);
    if (names.empty()) {
      return AddError("settings", [&model] {
        return "no model " + cli::Quoted(model) +
               "; accepted: " + cli::Listed(ModelNames());
      });
    }
    const std::string place = "settings." + model;
    if (!settings.is_object())
      return AddError(place, "it is not a JSON object");
    for (const auto &[name, value] : settings.items()) {
      const Setting *found = FindSetting(model, name);
      if (found != nullptr) {
        ReadSetting(*found, place + "." + name, value);
        continue;
      }
      AddError(place, [&name = name, &names] {
        return "no setting " + cli::Quoted(name) +
               "; accepted: " + cli::Listed(names);
      });
    }
  }

  void ReadSetting(const Setting &setting, const std::string &place,
                   const Json &value) {
    if (setting.channels == 0) return ReadChoice(setting, 0, place, value);
    const auto accepted = [&setting] {
      return "accepted: 1 to " + std::to_string(setting.channels);
    };
    if (!value.is_object()) {
      return AddError(place, [&accepted] {
        return "an object of channels is needed; " + accepted();
      });
    }
    for (const auto &[name, choice] : value.items()) {
      const auto channel = ChannelNamed(setting, name);
      if (channel) {
        ReadChoice(setting, *channel, place + "." + name, choice);
        continue;
      }
      AddError(place, [&name = name, &accepted] {
        return "no channel " + cli::Quoted(name) + "; " + accepted();
      });
    }
  }

  void ReadChoice(const Setting &setting, std::uint32_t channel,
                  const std::string &place, const Json &value) {
    const std::vector<Choice> choices =
        ChoicesOf(setting, setting.product, channel);
    if (!value.is_string()) {
      return AddError(place, [&choices] {
        return "the text of a choice is needed; accepted: " +
               Described(choices);
      });
    }
    const auto words = value.get<std::string>();
    const Match match = FindChoice(choices, words);
    if (!match.choice) {
      return AddError(place, [&words, &choices] {
        return "no choice " + cli::Quoted(words) +
               "; accepted: " + Described(choices);
      });
    }
    import_.changes.push_back({.setting = &setting,
                               .product = setting.product,
                               .channel = channel,
                               .index = match.choice->number - 1});
  }

  ImportedSettings import_;
};

}  // namespace

ExportedSettings ExportSettings() {
  ExportedSettings result;
  Json settings = Json::object();
  SettingsSnapshot remembered;
  for (const Setting *setting : AllSettings()) {
    const std::string &why = remembered.WhyUnreadable(*setting);
    if (!why.empty()) result.unreadable.push_back(why);
    for (std::uint32_t channel = 0; channel < ChannelsToWalk(*setting);
         ++channel) {
      const auto index = remembered.Remembered(*setting, channel);
      if (!index) continue;
      const auto choice = ChoiceAt(*setting, channel, *index);
      if (!choice) {
        result.leftOut.push_back(NamedValue(*setting, channel, *index));
        continue;
      }
      Json &place = settings[ModelName(*setting)][setting->name];
      if (setting->channels == 0) {
        place = choice->text;
      } else {
        place[std::to_string(channel + 1)] = choice->text;
      }
    }
  }
  Json document{{"version", kVersion}, {"settings", std::move(settings)}};
  result.text = document.dump(2) + "\n";
  return result;
}

ImportedSettings ParseImport(const std::string &text) {
  return ImportReader().Read(text);
}

std::vector<StoredValue> ValuesBeside(const std::vector<Change> &changes) {
  std::vector<StoredValue> beside = AllStoredValues();
  std::erase_if(beside, [&changes](const StoredValue &value) {
    return std::any_of(changes.begin(), changes.end(),
                       [&value](const Change &change) {
                         return change.setting == value.setting &&
                                change.channel == value.channel;
                       });
  });
  return beside;
}

Change Forgetting(const StoredValue &value) {
  return {.setting = value.setting,
          .product = value.setting->product,
          .channel = value.channel,
          .index = value.setting->defaultIndex(value.channel),
          .forgets = true};
}

}  // namespace ztk::model
