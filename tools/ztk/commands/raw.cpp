// SPDX-License-Identifier: MIT
#include "ztk/commands/setting_commands.h"

#include "cli/strings.h"
#include "ztk/commands/setting_parts.h"
#include "ztk/commands/warning.h"
#include "ztk/model/dry_run.h"
#include "ztk/model/mixers.h"

namespace ztk::program {

namespace {

constexpr std::uint32_t kSources = 16;
constexpr char kAcceptedSources[] = " (SOURCE: 0 to 15)";

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

}  // namespace

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
