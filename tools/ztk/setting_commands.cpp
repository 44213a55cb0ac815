// SPDX-License-Identifier: MIT
#include "setting_commands.h"

#include "mixers.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "products.h"
#include "text.h"
#include "warning.h"
#include "words.h"

namespace ztk::cli {

namespace {

std::string SeeHelp(const Family &family, const char *verb) {
  return std::string("; see ztk ") + family.name + " " + verb + " --help";
}

std::uint32_t RequiredChannel(const Family &family, const Arguments &arguments,
                              const char *verb) {
  if (const auto channel = ChannelFor(family, arguments)) return *channel;
  if (family.channels == 0) return 0;
  throw Failure(ExitCode::Usage, "N is missing: a channel from 1 to " +
                                     std::to_string(family.channels) +
                                     SeeHelp(family, verb));
}

// The choice that the words mean.
Choice Choose(const Family &family, const std::string &place,
              const std::vector<Choice> &choices, const Arguments &arguments) {
  const std::string *words = arguments.Find(Parameter::Choice);
  if (words == nullptr) {
    throw Failure(ExitCode::Usage, "a CHOICE is missing for " + place +
                                       "; accepted: " + Described(choices));
  }
  const Match match = FindChoice(choices, *words);
  if (match.choice) return *match.choice;
  if (match.candidates.empty()) {
    throw Failure(ExitCode::Usage, place + " has no choice " + Quoted(*words) +
                                       "; accepted: " + Described(choices));
  }
  throw Failure(
      ExitCode::Usage,
      "choice " + Quoted(*words) + " can mean: " + Described(match.candidates) +
          "; type more of it, or its number" + SeeHelp(family, "set"));
}

// HIGH or SOURCE.
std::uint32_t RawNumber(const Arguments &arguments, Parameter parameter) {
  const std::string *word = arguments.Find(parameter);
  const auto number = ParseDecimalOrHex(word == nullptr ? "" : *word);
  if (number) return *number;
  throw Failure(ExitCode::Usage,
                std::string(ParameterName(parameter)) +
                    (word == nullptr ? std::string(" is missing")
                                     : " is no number: " + Quoted(*word)) +
                    "; accepted: decimal, or hexadecimal after 0x" +
                    SeeHelp(kInput, "raw"));
}

// What the library answers to words that only it judges.
[[noreturn]] void ThrowRejected(const Family &family, std::uint32_t product,
                                const std::string &what) {
  throw Failure(ExitCode::Rejected, "the library refuses " + what +
                                        " for the " + ProductName(product) +
                                        ": " + Belonging(family));
}

void AddFamilyFields(const Family &family, std::uint32_t product,
                     Report *report) {
  report->fields["setting"] = family.name;
  report->fields["model"] = ModelName(family);
  report->fields["product"] = ProductName(product);
}

std::string MixersInWords(const Reach &reach) {
  const std::size_t count = reach.reached.size();
  if (count == 0) return "not sent";
  return "sent to " + std::to_string(count) +
         (count == 1 ? " mixer" : " mixers");
}

std::string SettingsFolder() {
  const platform::text::Made library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return "your home folder";
  return Utf8(library.get()) + "/Preferences";
}

// After a set: whether the value stands in the file, which no answer tells.
void AddKept(bool kept, const Reach &reach, Report *report) {
  report->fields["remembered"] = kept;
  if (kept) return;
  report->problem = {
      .exit = ExitCode::Failed,
      .message = MixersInWords(reach) +
                 ", but not remembered: make sure that you can write to " +
                 SettingsFolder()};
}

std::string ChoiceLine(const Choice &choice, bool current,
                       std::size_t numberWidth) {
  const std::string number = std::to_string(choice.number);
  return (current ? "* " : "  ") +
         std::string(numberWidth - number.size(), ' ') + number + "  " +
         choice.text + "\n";
}

// What the library holds to be the current choice: the remembered value or a
// default. None for a product that can only be listed.
std::optional<std::uint32_t> Current(const Family &family,
                                     std::uint32_t product,
                                     std::uint32_t channel) {
  std::uint32_t index = 0;
  if (family.current(product, channel, &index) != ZTK_SUCCESS) {
    return std::nullopt;
  }
  return index;
}

void AddChoiceList(const Family &family, std::uint32_t product,
                   std::uint32_t channel, Report *report) {
  const std::vector<Choice> choices = ChoicesOf(family, product, channel);
  const auto current = Current(family, product, channel);
  const bool remembered = current && Remembered(family, channel);
  std::string &text = report->text;
  text += "\n" + PlaceName(family, channel);
  if (!current) {
    text += " (listed only)";
  } else if (!remembered) {
    text += " (nothing remembered; * is the default)";
  } else if (*current >= choices.size()) {
    text += " (remembered: " + DescribedValue(family, channel, *current) + ")";
  }
  text += "\n";
  Json list = Json::array();
  const std::size_t width = std::to_string(choices.size()).size();
  for (const Choice &choice : choices) {
    const bool marked = current && *current == choice.number - 1;
    text += ChoiceLine(choice, marked, width);
    list.push_back({{"number", choice.number},
                    {"text", choice.text},
                    {"current", marked}});
  }
  report->fields["channels"].push_back(
      {{"channel", ChannelField(family, channel)},
       {"remembered", remembered},
       {"choices", std::move(list)}});
}

}  // namespace

std::uint32_t ProductFor(const Family &family, const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::Product);
  return word == nullptr ? family.product : ParseProduct(*word);
}

std::optional<std::uint32_t> ChannelFor(const Family &family,
                                        const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::Channel);
  if (word == nullptr) return std::nullopt;
  const std::optional<std::uint32_t> number = ParseNumber(*word);
  if (number && *number >= 1 && *number <= family.channels) {
    return *number - 1;
  }
  throw Failure(ExitCode::Usage,
                std::string(family.title) + " has no channel " + Quoted(*word) +
                    "; accepted: 1 to " + std::to_string(family.channels));
}

std::vector<std::uint32_t> ChannelsFor(const Family &family,
                                       const Arguments &arguments) {
  if (const auto channel = ChannelFor(family, arguments)) return {*channel};
  std::vector<std::uint32_t> all;
  for (std::uint32_t channel = 0; channel < ChannelsToWalk(family); ++channel) {
    all.push_back(channel);
  }
  return all;
}

Report ListChoices(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  report.text = Belonging(family) + " * marks the current choice.\n";
  for (const std::uint32_t channel : ChannelsFor(family, arguments)) {
    AddChoiceList(family, product, channel, &report);
  }
  return report;
}

Report GetRemembered(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  report.text = Belonging(family) + "\n";
  for (const std::uint32_t channel : ChannelsFor(family, arguments)) {
    const auto index = Current(family, product, channel);
    if (!index) ThrowRejected(family, product, "to read it");
    const bool remembered = Remembered(family, channel).has_value();
    Json fields;
    AddValueFields(family, channel, *index, &fields);
    fields["remembered"] = remembered;
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(family, channel) + "  " +
                   DescribedValue(family, channel, *index) +
                   (remembered ? "\n" : " (default; nothing remembered)\n");
  }
  return report;
}

Report SetChoice(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  const std::uint32_t channel = RequiredChannel(family, arguments, "set");
  const std::string place = PlaceName(family, channel);
  const Choice choice =
      Choose(family, place, ChoicesOf(family, product, channel), arguments);
  const std::uint32_t index = choice.number - 1;

  const Sent sent =
      SendAndLook([&] { return family.set(product, channel, index); });
  if (sent.result == ZTK_REJECTED) {
    ThrowRejected(family, product, Quoted(choice.text));
  }
  Report report;
  AddFamilyFields(family, product, &report);
  AddValueFields(family, channel, index, &report.fields);
  report.fields["result"] = sent.result;
  AddReach(sent.reach,
           place +
               " is remembered, not sent; once a mixer can be reached, "
               "run: ztk " +
               family.name + " apply",
           &report);
  const bool kept = Remembered(family, channel) == index;
  AddKept(kept, sent.reach, &report);
  report.text = place + ": " + Described(choice) + ", " +
                MixersInWords(sent.reach) +
                (kept ? ", remembered\n" : ", not remembered\n");
  if (sent.result == ZTK_WARNING) ExplainWarning(channel, sent.reach, &report);
  return report;
}

Report SendDefault(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  const std::vector<std::uint32_t> channels = ChannelsFor(family, arguments);
  const Sent sent = SendAndLook([&] {
    ZTKResult result = ZTK_SUCCESS;
    for (const std::uint32_t channel : channels) {
      result = ZTK_SetUSBOutputAudioDefault(product, channel);
    }
    return result;
  });
  if (sent.result != ZTK_SUCCESS) {
    ThrowRejected(family, product, "the default");
  }
  for (const std::uint32_t channel : channels) {
    // The default of a channel is the choice with its own number.
    Json fields;
    AddValueFields(family, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(family, channel) + ": default " +
                   DescribedValue(family, channel, channel) + ", " +
                   MixersInWords(sent.reach) + ", not remembered\n";
  }
  report.fields["result"] = sent.result;
  AddReach(sent.reach, "the default was not sent, and is never remembered",
           &report);
  return report;
}

Report SendRaw(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  const std::uint32_t channel = RequiredChannel(family, arguments, "raw");
  const std::uint32_t high = RawNumber(arguments, Parameter::High);
  const std::uint32_t source = RawNumber(arguments, Parameter::Source);

  const Sent sent = SendAndLook([&] {
    return ZTK_SetUSBInputAudioDirect(product, channel, high, source);
  });
  const std::string what =
      "HIGH " + std::to_string(high) + ", SOURCE " + std::to_string(source);
  if (sent.result == ZTK_REJECTED) {
    ThrowRejected(family, product, what + " (SOURCE: 0 to 15)");
  }
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channel"] = ChannelField(family, channel);
  report.fields["high"] = high;
  report.fields["source"] = source;
  report.fields["result"] = sent.result;
  report.text = PlaceName(family, channel) + ": " + what + ", " +
                MixersInWords(sent.reach) + ", not remembered\n";
  AddReach(sent.reach, "the value was not sent, and is never remembered",
           &report);
  // The sentence for no mixer says that the setting was saved; this one is not.
  if (sent.result == ZTK_WARNING && sent.reach.found > 0) {
    ExplainWarning(channel, sent.reach, &report);
  }
  return report;
}

}  // namespace ztk::cli
