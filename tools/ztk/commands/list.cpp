// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "cli/terminal.h"
#include "ztk/commands/setting_parts.h"
#include "ztk/model/choice.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

namespace {

std::string ChoiceLine(const Choice &choice, bool current,
                       std::size_t numberWidth) {
  const std::string number = std::to_string(choice.number);
  const std::string line = std::string(numberWidth - number.size(), ' ') +
                           number + "  " + choice.text;
  return (current ? cli::Strong("* " + line) : "  " + line) + "\n";
}

}  // namespace

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

}  // namespace ztk::program
