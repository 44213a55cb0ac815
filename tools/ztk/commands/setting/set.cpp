// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/setting_commands.h"

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/commands/setting/pick.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/commands/warning.h"
#include "ztk/report/dry_run_report.h"

namespace ztk::program {

namespace {

// The choice that the words name. Without words, asks the user in a terminal.
Choice Choose(const Setting &setting, std::uint32_t product,
              std::uint32_t channel, const Arguments &arguments) {
  const std::string place = PlaceName(setting, channel);
  const std::vector<Choice> choices = ServedChoices(setting, product, channel);
  const std::string *words = arguments.Find(Parameter::kChoice);
  if (words == nullptr && !arguments.Has(Parameter::kJson) && CanPick()) {
    Report list;
    AddChoiceList(setting, product, channel, &list);
    return Pick(place, list.text, choices);
  }
  if (words == nullptr) {
    throw Failure(ExitCode::Usage, "a CHOICE is missing for " + place +
                                       "; accepted: " + Described(choices));
  }
  const Match match = FindChoice(choices, *words);
  if (match.choice) return *match.choice;
  if (match.candidates.empty()) {
    const std::string nearest = NearestChoice(*words, choices);
    const bool listsAll =
        nearest.empty() || choices.size() <= cli::kMaxListedWords;
    throw Failure(
        ExitCode::Usage,
        place + " has no choice " + cli::Quoted(*words) + nearest +
            (listsAll ? "; accepted: " + Described(choices)
                      : std::string("; see ztk ") + setting.name + " list"));
  }
  throw Failure(ExitCode::Usage,
                "choice " + cli::Quoted(*words) +
                    " can mean: " + Described(match.candidates) +
                    "; type more of it, or its number" +
                    SeeHelp(setting, "set"));
}

Report PlanOfSet(const Change &change, const Choice &choice) {
  const Setting &setting = *change.setting;
  CheckProductAccepted(setting, change.product, cli::Quoted(choice.text));
  Plan plan;
  plan.AddChange(change);
  Report report;
  AddSettingNames(setting, change.product, &report);
  AddValueFields(setting, change.channel, change.index, &report.fields);
  ReportDryRun(plan, &report);
  WarnOfOtherModel(setting, plan.mixersThatCanBeOpened(), &report);
  return report;
}

}  // namespace

Report SetChoice(const Setting &setting, const Arguments &arguments) {
  const std::uint32_t product = ProductFor(setting, arguments);
  const std::uint32_t channel = RequiredChannel(setting, arguments, "set");
  const std::string place = PlaceName(setting, channel);
  const Choice choice = Choose(setting, product, channel, arguments);
  const Change wanted{.setting = &setting,
                      .product = product,
                      .channel = channel,
                      .index = choice.number - 1};
  if (arguments.Has(Parameter::kDryRun)) return PlanOfSet(wanted, choice);

  Report report;
  const MadeChanges made = RunStep(std::string(setting.name) + " set", {wanted},
                                   arguments.Has(Parameter::kQuiet), &report);
  const MadeChange &change = made.changes.front();
  if (change.result == ZTK_REJECTED) {
    ThrowRejected(setting, product, cli::Quoted(choice.text));
  }
  AddSettingNames(setting, product, &report);
  AddValueFields(setting, channel, change.change.index, &report.fields);
  report.fields["result"] = change.result;
  report.fields["remembered"] = change.remembered;
  report.fields["announced"] = change.announced;
  // A mixer that was off has lost its other choices too, so all are sent.
  ReportOutcome(made, place,
                "run: " + ApplyCommand(setting, channel, wanted.index),
                &report);
  report.text = place + ": " + Described(choice) + Described(change, made) +
                "\n" + NoteOnSendingAgain(wanted);
  WarnOfOtherModel(setting, made.reach.answered(), &report);
  if (change.result == ZTK_WARNING && change.selectorsKnown) {
    ExplainWarning(channel, Described(choice), made.reach, &report);
  }
  return report;
}

}  // namespace ztk::program
