// SPDX-License-Identifier: MIT
//
// Sending what is remembered again.
#include <algorithm>

#include "cli/strings.h"
#include "ztk/commands/setting_commands.h"
#include "ztk/commands/setting_parts.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/mixers.h"
#include "ztk/model/products.h"
#include "ztk/model/settings_snapshot.h"

namespace ztk::program {

namespace {

// A setting that has a value in its file.
struct Setting {
  const Family *family;
  std::uint32_t channel;
  std::uint32_t index;
  bool refused = false;
};

void AddRemembered(const Family &family,
                   const std::vector<std::uint32_t> &channels,
                   std::vector<Setting> *settings) {
  for (const std::uint32_t channel : channels) {
    const auto index = Remembered(family, channel);
    if (!index) continue;
    settings->push_back(
        {.family = &family, .channel = channel, .index = *index});
  }
}

bool IsRemembered(const Family &family) {
  std::vector<Setting> settings;
  AddRemembered(family, ChannelsFor(family, {}), &settings);
  return !settings.empty();
}

// The library addresses its values across the channels: a remembered number
// behind a channel's choices would send a value of another channel, which is
// not what was remembered.
bool BelongsToItsChannel(const Setting &setting) {
  const Family &family = *setting.family;
  const std::size_t choices =
      ChoicesOf(family, family.product, setting.channel).size();
  return setting.index < choices + family.placeholders;
}

void SendAgain(Setting *setting) {
  const Family &family = *setting->family;
  setting->refused =
      !BelongsToItsChannel(*setting) ||
      family.sendAgain(family.product, setting->channel) != ZTK_SUCCESS;
}

std::string NamedValue(const Setting &setting) {
  return PlaceName(*setting.family, setting.channel) + ": " +
         DescribedValue(*setting.family, setting.channel, setting.index);
}

// How many mixers there were is told once, at the end.
std::string SentOrNot(const Reach &reach) {
  return reach.answered() > 0 ? "sent" : Described(reach);
}

void AddSettingFields(const Setting &setting, Report *report) {
  Json fields;
  fields["setting"] = setting.family->name;
  fields["model"] = ModelName(*setting.family);
  AddValueFields(*setting.family, setting.channel, setting.index, &fields);
  fields["accepted"] = !setting.refused;
  report->fields["settings"].push_back(std::move(fields));
}

void AddSetting(const Setting &setting, const Reach &reach, Report *report) {
  AddSettingFields(setting, report);
  report->text += NamedValue(setting) + ", " +
                  (setting.refused ? "refused" : SentOrNot(reach)) + "\n";
}

// What to do about one that was refused.
std::string Remedy(const Setting &setting) {
  const Family &family = *setting.family;
  if (!ChoiceAt(family, setting.channel, setting.index) ||
      IsSentAgain(family, setting.index)) {
    return std::string("choose another one with: ztk ") + family.name + " set";
  }
  return "only choices 1 to " + std::to_string(family.sentAgainBelow) +
         " can be sent again; to send this one, set it once more: " +
         SetCommand(family, setting.channel, setting.index);
}

// A refused value is the more urgent problem: it does not go away by itself.
void AddRefused(const std::vector<Setting> &settings, Report *report) {
  std::vector<std::string> refused;
  std::string remedy;
  for (const Setting &setting : settings) {
    if (!setting.refused) continue;
    refused.push_back(NamedValue(setting));
    remedy = Remedy(setting);
  }
  if (refused.empty()) return;
  if (report->problem) report->warnings.push_back(report->problem->message);
  report->problem = {.exit = ExitCode::Rejected,
                     .message = "remembered, but refused when sent again: " +
                                cli::Listed(refused) + "; " + remedy};
}

// Without asking the library, which would send.
bool WouldBeRefused(const Setting &setting) {
  return !BelongsToItsChannel(setting) ||
         !IsSentAgain(*setting.family, setting.index);
}

Report PlanOfApply(std::vector<Setting> settings) {
  Plan plan;
  Report report;
  report.fields["settings"] = Json::array();
  std::size_t refused = 0;
  for (Setting &setting : settings) {
    setting.refused = WouldBeRefused(setting);
    if (setting.refused) {
      ++refused;
    } else {
      plan.AddSendingAgain(*setting.family, setting.channel, setting.index);
    }
    AddSettingFields(setting, &report);
  }
  if (refused < settings.size()) plan.AddQuestion();
  plan.Tell(&report);
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

Report Apply(std::vector<Setting> settings, const std::string &what,
             const Arguments &arguments) {
  Report report;
  report.fields["settings"] = Json::array();
  if (settings.empty()) {
    report.text = "Nothing is remembered for " + what + ": nothing to send.\n";
    return report;
  }
  if (arguments.Has(Parameter::DryRun)) return PlanOfApply(settings);

  const Sent sent = SendAndLook([&settings] {
    ZTKResult all = ZTK_REJECTED;
    for (Setting &setting : settings) {
      SendAgain(&setting);
      if (!setting.refused) all = ZTK_SUCCESS;
    }
    return all;
  });
  for (const Setting &setting : settings) {
    AddSetting(setting, sent.reach, &report);
  }
  if (sent.result != ZTK_REJECTED) {
    AddReach(sent.reach,
             {.notSent = "nothing was sent",
              .notAnswered = "all was sent, but not answered",
              .remedy = "what is remembered stays so; try again",
              .someMissing = "once the others do, run this again"},
             &report);
  }
  AddRefused(settings, &report);
  return report;
}

}  // namespace

Report ApplyFamily(const Family &family, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(family, arguments);
  const std::vector<std::uint32_t> channels = ChannelsFor(family, arguments);
  // Throws when the product is not served.
  ChoicesOf(family, product, channels.front());
  if (product != family.product) {
    throw Failure(ExitCode::Rejected,
                  "nothing is remembered for the " + ProductName(product) +
                      ": " + Belonging(family) + " Leave --product out");
  }
  std::vector<Setting> settings;
  AddRemembered(family, channels, &settings);
  return Apply(
      std::move(settings),
      channels.size() == 1 ? PlaceName(family, channels.front()) : family.title,
      arguments);
}

Report ApplyAll(const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::Product);
  const std::uint32_t product =
      word == nullptr ? kOwnProduct : ParseProduct(*word);
  std::vector<Setting> settings;
  std::vector<std::string> models;
  std::vector<std::string> leftOut;
  bool known = false;
  for (const Family *family : Families()) {
    const std::string model = ModelName(*family);
    if (std::find(models.begin(), models.end(), model) == models.end()) {
      models.push_back(model);
    }
    if (family->product != product) {
      if (word == nullptr && IsRemembered(*family)) leftOut.push_back(model);
      continue;
    }
    known = true;
    AddRemembered(*family, ChannelsFor(*family, {}), &settings);
  }
  if (!known) {
    throw Failure(
        ExitCode::Rejected,
        "no setting belongs to the " + ProductName(product) +
            "; those of these models are remembered: " + cli::Listed(models));
  }
  Report report =
      Apply(std::move(settings), "the " + ProductName(product), arguments);
  AddLeftOut(leftOut, &report);
  return report;
}

}  // namespace ztk::program
