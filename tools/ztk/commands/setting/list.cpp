// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include "cli/terminal.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/remembered.h"
#include "ztk/report/unsent_report.h"

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

void AddChoiceList(const Setting &setting, std::uint32_t product,
                   std::uint32_t channel, Report *report) {
  const std::vector<Choice> choices = ServedChoices(setting, product, channel);
  const auto current = CurrentIndex(setting, product, channel);
  const bool remembered = current && Remembered(setting, channel);
  std::string &text = report->text;
  text += "\n" + PlaceName(setting, channel);
  if (!current) {
    text += " (listed only)";
  } else if (!remembered) {
    text += " (nothing is remembered; * marks the default)";
  } else if (*current >= choices.size()) {
    text += " (remembered: " + DescribedValue(setting, channel, *current) + ")";
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
      {{"channel", ChannelField(setting, channel)},
       {"remembered", remembered},
       {"choices", std::move(list)}});
}

Report ListChoices(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  Report report;
  report.isAnswer = true;
  AddSettingNames(setting, product, &report);
  report.fields["channels"] = Json::array();
  if (!arguments.Has(Parameter::kQuiet)) {
    report.text =
        Belonging(setting) +
        "\nA * marks the remembered choice, or the default if nothing "
        "is remembered.\n";
  }
  WarnOfUnreadable(setting, &report);
  const std::vector<std::uint32_t> channels = ChannelsFor(setting, arguments);
  for (const std::uint32_t channel : channels) {
    AddChoiceList(setting, product, channel, &report);
  }
  if (!arguments.Has(Parameter::kQuiet) && product == setting.product) {
    AddUnsent(RememberedChoicesOf(setting, channels), RecordedSending(),
              &report);
  }
  return report;
}

}  // namespace ztk::program
