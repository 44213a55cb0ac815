// SPDX-License-Identifier: MIT
//
// Sending what is remembered again.
#include <algorithm>

#include "cli/strings.h"
#include "ztk/commands/setting/setting_commands.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"
#include "ztk/model/resend.h"
#include "ztk/progress.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

std::string NamedValue(const StoredValue &value) {
  return PlaceName(*value.setting, value.channel) + ": " +
         DescribedValue(*value.setting, value.channel, value.index);
}

// How many mixers there were is told once, at the end.
std::string SentOrNot(const StoredValue &value, const Reach &reach) {
  return value.accepted > 0 ? "sent" : Described(reach);
}

void AddSettingFields(const StoredValue &value, Report *report) {
  Json fields;
  fields["setting"] = value.setting->name;
  fields["model"] = ModelName(*value.setting);
  AddValueFields(*value.setting, value.channel, value.index, &fields);
  fields["accepted"] = !value.refused;
  report->fields["settings"].push_back(std::move(fields));
}

void AddSetting(const StoredValue &value, const Reach &reach, Report *report) {
  AddSettingFields(value, report);
  report->text += NamedValue(value) + ", " +
                  (value.refused ? "refused" : SentOrNot(value, reach)) + "\n";
}

// What to do about one that was refused.
std::string Remedy(const StoredValue &value) {
  const Setting &setting = *value.setting;
  if (!ChoiceAt(setting, value.channel, value.index) ||
      IsSentAgain(setting, value.index)) {
    return std::string("choose another one with: ztk ") + setting.name + " set";
  }
  return "only choices 1 to " + std::to_string(setting.sentAgainBelow) +
         " can be sent again; to send this one, set it once more: " +
         SetCommand(setting, value.channel, value.index);
}

// A refused value is the more urgent problem: it does not go away by itself.
void AddRefused(const std::vector<StoredValue> &settings, Report *report) {
  std::vector<std::string> refused;
  std::string remedy;
  for (const StoredValue &value : settings) {
    if (!value.refused) continue;
    refused.push_back(NamedValue(value));
    remedy = Remedy(value);
  }
  if (refused.empty()) return;
  if (report->problem) report->warnings.push_back(report->problem->message);
  report->problem = {.exit = ExitCode::Rejected,
                     .message = "remembered, but refused when sent again: " +
                                cli::Listed(refused) + "; " + remedy};
}

Report PlanOfApply(std::vector<StoredValue> settings) {
  Plan plan;
  Report report;
  report.fields["settings"] = Json::array();
  for (StoredValue &value : settings) {
    value.refused = WouldBeRefused(value);
    if (!value.refused) {
      plan.AddSendingAgain(*value.setting, value.channel, value.index);
    }
    AddSettingFields(value, &report);
  }
  ReportDryRun(plan, &report);
  AddRefused(settings, &report);
  return report;
}

// Settings of other models that a user of several may expect to be sent.
void AddLeftOut(const std::vector<std::string> &models, Report *report) {
  for (const std::string &model : models) {
    report->text += "Not sent: what is remembered for the " + model +
                    "; ztk apply --product " + model + " sends it\n";
    report->fields["leftOut"].push_back(model);
  }
}

Report Apply(std::vector<StoredValue> settings, const std::string &what,
             const Arguments &arguments) {
  Report report;
  report.fields["settings"] = Json::array();
  if (settings.empty()) {
    report.text = "Nothing is remembered for " + what + ": nothing to send.\n";
    return report;
  }
  if (arguments.Has(Parameter::kDryRun)) return PlanOfApply(settings);

  const Reach reach = [&settings] {
    const Progress progress(kWaitingForMixer);
    return SendAgain(&settings);
  }();
  for (const StoredValue &value : settings) {
    AddSetting(value, reach, &report);
  }
  const bool allRefused =
      std::all_of(settings.begin(), settings.end(),
                  [](const StoredValue &value) { return value.refused; });
  if (!allRefused) {
    ReportReach(reach,
                {.notSent = "nothing was sent",
                 .notAnswered = "all was sent, but not answered",
                 .remedy = "what is remembered stays so; try again",
                 .someMissing = "once the others do, run this again"},
                &report);
  }
  AddRefused(settings, &report);
  return report;
}

// Nothing can be sent that cannot be read.
void RequireReadable(const Setting &setting) {
  const std::string why = WhyUnreadable(setting);
  if (why.empty()) return;
  throw Failure(ExitCode::Failed, "nothing was sent: cannot read " + why);
}

}  // namespace

Report ApplySetting(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  const std::vector<std::uint32_t> channels = ChannelsFor(setting, arguments);
  // Throws when the product is not served.
  ServedChoices(setting, product, channels.front());
  if (product != setting.product) {
    throw Failure(ExitCode::Rejected,
                  "nothing is remembered for the " + ProductName(product) +
                      ": " + Belonging(setting) + " Leave --product out");
  }
  RequireReadable(setting);
  return Apply(StoredValues(setting, channels),
               channels.size() == 1 ? PlaceName(setting, channels.front())
                                    : setting.title,
               arguments);
}

Report ApplyAll(const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::kProduct);
  const std::uint32_t product =
      word == nullptr ? kOwnProduct : ParseProduct(*word);
  std::vector<StoredValue> settings;
  std::vector<std::string> leftOut;
  bool known = false;
  for (const Setting *setting : AllSettings()) {
    const std::string model = ModelName(*setting);
    if (setting->product != product) {
      if (word == nullptr &&
          !StoredValues(*setting, ChannelsFor(*setting, {})).empty())
        leftOut.push_back(model);
      continue;
    }
    known = true;
    RequireReadable(*setting);
    for (const StoredValue &value :
         StoredValues(*setting, ChannelsFor(*setting, {}))) {
      settings.push_back(value);
    }
  }
  if (!known) {
    throw Failure(ExitCode::Rejected,
                  "no value belongs to the " + ProductName(product) +
                      "; those of these models are remembered: " +
                      cli::Listed(ModelNames()));
  }
  Report report =
      Apply(std::move(settings), "the " + ProductName(product), arguments);
  AddLeftOut(leftOut, &report);
  return report;
}

}  // namespace ztk::program
