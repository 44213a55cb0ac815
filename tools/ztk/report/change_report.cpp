// SPDX-License-Identifier: MIT
#include "ztk/report/change_report.h"

#include <unistd.h>

#include <algorithm>

#include "cli/terminal.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "store/settings_path.h"
#include "ztk/model/kept_files.h"
#include "ztk/output.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/library_text.h"

namespace ztk::program {

namespace {

constexpr char kSwitchOffAndOn[] = "switch it off and on again, then ";

std::string InNumbers(std::size_t part, std::size_t all) {
  if (part == all)
    return std::to_string(all) + (all == 1 ? " mixer" : " mixers");
  return std::to_string(part) + " of " + std::to_string(all) + " mixers";
}

bool All(const Reach &reach, MixerState state) {
  return std::all_of(
      reach.mixers.begin(), reach.mixers.end(),
      [state](const Mixer &mixer) { return mixer.state == state; });
}

// Why nothing has arrived, as the rest of a sentence, and what to do first.
struct Obstruction {
  std::string why;
  std::string remedy;
};

Obstruction ObstructionOf(const Mixer &mixer) {
  switch (mixer.state) {
    case MixerState::Silent:
      return {.why = "the mixer did not answer", .remedy = kSwitchOffAndOn};
    case MixerState::Refused:
      return {.why = "the mixer refused it", .remedy = kSwitchOffAndOn};
    case MixerState::Gone:
      return {.why = "the mixer was unplugged or switched off",
              .remedy = "once it is back, "};
    case MixerState::NotOpened:
      return {.why = "not sent: " + mixer.message, .remedy = "then "};
    case MixerState::Answered:
    case MixerState::Failed:
      break;
  }
  return {.why = mixer.message, .remedy = ""};
}

Obstruction ObstructionOf(const Reach &reach) {
  if (reach.found() == 0) {
    return {.why = "not sent: no mixer is attached",
            .remedy = "when one is attached, "};
  }
  if (reach.found() == 1) return ObstructionOf(reach.mixers.front());
  const std::string none =
      "none of " + std::to_string(reach.found()) + " mixers ";
  if (All(reach, MixerState::Refused)) {
    return {.why = none + "accepted it", .remedy = "once they do, "};
  }
  return {.why = (reach.opened() == 0 ? "not sent: " : "") + none + "answered",
          .remedy = "once they do, "};
}

// What to do first about the mixers that have not accepted a change, while
// others have.
std::string RemedyForOthers(const Reach &reach) {
  const auto stuck = static_cast<std::size_t>(std::count_if(
      reach.mixers.begin(), reach.mixers.end(), [](const Mixer &mixer) {
        return mixer.state == MixerState::Silent ||
               mixer.state == MixerState::Refused;
      }));
  if (stuck < reach.found() - reach.answered()) {
    return "when the others are ready, ";
  }
  return stuck == 1 ? "switch the other one off and on again, then "
                    : "switch the others off and on again, then ";
}

// The reason of the first change that could not be stored.
std::string WhyNotStored(const MadeChanges &made) {
  for (const MadeChange &change : made.changes) {
    if (!change.notStored.empty()) return change.notStored;
  }
  return "";
}

std::string SettingsFolder() {
  const platform::text::OwnedText library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return "your home folder";
  return Utf8(library.get()) + "/Preferences";
}

// A value that was not sent can be sent again; a value that was not remembered
// is lost.
void ReportForgotten(const MadeChanges &made, const std::string &what,
                     Report *report) {
  const std::string remedy = WhyNotStored(made) +
                             "; make sure that you can write to " +
                             SettingsFolder();
  ReportReach(made.reach, {.before = "", .again = "set it again"}, report);
  if (made.reach.answered() == 0) {
    report->problem = {.exit = ExitCode::Failed,
                       .message = what + " is not remembered: " + remedy +
                                  "; and " + ObstructionOf(made.reach).why};
    return;
  }
  const bool none = std::none_of(made.changes.begin(), made.changes.end(),
                                 [](const MadeChange &change) {
                                   return change.remembered || change.forgotten;
                                 });
  report->SetProblem({.exit = ExitCode::NotRemembered,
                      .message = what +
                                 (none ? " is not remembered: "
                                       : ": not all is remembered: ") +
                                 remedy});
}

void ReportAnnouncements(const MadeChanges &made, Report *report) {
  const bool failed = std::any_of(
      made.changes.begin(), made.changes.end(),
      [](const MadeChange &change) { return change.announcementFailed; });
  if (failed) WarnOfFailedAnnouncement(report);
}

void ReportReplacedFile(const MadeChanges &made, Report *report) {
  const auto replaced = std::find_if(
      made.changes.begin(), made.changes.end(),
      [](const MadeChange &change) { return !change.oldFileKept.empty(); });
  if (replaced == made.changes.end()) return;
  const platform::text::OwnedText path(
      store::MakePath(replaced->change.setting->model));
  const std::string file = Utf8(path.get());
  std::string warning = "the settings file " + replaced->oldFileKept +
                        "; its other settings are not remembered any longer";
  if (const auto kept = KeptFiles(file); !kept.empty()) {
    warning += "; it is kept as " + kept.back() + "; to bring it back" +
               (replaced->wasDamaged ? ", once it is repaired: " : ": ") +
               BringBackCommand(kept.back(), file);
  }
  report->warnings.push_back(warning);
}

// The words before the reason why nothing has arrived.
std::string SavedWords(const MadeChanges &made, const std::string &what) {
  const auto forgotten = static_cast<std::size_t>(
      std::count_if(made.changes.begin(), made.changes.end(),
                    [](const MadeChange &one) { return one.forgotten; }));
  if (forgotten == 0) return what + " is saved, but ";
  if (forgotten < made.changes.size()) {
    return "the change is saved, but ";
  }
  const bool sent = !ObstructionOf(made.reach).why.starts_with("not sent: ");
  return std::string("nothing is remembered, and the default") +
         (forgotten == 1 ? " was " : "s were ") + (sent ? "sent, but " : "");
}

// The command that sends a stored value again.
std::string CommandFor(const Change &change) {
  return change.forgets
             ? DefaultCommand(change)
             : ApplyCommand(*change.setting, change.channel, change.index);
}

// Whether the value has to be sent again when not every mixer has accepted all
// values: a choice is always sent again, together with the others of its model;
// a default only if not every mixer has accepted it.
bool NeedsSending(const MadeChange &one, const MadeChanges &made) {
  return !one.change.forgets || one.accepted < made.reach.found() ||
         made.reach.found() == 0;
}

}  // namespace

std::string DefaultCommand(const Change &change) {
  const Setting &setting = *change.setting;
  if (&setting != &kOutput) {
    return SetCommand(setting, change.channel, change.index);
  }
  return "ztk output default " + std::to_string(change.channel + 1);
}

std::string SendingAgain(const MadeChanges &made) {
  std::vector<std::string> commands;
  bool remembersDefault = false;
  for (const Setting *setting : AllSettings()) {
    for (const MadeChange &one : made.changes) {
      if (one.change.setting != setting || !NeedsSending(one, made)) continue;
      if (one.change.forgets && setting != &kOutput) remembersDefault = true;
      commands.push_back(CommandFor(one.change));
    }
  }
  return (remembersDefault ? "run (set also remembers the default): "
                           : "run: ") +
         Joined(commands);
}

Progress WaitForRequests(std::size_t requests) {
  const std::size_t mixers = MixerPlaces().size();
  return Progress(mixers < 2
                      ? kWaitingForMixer
                      : "Waiting for " + std::to_string(mixers) + " mixers",
                  static_cast<int>(requests * mixers));
}

Progress WaitForChanges(const std::vector<Change> &changes) {
  std::size_t requests = 0;
  for (const Change &change : changes) requests += RequestsOf(*change.setting);
  return WaitForRequests(requests);
}

std::size_t RequestsOf(const Setting &setting) {
  return setting.selectorLength == 0 ? 1 : 2;
}

SharedHistory::SharedHistory() {
  const Progress progress("Waiting for another ztk", 5);
  history_.emplace();
  if (history_->state() == History::State::Busy) {
    throw Failure(ExitCode::Failed, "nothing was done: " + history_->reason() +
                                        "; try again when it has ended");
  }
}

void WarnIfNotRecorded(const std::string &why, Report *report) {
  if (why.empty()) return;
  report->warnings.push_back(
      "ztk undo will not be able to undo this change, because it was not "
      "recorded: " +
      why);
}

MadeChanges RunStep(const std::string &command,
                    const std::vector<Change> &changes, bool quiet,
                    Report *report) {
  SharedHistory history;
  if (!quiet && cli::IsTerminal(STDERR_FILENO)) {
    const std::size_t mixers = MixerPlaces().size();
    if (mixers > 1) {
      WriteError("sending to " + std::to_string(mixers) + " mixers");
    }
  }
  const Progress progress = WaitForChanges(changes);
  MadeStep step = MakeStep(command, changes, history.get());
  WarnIfNotRecorded(step.notRecorded, report);
  return std::move(step.made);
}

void ReportReach(const Reach &reach, const DeliveryTexts &texts,
                 Report *report) {
  Json unanswered = Json::array();
  const std::size_t answered = reach.answered();
  for (const Mixer &mixer : reach.mixers) {
    if (mixer.state == MixerState::Answered) continue;
    unanswered.push_back({{"mixer", mixer.number},
                          {"reason", mixer.reason},
                          {"message", mixer.message}});
    // With a single mixer this is the problem itself.
    if (reach.found() > 1) report->warnings.push_back(mixer.message);
  }
  report->fields["mixers"] = {{"found", reach.found()},
                              {"answered", answered},
                              {"unanswered", std::move(unanswered)}};
  if (answered == reach.found() && answered > 0) return;
  if (answered > 0) {
    report->problem = {.exit = ExitCode::SomeMixers,
                       .message = "only " + InNumbers(answered, reach.found()) +
                                  " accepted the change; " +
                                  RemedyForOthers(reach) + texts.again};
    return;
  }
  const Obstruction obstruction = ObstructionOf(reach);
  report->problem = {.exit = ExitCode::NoMixer,
                     .message = texts.before + obstruction.why + "; " +
                                obstruction.remedy + texts.again};
}

std::string Sent(std::size_t accepted, const Reach &reach, bool others) {
  if (accepted > 0) return ", sent to " + InNumbers(accepted, reach.found());
  return others ? ", not accepted" : "";
}

void ReportOutcome(const MadeChanges &made, const std::string &what,
                   const std::string &again, Report *report) {
  const bool kept = std::all_of(made.changes.begin(), made.changes.end(),
                                [](const MadeChange &change) {
                                  return change.remembered || change.forgotten;
                                });
  if (kept) {
    ReportReach(made.reach, {.before = SavedWords(made, what), .again = again},
                report);
  } else {
    ReportForgotten(made, what, report);
  }
  ReportAnnouncements(made, report);
  ReportReplacedFile(made, report);
}

std::string NoteOnSendingAgain(const Change &change) {
  if (IsSentAgain(*change.setting, change.index)) return "";
  return "  " + ResendLimit(*change.setting) + "\n";
}

std::string Described(const MadeChange &change, const MadeChanges &made) {
  const bool others =
      std::any_of(made.changes.begin(), made.changes.end(),
                  [](const MadeChange &other) { return other.accepted > 0; });
  const std::string sent = Sent(change.accepted, made.reach, others);
  // Otherwise the problem says why nothing was sent, and what is remembered.
  if (sent.empty() || change.forgotten) return sent;
  return sent + (change.remembered ? ", remembered" : ", not remembered");
}

void WarnOfFailedAnnouncement(Report *report) {
  report->warnings.emplace_back(
      "not announced: the session's message bus does not answer; see ztk "
      "doctor");
}

}  // namespace ztk::program
