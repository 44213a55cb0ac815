// SPDX-License-Identifier: MIT
#include "ztk/report/change_report.h"

#include <algorithm>

#include "platform/paths.h"
#include "platform/text.h"
#include "ztk/progress.h"
#include "ztk/system/library_text.h"

namespace ztk::program {

namespace {

std::string InNumbers(std::size_t part, std::size_t all) {
  if (part == all)
    return std::to_string(all) + (all == 1 ? " mixer" : " mixers");
  return std::to_string(part) + " of " + std::to_string(all) + " mixers";
}

bool AllRefused(const Reach &reach) {
  return std::all_of(
      reach.mixers.begin(), reach.mixers.end(),
      [](const Mixer &mixer) { return mixer.state == MixerState::Refused; });
}

// Why the first change that is not stored is not.
std::string WhyNotStored(const MadeChanges &made) {
  for (const MadeChange &change : made.changes) {
    if (!change.notStored.empty()) return change.notStored;
  }
  return "";
}

std::string SettingsFolder() {
  const platform::text::Made library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return "your home folder";
  return Utf8(library.get()) + "/Preferences";
}

// What is sent can be sent again; what is not remembered is lost.
void ReportForgotten(const MadeChanges &made, const std::string &what,
                     Report *report) {
  const std::string remedy = WhyNotStored(made) +
                             "; make sure that you can write to " +
                             SettingsFolder();
  ReportReach(made.reach,
              {.notSent = what + " is neither sent nor remembered",
               .notAnswered = what + " is sent, but not answered, and not "
                                     "remembered",
               .remedy = remedy,
               .someMissing = "once the others do, set it again"},
              report);
  if (made.reach.answered() == 0) {
    report->problem->exit = ExitCode::Failed;
    return;
  }
  if (report->problem) report->warnings.push_back(report->problem->message);
  const bool none =
      std::none_of(made.changes.begin(), made.changes.end(),
                   [](const MadeChange &change) { return change.remembered; });
  report->problem = {.exit = ExitCode::NotRemembered,
                     .message = what + " is " + Described(made.reach) +
                                (none ? ", but not remembered: "
                                      : ", but not all is remembered: ") +
                                remedy};
}

}  // namespace

SharedHistory::SharedHistory() {
  const Progress progress("Waiting for another ztk");
  history_.emplace();
  if (history_->state() == History::State::Busy) {
    throw Failure(ExitCode::Failed, "nothing was done: " + history_->reason() +
                                        "; try again when it has ended");
  }
}

MadeChanges RunStep(const std::string &command,
                    const std::vector<Change> &changes, Report *report) {
  SharedHistory history;
  const Progress progress(kWaitingForMixer);
  MadeStep step = MakeStep(command, changes, history.get());
  if (!step.notRecorded.empty()) {
    report->warnings.push_back("ztk undo will not know of this: " +
                               step.notRecorded);
  }
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
    // With one mixer it is the problem itself.
    if (reach.found() > 1) report->warnings.push_back(mixer.message);
  }
  report->fields["mixers"] = {{"found", reach.found()},
                              {"answered", answered},
                              {"unanswered", std::move(unanswered)}};
  if (answered == reach.found() && answered > 0) return;
  if (answered > 0) {
    report->problem = {.exit = ExitCode::SomeMixers,
                       .message = "only " + InNumbers(answered, reach.found()) +
                                  " answered; " + texts.someMissing};
    return;
  }
  std::string why = "no mixer is attached";
  if (reach.found() == 1) why = reach.mixers.front().message;
  if (reach.found() > 1) {
    why = "none of " + std::to_string(reach.found()) + " mixers answered";
  }
  const bool sent = reach.opened() > 0;
  report->problem = {.exit = ExitCode::NoMixer,
                     .message = (sent ? texts.notAnswered : texts.notSent) +
                                ": " + why + "; " + texts.remedy};
}

std::string Described(const Reach &reach) {
  const std::size_t answered = reach.answered();
  if (answered > 0) return "sent to " + InNumbers(answered, reach.found());
  if (reach.opened() == 0) return "not sent";
  return AllRefused(reach) ? "refused by the mixer" : "sent, but not answered";
}

void ReportOutcome(const MadeChanges &made, const std::string &what,
                   const std::string &again, Report *report) {
  const bool kept = std::all_of(made.changes.begin(), made.changes.end(),
                                [](const MadeChange &change) {
                                  return change.remembered || change.forgotten;
                                });
  if (kept) {
    ReportReach(
        made.reach,
        {.notSent = what + " is remembered, but not sent",
         .notAnswered = what + " is remembered and sent, but not answered",
         .remedy = "once a mixer answers, run: " + again,
         .someMissing = "once the others do, run: " + again},
        report);
  } else {
    ReportForgotten(made, what, report);
  }
  const bool announced =
      std::all_of(made.changes.begin(), made.changes.end(),
                  [](const MadeChange &change) { return change.announced; });
  if (!announced) WarnOfMissingBus(report);
  const auto replaced = std::find_if(
      made.changes.begin(), made.changes.end(),
      [](const MadeChange &change) { return !change.oldFileKept.empty(); });
  if (replaced != made.changes.end()) {
    report->warnings.push_back("the settings file " + replaced->oldFileKept +
                               "; it is kept in " + SettingsFolder() +
                               " under a name with \".unreadable\"");
  }
}

std::string NoteOnSendingAgain(const Change &change) {
  if (IsSentAgain(*change.setting, change.index)) return "";
  return "  ztk apply cannot send this one again; set it once more instead\n";
}

std::string Described(const MadeChange &change, const Reach &reach) {
  const std::string sent =
      change.accepted > 0
          ? "sent to " + InNumbers(change.accepted, reach.found())
          : Described(reach);
  return sent + (change.forgotten    ? ""
                 : change.remembered ? ", remembered"
                                     : ", not remembered");
}

void WarnOfMissingBus(Report *report) {
  report->warnings.emplace_back(
      "not announced, as there is no session bus; see ztk doctor");
}

}  // namespace ztk::program
