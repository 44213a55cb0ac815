// SPDX-License-Identifier: MIT
#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/other_commands.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/history/forget.h"
#include "ztk/model/remembered.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

const Setting &SettingNamed(const std::string &word) {
  std::vector<std::string> names;
  for (const Setting *setting : AllSettings()) {
    if (cli::LowerCase(word) == setting->name) return *setting;
    names.emplace_back(setting->name);
  }
  if (cli::LowerCase(word) == "all") {
    throw Failure(ExitCode::Usage,
                  "no setting \"all\"; to forget all of them, run: ztk reset");
  }
  throw Failure(ExitCode::Usage, "no setting " + cli::Quoted(word) +
                                     cli::NearestAndAccepted(word, names));
}

constexpr char kNothingForgotten[] = "nothing was forgotten: cannot read ";

// The values that the arguments name: those of a channel, of a setting, or all.
std::vector<StoredValue> ValuesFor(const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::kSetting);
  if (word == nullptr) {
    for (const Setting *setting : AllSettings()) {
      RequireReadable(*setting, kNothingForgotten);
    }
    return AllStoredValues();
  }
  const Setting &setting = SettingNamed(*word);
  if (setting.channels == 0 && arguments.Has(Parameter::kChannel)) {
    throw Failure(ExitCode::Usage,
                  std::string(setting.title) + " has no channels; leave " +
                      cli::Quoted(arguments.One(Parameter::kChannel)) + " out");
  }
  const std::vector<std::uint32_t> channels = ChannelsFor(setting, arguments);
  RequireReadable(setting, kNothingForgotten);
  return StoredValues(setting, channels);
}

std::string LineOf(const StoredValue &value, const char *what) {
  return NamedValue(*value.setting, value.channel, value.index) + what + "\n";
}

Report PlanOfReset(const std::vector<StoredValue> &values) {
  Report report;
  Plan plan;
  for (const StoredValue &value : values) {
    plan.AddForgetting(*value.setting, value.channel);
  }
  ReportDryRun(plan, &report);
  return report;
}

void AddForgotten(const ForgottenStep &step, Report *report) {
  std::string why;
  for (const ForgottenValue &one : step.values) {
    Json fields =
        ValueFields(*one.value.setting, one.value.channel, one.value.index);
    fields["forgotten"] = one.notForgotten.empty();
    report->fields["settings"].push_back(std::move(fields));
    if (one.notForgotten.empty()) {
      report->text += LineOf(one.value, ", forgotten");
    } else {
      report->text += LineOf(one.value, ", still remembered");
      why = one.notForgotten;
    }
  }
  if (!why.empty()) {
    report->problem = {.exit = ExitCode::Failed,
                       .message = "not everything is forgotten: " + why +
                                  "; to find out what to do, run: ztk doctor"};
  }
}

}  // namespace

Report Reset(const Arguments &arguments) {
  const std::vector<StoredValue> values = ValuesFor(arguments);
  if (arguments.Has(Parameter::kDryRun) && !values.empty()) {
    return PlanOfReset(values);
  }
  Report report;
  report.fields["settings"] = Json::array();
  if (values.empty()) {
    report.text = "Nothing is remembered: nothing to forget.\n";
    return report;
  }
  SharedHistory history;
  const ForgottenStep step = ForgetValues("reset", values, history.get());
  WarnIfNotRecorded(step.notRecorded, &report);
  AddForgotten(step, &report);
  report.text +=
      "Nothing was sent: the mixer keeps its settings until it is switched "
      "off.\n";
  if (step.notRecorded.empty()) {
    report.text += "ztk undo brings back what was forgotten.\n";
  }
  return report;
}

}  // namespace ztk::program
