// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include "api/input_audio.h"
#include "cli/strings.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/commands/warning.h"
#include "ztk/report/dry_run_report.h"

namespace ztk::program {

namespace {

// HIGH or SOURCE.
std::uint32_t RawNumber(const Arguments &arguments, const char *name) {
  const std::string &word = *arguments.Find(name);
  const auto number = cli::ParseDecimalOrHex(word);
  if (number) return *number;
  throw Failure(ExitCode::Usage,
                std::string(name) + " is not a number: " + cli::Quoted(word) +
                    "; accepted: decimal, or hexadecimal after 0x" +
                    SeeHelp(kInput, "raw"));
}

// A value that is not a choice.
struct RawValue {
  std::uint32_t channel;
  std::uint32_t high;
  std::uint32_t source;

  std::string InWords() const {
    return "HIGH " + std::to_string(high) + ", SOURCE " +
           std::to_string(source);
  }
};

void AddRawFields(const Setting &setting, const RawValue &raw, Report *report) {
  report->fields["channel"] = ChannelField(setting, raw.channel);
  report->fields["high"] = raw.high;
  report->fields["source"] = raw.source;
}

[[noreturn]] void ThrowRefused(const Setting &setting, std::uint32_t product,
                               const RawValue &raw) {
  if (product != setting.product || raw.source < input_audio::kSources) {
    ThrowRejected(setting, product, raw.InWords());
  }
  throw Failure(ExitCode::Rejected,
                "SOURCE is too large: " + std::to_string(raw.source) +
                    "; accepted: 0 to " +
                    std::to_string(input_audio::kSources - 1) +
                    SeeHelp(setting, "raw"));
}

Report DryRunOfRaw(const Setting &setting, std::uint32_t product,
                   const RawValue &raw) {
  CheckProductAccepted(setting, product, raw.InWords());
  if (raw.source >= input_audio::kSources) ThrowRefused(setting, product, raw);
  Plan plan;
  plan.AddRaw(raw.channel, raw.high, raw.source);
  Report report;
  AddSettingNames(setting, product, &report);
  AddRawFields(setting, raw, &report);
  ReportDryRun(plan, &report);
  return report;
}

}  // namespace

Report SendRaw(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  const std::uint32_t channel = RequiredChannel(setting, arguments, "raw");
  const RawValue raw{.channel = channel,
                     .high = RawNumber(arguments, Parameter::kHigh),
                     .source = RawNumber(arguments, Parameter::kSource)};
  if (arguments.Has(Parameter::kDryRun)) {
    return DryRunOfRaw(setting, product, raw);
  }
  RecordedCalls calls;
  const ZTKResult result = [&] {
    const Progress progress = WaitForRequests(RequestsOf(setting));
    return calls.Call([&] {
      return ZTK_SetUSBInputAudioDirect(product, channel, raw.high, raw.source);
    });
  }();
  if (result == ZTK_REJECTED) ThrowRefused(setting, product, raw);
  if (calls.acceptedLast() > 0) RecordReplaced(setting, channel, std::nullopt);
  Report report;
  AddSettingNames(setting, product, &report);
  AddRawFields(setting, raw, &report);
  report.fields["result"] = result;
  report.text = PlaceName(setting, channel) + ": " + raw.InWords() +
                Sent(calls.acceptedLast(), calls.reach(), false) +
                ", not remembered\n";
  ReportReach(calls.reach(), TextsIfNeverRemembered("ztk input raw"), &report);
  if (result == ZTK_WARNING) {
    ExplainWarning(channel, "this source", calls.reach(), &report);
  }
  return report;
}

}  // namespace ztk::program
