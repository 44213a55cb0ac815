// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "cli/strings.h"
#include "cli/suggest.h"
#include "cli/terminal.h"
#include "ztk/commands/pick.h"
#include "ztk/commands/warning.h"
#include "ztk/model/change.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/history.h"
#include "ztk/model/mixers.h"
#include "ztk/model/products.h"
#include "ztk/model/settings_snapshot.h"
#include "ztk/system/announcement.h"
#include "ztk/system/text.h"

namespace ztk::program {

namespace {

constexpr std::uint32_t kSources = 16;
constexpr char kAcceptedSources[] = " (SOURCE: 0 to 15)";

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

// HIGH or SOURCE.
std::uint32_t RawNumber(const Arguments &arguments, Parameter parameter) {
  const std::string *word = arguments.Find(parameter);
  const auto number = cli::ParseDecimalOrHex(word == nullptr ? "" : *word);
  if (number) return *number;
  throw Failure(
      ExitCode::Usage,
      std::string(ParameterName(parameter)) +
          (word == nullptr ? std::string(" is missing")
                           : " is not a number: " + cli::Quoted(*word)) +
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

Outcome NeverRemembered(const std::string &what, const std::string &command) {
  return {.notSent = what + " was not sent",
          .notAnswered = what + " was sent, but not answered",
          .remedy = "it is never remembered, so run " + command + " again",
          .someMissing = "once the others do, run " + command + " again"};
}

std::string ChoiceLine(const Choice &choice, bool current,
                       std::size_t numberWidth) {
  const std::string number = std::to_string(choice.number);
  const std::string line = std::string(numberWidth - number.size(), ' ') +
                           number + "  " + choice.text;
  return (current ? cli::Strong("* " + line) : "  " + line) + "\n";
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

// The one that the library would refuse is refused here too.
void CheckServed(const Family &family, std::uint32_t product,
                 const std::string &what) {
  if (product != family.product) ThrowRejected(family, product, what);
}

Report PlanOfSet(const Change &change, const Choice &choice) {
  const Family &family = *change.family;
  CheckServed(family, change.product, cli::Quoted(choice.text));
  Plan plan;
  plan.AddChange(change);
  plan.AddQuestion();
  Report report;
  AddFamilyFields(family, change.product, &report);
  AddValueFields(family, change.channel, change.index, &report.fields);
  plan.Tell(&report);
  return report;
}

Report PlanOfDefault(const Family &family, std::uint32_t product,
                     const std::vector<std::uint32_t> &channels) {
  CheckServed(family, product, "the default");
  Plan plan;
  for (const std::uint32_t channel : channels) {
    plan.AddDefault(family, channel);
  }
  plan.AddQuestion();
  Report report;
  AddFamilyFields(family, product, &report);
  plan.Tell(&report);
  return report;
}

// What is sent without being a choice.
struct RawValue {
  std::uint32_t channel;
  std::uint32_t high;
  std::uint32_t source;

  std::string InWords() const {
    return "HIGH " + std::to_string(high) + ", SOURCE " +
           std::to_string(source);
  }
};

void AddRawFields(const Family &family, const RawValue &raw, Report *report) {
  report->fields["channel"] = ChannelField(family, raw.channel);
  report->fields["high"] = raw.high;
  report->fields["source"] = raw.source;
}

Report PlanOfRaw(const Family &family, std::uint32_t product,
                 const RawValue &raw) {
  CheckServed(family, product, raw.InWords());
  if (raw.source >= kSources) {
    ThrowRejected(family, product, raw.InWords() + kAcceptedSources);
  }
  Plan plan;
  plan.AddRaw(raw.channel, raw.high, raw.source);
  plan.AddQuestion();
  Report report;
  AddFamilyFields(family, product, &report);
  AddRawFields(family, raw, &report);
  plan.Tell(&report);
  return report;
}

// The choice that the words mean; without words, the one that is picked from
// the list, where somebody is there to pick.
Choice Choose(const Family &family, std::uint32_t product,
              std::uint32_t channel, const Arguments &arguments) {
  const std::string place = PlaceName(family, channel);
  const std::vector<Choice> choices = ChoicesOf(family, product, channel);
  const std::string *words = arguments.Find(Parameter::Choice);
  if (words == nullptr && !arguments.json && CanPick()) {
    Report list;
    AddChoiceList(family, product, channel, &list);
    return Pick(place, list.text, choices);
  }
  if (words == nullptr) {
    throw Failure(ExitCode::Usage, "a CHOICE is missing for " + place +
                                       "; accepted: " + Described(choices));
  }
  const Match match = FindChoice(choices, *words);
  if (match.choice) return *match.choice;
  if (match.candidates.empty()) {
    throw Failure(ExitCode::Usage, place + " has no choice " +
                                       cli::Quoted(*words) +
                                       NearestChoice(*words, choices) +
                                       "; accepted: " + Described(choices));
  }
  throw Failure(ExitCode::Usage,
                "choice " + cli::Quoted(*words) +
                    " can mean: " + Described(match.candidates) +
                    "; type more of it, or its number" +
                    SeeHelp(family, "set"));
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
  const std::optional<std::uint32_t> number = cli::ParseNumber(*word);
  if (number && *number >= 1 && *number <= family.channels) {
    return *number - 1;
  }
  throw Failure(ExitCode::Usage,
                std::string(family.title) + " has no channel " +
                    cli::Quoted(*word) +
                    cli::NearestAndAccepted(*word, 1, family.channels));
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
    if (!index) {
      throw Failure(ExitCode::Rejected,
                    "nothing can be read for the " + ProductName(product) +
                        ": " + Belonging(family) + " Leave --product out");
    }
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
  const Choice choice = Choose(family, product, channel, arguments);
  const Change wanted{.family = &family,
                      .product = product,
                      .channel = channel,
                      .index = choice.number - 1};
  if (arguments.Has(Parameter::DryRun)) return PlanOfSet(wanted, choice);

  Report report;
  const MadeChanges made =
      MakeStep(std::string(family.name) + " set", {wanted}, &report);
  const MadeChange &change = made.changes.front();
  if (change.result == ZTK_REJECTED) {
    ThrowRejected(family, product, cli::Quoted(choice.text));
  }
  AddFamilyFields(family, product, &report);
  AddValueFields(family, channel, change.change.index, &report.fields);
  report.fields["result"] = change.result;
  report.fields["remembered"] = change.remembered;
  report.fields["announced"] = change.announced;
  AddTruth(made, place,
           IsSentAgain(family, wanted.index)
               ? std::string("ztk ") + family.name + " apply"
               : SetCommand(family, channel, wanted.index),
           &report);
  report.text = place + ": " + Described(choice) + ", " +
                Described(change, made.reach) + "\n" +
                NoteOnSendingAgain(wanted);
  // The sentence for no mixer says that the setting has been saved.
  if (change.result == ZTK_WARNING &&
      (change.remembered || made.reach.found() > 0)) {
    ExplainWarning(channel, made.reach, &report);
  }
  return report;
}

Report SendDefault(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  Report report;
  AddFamilyFields(family, product, &report);
  report.fields["channels"] = Json::array();
  const std::vector<std::uint32_t> channels = ChannelsFor(family, arguments);
  if (arguments.Has(Parameter::DryRun)) {
    return PlanOfDefault(family, product, channels);
  }
  BusWitness witness({family.notice});
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
  bool announced = true;
  for (const std::uint32_t channel : channels) {
    // The default of a channel is the choice with its own number.
    Json fields;
    AddValueFields(family, channel, channel, &fields);
    report.fields["channels"].push_back(std::move(fields));
    report.text += PlaceName(family, channel) + ": default " +
                   DescribedValue(family, channel, channel) + ", " +
                   Described(sent.reach) + ", not remembered\n";
    announced = announced && witness.Heard({.family = family.notice,
                                            .product = product,
                                            .channel = channel,
                                            .index = channel});
  }
  report.fields["result"] = sent.result;
  report.fields["announced"] = announced;
  AddReach(sent.reach, NeverRemembered("the default", "ztk output default"),
           &report);
  if (!announced) WarnOfSilentBus(&report);
  return report;
}

Report SendRaw(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  const std::uint32_t channel = RequiredChannel(family, arguments, "raw");
  const RawValue raw{.channel = channel,
                     .high = RawNumber(arguments, Parameter::High),
                     .source = RawNumber(arguments, Parameter::Source)};
  if (arguments.Has(Parameter::DryRun)) {
    return PlanOfRaw(family, product, raw);
  }
  const Sent sent = SendAndLook([&] {
    return ZTK_SetUSBInputAudioDirect(product, channel, raw.high, raw.source);
  });
  if (sent.result == ZTK_REJECTED) {
    ThrowRejected(family, product, raw.InWords() + kAcceptedSources);
  }
  Report report;
  AddFamilyFields(family, product, &report);
  AddRawFields(family, raw, &report);
  report.fields["result"] = sent.result;
  report.text = PlaceName(family, channel) + ": " + raw.InWords() + ", " +
                Described(sent.reach) + ", not remembered\n";
  AddReach(sent.reach, NeverRemembered("the value", "ztk input raw"), &report);
  // The same sentence again; this value never is.
  if (sent.result == ZTK_WARNING && sent.reach.found() > 0) {
    ExplainWarning(channel, sent.reach, &report);
  }
  return report;
}

}  // namespace ztk::program
