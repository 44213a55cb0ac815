// SPDX-License-Identifier: MIT
//
// Sends remembered choices again.
#include <algorithm>

#include "cli/strings.h"
#include "ztk/commands/setting/setting_commands.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"
#include "ztk/model/resend.h"
#include "ztk/model/silence.h"
#include "ztk/report/change_report.h"
#include "ztk/report/dry_run_report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

constexpr char kNothingSent[] = "nothing was sent: cannot read ";

std::string Named(const StoredValue &value) {
  return NamedValue(*value.setting, value.channel, value.index);
}

void AddSettingFields(const StoredValue &value, Report *report) {
  Json fields = ValueFields(*value.setting, value.channel, value.index);
  fields["accepted"] = !value.refused;
  report->fields["settings"].push_back(std::move(fields));
}

void AddSetting(const StoredValue &value, const Reach &reach, bool others,
                Report *report) {
  AddSettingFields(value, report);
  std::string sent = Sent(value.accepted, reach, others);
  // With a single mixer the number of mixers is not needed.
  if (value.accepted > 0 && reach.found() == 1) sent = ", sent";
  report->text += Named(value) + (value.refused ? ", refused" : sent) + "\n";
}

// What the user can do about a refused value.
std::string Remedy(const StoredValue &value) {
  const Setting &setting = *value.setting;
  if (!ChoiceAt(setting, value.channel, value.index) ||
      IsSentAgain(setting, value.index)) {
    return std::string("choose another one with: ztk ") + setting.name +
           " set" +
           (setting.channels == 0 ? ""
                                  : " " + std::to_string(value.channel + 1));
  }
  return ResendLimit(setting) + ": " +
         SetCommand(setting, value.channel, value.index);
}

// A refused value is reported first: only the user can correct it.
void AddRefused(const std::vector<StoredValue> &settings, Report *report) {
  std::vector<std::string> refused;
  std::string remedy;
  for (const StoredValue &value : settings) {
    if (!value.refused) continue;
    refused.push_back(Named(value));
    remedy = Remedy(value);
  }
  if (refused.empty()) return;
  report->SetProblem({.exit = ExitCode::Rejected,
                      .message = "remembered, but refused when sent again: " +
                                 cli::Listed(refused) + "; " + remedy});
}

// Warns for each setting with a value for which `isSent` returns true.
template <typename IsSent>
void WarnOfOtherModels(const std::vector<StoredValue> &settings,
                       const IsSent &isSent, std::size_t mixers,
                       Report *report) {
  for (const Setting *setting : AllSettings()) {
    const bool sent = std::any_of(
        settings.begin(), settings.end(), [&](const StoredValue &value) {
          return value.setting == setting && isSent(value);
        });
    if (sent) WarnOfOtherModel(*setting, mixers, report);
  }
}

Report ReportOfDryRun(std::vector<StoredValue> settings) {
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
  WarnOfOtherModels(
      settings, [](const StoredValue &value) { return !value.refused; },
      plan.mixersThatCanBeOpened(), &report);
  return report;
}

// Asks the mixers only when a value that was sent needs an input selector.
void WarnOfSilence(const std::vector<StoredValue> &settings, const Reach &reach,
                   Report *report) {
  std::vector<std::uint32_t> channels;
  for (const StoredValue &value : settings) {
    if (value.setting == &kInput && value.accepted > 0 &&
        NeedsSelector(value.channel, value.index)) {
      channels.push_back(value.channel);
    }
  }
  if (channels.empty()) return;
  const Progress progress(kWaitingForMixer, kLongestQuestion);
  const std::vector<SilentRouting> silent =
      FindSilentRoutings(AskForSelectors(), RecordedSending());
  for (const SilentRouting &routing : silent) {
    if (std::find(channels.begin(), channels.end(), routing.channel) !=
        channels.end()) {
      report->warnings.push_back(Described(routing, reach.found() > 1));
    }
  }
}

// Remembered settings of other models, which a user with several models may
// expect to be sent too.
void AddLeftOut(const std::vector<std::string> &models, Report *report) {
  for (const std::string &model : models) {
    report->text += "Not sent: what is remembered for the " + model +
                    "; ztk apply --all sends it too\n";
    report->fields["leftOut"].push_back(model);
  }
}

// `command` is the command, without a channel, that the report suggests if a
// mixer was not reached.
Report Apply(std::vector<StoredValue> settings, const std::string &what,
             const std::string &command, const Arguments &arguments) {
  Report report;
  report.fields["settings"] = Json::array();
  if (settings.empty()) {
    report.text = "Nothing is remembered for " + what + ": nothing to send.\n";
    return report;
  }
  if (arguments.Has(Parameter::kDryRun)) return ReportOfDryRun(settings);

  const Reach reach = [&settings] {
    const Progress progress = WaitForRequests(settings.size());
    return SendAgain(&settings);
  }();
  const bool any =
      std::any_of(settings.begin(), settings.end(),
                  [](const StoredValue &value) { return value.accepted > 0; });
  for (const StoredValue &value : settings) {
    AddSetting(value, reach, any, &report);
  }
  const bool allRefused =
      std::all_of(settings.begin(), settings.end(),
                  [](const StoredValue &value) { return value.refused; });
  if (!allRefused) {
    ReportReach(
        reach,
        {.before = any ? "sent in part: " : "", .again = "run: " + command},
        &report);
  }
  AddRefused(settings, &report);
  WarnOfOtherModels(
      settings, [](const StoredValue &value) { return value.accepted > 0; },
      reach.answered(), &report);
  WarnOfSilence(settings, reach, &report);
  return report;
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
  RequireReadable(setting, kNothingSent);
  return Apply(StoredValues(setting, channels),
               channels.size() == 1 ? PlaceName(setting, channels.front())
                                    : setting.title,
               std::string("ztk ") + setting.name + " apply", arguments);
}

namespace {

// The remembered values of the model; of every model when none is named.
std::vector<StoredValue> ValuesOf(std::optional<std::uint32_t> product) {
  std::vector<StoredValue> values;
  for (const Setting *setting : AllSettings()) {
    if (product && setting->product != *product) continue;
    RequireReadable(*setting, kNothingSent);
    for (const StoredValue &value :
         StoredValues(*setting, AllChannels(*setting))) {
      values.push_back(value);
    }
  }
  return values;
}

// Returns the values that "ztk apply" sends if the user names no model: those
// of the VRM-D6 or, if nothing is remembered for it, those of all sister
// models. Adds each model whose values are not returned to *leftOut.
std::vector<StoredValue> UsualValues(std::vector<std::string> *leftOut) {
  std::vector<StoredValue> values = ValuesOf(std::nullopt);
  const auto isOwn = [](const StoredValue &value) {
    return value.setting->product == kOwnProduct;
  };
  if (std::none_of(values.begin(), values.end(), isOwn)) return values;
  std::erase_if(values, [&](const StoredValue &value) {
    if (isOwn(value)) return false;
    const std::string model = ModelName(*value.setting);
    if (std::find(leftOut->begin(), leftOut->end(), model) == leftOut->end()) {
      leftOut->push_back(model);
    }
    return true;
  });
  return values;
}

void RequireSettings(std::uint32_t product) {
  const auto settings = AllSettings();
  if (std::any_of(settings.begin(), settings.end(),
                  [product](const Setting *setting) {
                    return setting->product == product;
                  })) {
    return;
  }
  throw Failure(ExitCode::Rejected,
                "the " + ProductName(product) +
                    " has no settings; models with settings: " +
                    cli::Listed(ModelNames()));
}

}  // namespace

Report ApplyAll(const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::kProduct);
  const bool all = arguments.Has(Parameter::kAll);
  if (word != nullptr && all) {
    throw Failure(ExitCode::Usage,
                  "--all and --product cannot be used together; leave one out");
  }
  if (word != nullptr) {
    const std::uint32_t product = ParseProduct(*word, ModelNames());
    RequireSettings(product);
    return Apply(ValuesOf(product), "the " + ProductName(product),
                 "ztk apply --product " + ProductName(product), arguments);
  }
  std::vector<std::string> leftOut;
  Report report =
      Apply(all ? ValuesOf(std::nullopt) : UsualValues(&leftOut), "any model",
            all ? "ztk apply --all" : "ztk apply", arguments);
  AddLeftOut(leftOut, &report);
  return report;
}

}  // namespace ztk::program
