// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_parts.h"

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/model/products.h"

namespace ztk::program {

std::string SeeHelp(const Family &family, const char *verb) {
  return std::string("; see ztk ") + family.name + " " + verb + " --help";
}

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

std::uint32_t RequiredChannel(const Family &family, const Arguments &arguments,
                              const char *verb) {
  if (const auto channel = ChannelFor(family, arguments)) return *channel;
  if (family.channels == 0) return 0;
  throw Failure(ExitCode::Usage, "N is missing: a channel from 1 to " +
                                     std::to_string(family.channels) +
                                     SeeHelp(family, verb));
}

// What the library answers to words that only it judges.
[[noreturn]] void ThrowRejected(const Family &family, std::uint32_t product,
                                const std::string &what) {
  throw Failure(ExitCode::Rejected, "the library refuses " + what +
                                        " for the " + ProductName(product) +
                                        ": " + Belonging(family));
}

// The one that the library would refuse is refused here too.
void CheckServed(const Family &family, std::uint32_t product,
                 const std::string &what) {
  if (product != family.product) ThrowRejected(family, product, what);
}

void AddFamilyFields(const Family &family, std::uint32_t product,
                     Report *report) {
  report->fields["setting"] = family.name;
  report->fields["model"] = ModelName(family);
  report->fields["product"] = ProductName(product);
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

Outcome NeverRemembered(const std::string &what, const std::string &command) {
  return {.notSent = what + " was not sent",
          .notAnswered = what + " was sent, but not answered",
          .remedy = "it is never remembered, so run " + command + " again",
          .someMissing = "once the others do, run " + command + " again"};
}

}  // namespace ztk::program
