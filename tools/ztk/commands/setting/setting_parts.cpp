// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_parts.h"

#include <algorithm>

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/setting/pick.h"
#include "ztk/model/history/sendings.h"
#include "ztk/model/products.h"
#include "ztk/model/remembered.h"

namespace ztk::program {

std::string SeeHelp(const Setting &setting, const char *verb) {
  return std::string("; see ztk ") + setting.name + " " + verb + " --help";
}

std::uint32_t ProductFor(const Setting &setting, const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::kProduct);
  return word == nullptr ? setting.product : ParseProduct(*word);
}

std::optional<std::uint32_t> ParseChannel(const Setting &setting,
                                          const std::string &word) {
  std::string digits = cli::LowerCase(word);
  for (const std::string &name :
       {cli::LowerCase(setting.place), std::string("usb"), std::string("ch")}) {
    if (!digits.starts_with(name)) continue;
    const bool hasSpace = digits.substr(name.size()).starts_with(' ');
    digits.erase(0, name.size() + (hasSpace ? 1 : 0));
    break;
  }
  const auto number = cli::ParseNumber(digits, 1, setting.channels);
  if (!number) return std::nullopt;
  return *number - 1;
}

std::string NearestChannel(const Setting &setting, const std::string &word) {
  return cli::NearestAndAccepted(word, 1, setting.channels);
}

std::optional<std::uint32_t> ChannelFor(const Setting &setting,
                                        const Arguments &arguments) {
  const std::string *word = arguments.Find(Parameter::kChannel);
  if (word == nullptr) return std::nullopt;
  if (const auto channel = ParseChannel(setting, *word)) return channel;
  throw Failure(ExitCode::Usage, std::string(setting.title) +
                                     " has no channel " + cli::Quoted(*word) +
                                     NearestChannel(setting, *word));
}

std::vector<std::uint32_t> ChannelsFor(const Setting &setting,
                                       const Arguments &arguments) {
  if (const auto channel = ChannelFor(setting, arguments)) return {*channel};
  return AllChannels(setting);
}

std::uint32_t RequiredChannel(const Setting &setting,
                              const Arguments &arguments, const char *verb) {
  if (const auto channel = ChannelFor(setting, arguments)) return *channel;
  if (setting.channels == 0) return 0;
  if (!arguments.Has(Parameter::kJson) && CanPick())
    return PickChannel(setting);
  throw Failure(ExitCode::Usage, "a CHANNEL is missing; accepted: 1 to " +
                                     std::to_string(setting.channels) +
                                     SeeHelp(setting, verb));
}

[[noreturn]] void ThrowRejected(const Setting &setting, std::uint32_t product,
                                const std::string &what) {
  throw Failure(ExitCode::Rejected, "the library refuses " + what +
                                        " for the " + ProductName(product) +
                                        ": " + Belonging(setting));
}

void CheckProductAccepted(const Setting &setting, std::uint32_t product,
                          const std::string &what) {
  if (product != setting.product) ThrowRejected(setting, product, what);
}

void AddSettingNames(const Setting &setting, std::uint32_t product,
                     Report *report) {
  report->fields["setting"] = setting.name;
  report->fields["model"] = ModelName(setting);
  report->fields["product"] = ProductName(product);
}

std::string WarnOfUnreadable(const Setting &setting, Report *report) {
  std::string why = WhyUnreadable(setting);
  if (!why.empty()) report->warnings.push_back("cannot read " + why);
  return why;
}

void RequireReadable(const Setting &setting, const std::string &start) {
  const std::string why = WhyUnreadable(setting);
  if (!why.empty()) throw Failure(ExitCode::Failed, start + why);
}

void WarnOfOtherModel(const Setting &setting, std::size_t mixers,
                      Report *report) {
  if (setting.product == kOwnProduct || mixers == 0) return;
  const std::vector<std::uint32_t> attached = AttachedProducts();
  if (attached.empty() || std::find(attached.begin(), attached.end(),
                                    setting.product) != attached.end()) {
    return;
  }
  std::vector<std::string> names;
  for (const std::uint32_t product : attached) {
    names.push_back(ProductName(product));
  }
  report->warnings.push_back(Belonging(setting) +
                             (names.size() == 1
                                  ? " The attached mixer is a "
                                  : " The attached mixers are: ") +
                             cli::Listed(names));
}

void RecordReplaced(const Setting &setting, std::uint32_t channel,
                    std::optional<std::uint32_t> index) {
  const auto remembered = Remembered(setting, channel);
  if (!remembered || remembered == index) return;
  // The record is about the remembered choice: the mixers lack it now.
  RecordSending({{.setting = &setting,
                  .channel = channel,
                  .index = *remembered,
                  .sending = Sending::Replaced}},
                {}, nullptr);
}

DeliveryTexts TextsIfNeverRemembered(const std::string &command) {
  return {.before = "", .again = "run again: " + command};
}

}  // namespace ztk::program
