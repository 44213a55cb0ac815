// SPDX-License-Identifier: MIT
#include "ztk/report/setting_report.h"

#include <algorithm>

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/model/products.h"

namespace ztk::program {

namespace {

constexpr char kApply[] = "ztk apply";

// The choice whose number is closest to a number out of range. Choices count
// from 1 without gaps. A number without unit can also mean a level, such as -10
// dB.
const Choice &NearestNumber(const std::string &digits,
                            const std::vector<Choice> &choices) {
  for (const Choice &choice : choices) {
    if (choice.text.starts_with("-" + digits)) return choice;
  }
  const auto number = cli::ParseNumber(digits);
  return number && *number < choices.front().number ? choices.front()
                                                    : choices.back();
}

}  // namespace

std::string Belonging(const Setting &setting) {
  return std::string(setting.title) + " is a setting of the " +
         ModelName(setting) + ".";
}

std::string LimitSentence(const Setting &setting) {
  const std::string limit = ResendLimit(setting);
  return limit.empty() ? "" : limit + ".";
}

std::string Note(const Setting &setting) {
  const std::string limit = LimitSentence(setting);
  return Belonging(setting) + (limit.empty() ? "" : "\n" + limit);
}

std::string ResendLimit(const Setting &setting) {
  const std::uint32_t below = setting.sentAgainBelow;
  if (below == 0) return "";
  const std::size_t count = ChoicesOf(setting, setting.product, 0).size();
  return "apply can only re-send channels 1 to " + std::to_string(below) +
         "; for " + std::to_string(below + 1) + " to " + std::to_string(count) +
         " use set again";
}

std::string Summary(const Setting &setting) {
  return std::string(setting.title) + " of the " + ModelName(setting) + ": " +
         setting.idea;
}

std::string SetCommand(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index) {
  std::string command = std::string("ztk ") + setting.name + " set ";
  if (setting.channels != 0) command += std::to_string(channel + 1) + " ";
  return command + std::to_string(index + 1);
}

std::string ApplyCommand(const Setting &setting, std::uint32_t channel,
                         std::uint32_t index) {
  if (!IsSentAgain(setting, index)) return SetCommand(setting, channel, index);
  return setting.product == kOwnProduct ? kApply
                                        : std::string(kApply) + " --product " +
                                              ProductName(setting.product);
}

std::string Joined(const std::vector<std::string> &commands) {
  const auto isApply = [](const std::string &command) {
    return command.starts_with(kApply);
  };
  const auto apply = std::find_if(commands.begin(), commands.end(), isApply);
  const bool severalModels =
      std::any_of(apply, commands.end(), [&](const std::string &command) {
        return isApply(command) && command != *apply;
      });
  std::vector<std::string> each;
  for (const std::string &given : commands) {
    const std::string command = severalModels && isApply(given)
                                    ? std::string(kApply) + " --all"
                                    : given;
    if (std::find(each.begin(), each.end(), command) == each.end()) {
      each.push_back(command);
    }
  }
  std::string joined;
  for (const std::string &command : each) {
    joined += (joined.empty() ? "" : "; ") + command;
  }
  return joined;
}

std::string NearestChoice(const std::string &words,
                          const std::vector<Choice> &choices) {
  if (choices.empty()) return "";
  if (!words.empty() &&
      words.find_first_not_of("0123456789") == std::string::npos) {
    return "; nearest: " + Described(NearestNumber(words, choices));
  }
  std::vector<std::string> texts;
  texts.reserve(choices.size());
  for (const Choice &choice : choices) texts.push_back(choice.text);
  const std::string nearest = cli::Nearest(words, texts);
  for (const Choice &choice : choices) {
    if (choice.text == nearest) return "; nearest: " + Described(choice);
  }
  return "";
}

std::vector<Choice> ServedChoices(const Setting &setting, std::uint32_t product,
                                  std::uint32_t channel) {
  std::vector<Choice> choices = ChoicesOf(setting, product, channel);
  if (choices.empty()) {
    throw Failure(ExitCode::Rejected,
                  "the " + ProductName(product) + " is not accepted: " +
                      Belonging(setting) + " Leave --product out");
  }
  return choices;
}

std::uint32_t ParseProduct(const std::string &word,
                           const std::vector<std::string> &offered) {
  if (const auto id = FindProduct(word)) return *id;
  std::vector<std::string> names;
  std::vector<std::string> accepted;
  for (const Product &product : Products()) {
    if (!offered.empty() && std::find(offered.begin(), offered.end(),
                                      product.name) == offered.end()) {
      continue;
    }
    names.emplace_back(product.name);
    accepted.push_back(std::to_string(product.id) + " " + product.name);
  }
  throw Failure(ExitCode::Usage,
                "no model " + cli::Quoted(word) +
                    cli::Suggestion(cli::Nearest(word, names), accepted,
                                    ", by number or name") +
                    "; see ztk models");
}

void AddValueFields(const Setting &setting, std::uint32_t channel,
                    std::uint32_t index, Json *fields) {
  const std::optional<Choice> choice = ChoiceAt(setting, channel, index);
  (*fields)["channel"] = ChannelField(setting, channel);
  (*fields)["number"] = choice ? Json(choice->number) : Json();
  (*fields)["text"] = choice ? Json(choice->text) : Json();
  (*fields)["value"] = static_cast<std::int32_t>(index);
}

Json ValueFields(const Setting &setting, std::uint32_t channel,
                 std::uint32_t index) {
  Json fields{{"setting", setting.name}, {"model", ModelName(setting)}};
  AddValueFields(setting, channel, index, &fields);
  return fields;
}

Json ChannelField(const Setting &setting, std::uint32_t channel) {
  return setting.channels == 0 ? Json() : Json(channel + 1);
}

}  // namespace ztk::program
