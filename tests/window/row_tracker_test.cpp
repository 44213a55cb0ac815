// SPDX-License-Identifier: MIT
//
// How rows change when steps end, when settings are read and when mixers come
// and go; also in orders that are rare outside of a test.
#include "window/engine/row_tracker.h"

#include <QTest>
#include <memory>

#include "window/registry.h"
#include "window/states.h"

namespace ztk::window {

using model::kBoost;

class RowTrackerTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void BeginsWithNothingKnown();
  void ConfirmsItsOwnChoice();
  void ClaimsNothingThatAnotherProgramHasChangedAtOnce();
  void ClaimsNothingAfterAnotherProgram();
  void KeepsTheNewerChoice();
  void ClaimsNothingThatWasNotStored();
  void CountsANewMixerThatAStepHasReached();
  void ForgetsOtherRowsWhenAStepFindsANewMixer();
  void KeepsAChoiceThatIsMadeBeforeTheMixersAreRead();
  void CountsAMixerThatIsGoneAsUnplugged();
  void KeepsAReasonWhileTheMixersAreTheSame();
  void KeepsAReasonFromBeforeTheMixersAreRead();
  void KeepsWhyAChoiceWasNotStored();

 private:
  RowState &Boost() { return RowOf(&state_, kBoost, 0); }
  RowState &Input() { return RowOf(&state_, model::kInput, 0); }
  // What is stored, if the output level is this one.
  StoredState Stored(std::optional<std::uint32_t> boost) const;
  // The step that sets the output level ends: two mixers have accepted it.
  StepOutcome Sent(std::uint32_t index) const;
  static MixerState Mixer(int number, MixerAnswer answer);
  void Read(const QList<MixerState> &mixers);

  State state_;
  std::unique_ptr<RowTracker> tracker_;
};

void RowTrackerTest::init() {
  state_ = State();
  tracker_ = std::make_unique<RowTracker>(&state_);
}

StoredState RowTrackerTest::Stored(std::optional<std::uint32_t> boost) const {
  StoredState stored;
  for (const RowState &row : state_.rows) {
    stored.rows.append({.stored = row.setting == &kBoost ? boost : std::nullopt,
                        .unreadable = {}});
  }
  return stored;
}

StepOutcome RowTrackerTest::Sent(std::uint32_t index) const {
  StepOutcome outcome;
  outcome.rows = {{.setting = &kBoost,
                   .channel = 0,
                   .index = index,
                   .delivery = Delivery::Sent,
                   .accepted = 2,
                   .inMixers = InMixers::Every,
                   .reason = {},
                   .warning = {}}};
  outcome.places = QStringList{"1-1", "1-2"};
  outcome.stored = Stored(index);
  return outcome;
}

MixerState RowTrackerTest::Mixer(int number, MixerAnswer answer) {
  MixerState mixer = AnsweringMixer(number);
  mixer.answer = answer;
  return mixer;
}

void RowTrackerTest::Read(const QList<MixerState> &mixers) {
  tracker_->TakeMixers(mixers);
  state_.mixers = mixers;
}

void RowTrackerTest::BeginsWithNothingKnown() {
  QCOMPARE(state_.rows.size(), 10);
  tracker_->TakeStored(Stored(1));
  QCOMPARE(Boost().shown, 1U);
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
  Read({AnsweringMixer()});
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
}

void RowTrackerTest::ConfirmsItsOwnChoice() {
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  const std::uint64_t choice = tracker_->TakeChoice(kBoost, 0, 1);
  QCOMPARE(Boost().delivery, Delivery::Sending);
  QCOMPARE(Boost().shown, 1U);
  tracker_->TakeStored(Stored(0));
  QCOMPARE(Boost().shown, 1U);
  tracker_->TakeOutcome(Sent(1), choice);
  QCOMPARE(Boost().inMixers, InMixers::Every);
  QCOMPARE(Boost().delivery, Delivery::Sent);
  tracker_->TakeStored(Stored(1));
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  QCOMPARE(Boost().inMixers, InMixers::Every);
}

// It was 2, this window has sent 1, and another program has put back 2 before
// the step has ended.
void RowTrackerTest::ClaimsNothingThatAnotherProgramHasChangedAtOnce() {
  tracker_->TakeStored(Stored(2));
  const std::uint64_t choice = tracker_->TakeChoice(kBoost, 0, 1);
  StepOutcome outcome = Sent(1);
  outcome.stored = Stored(2);
  tracker_->TakeOutcome(outcome, choice);
  QCOMPARE(Boost().shown, 2U);
  QCOMPARE(Boost().delivery, Delivery::Idle);
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
}

void RowTrackerTest::ClaimsNothingAfterAnotherProgram() {
  tracker_->TakeOutcome(Sent(1), 0);
  tracker_->TakeStored(Stored(2));
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
  // The other program has sent it, not this one.
  tracker_->TakeStored(Stored(1));
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
  QCOMPARE(Boost().delivery, Delivery::Idle);
}

void RowTrackerTest::KeepsTheNewerChoice() {
  const std::uint64_t first = tracker_->TakeChoice(kBoost, 0, 1);
  const std::uint64_t second = tracker_->TakeChoice(kBoost, 0, 2);
  tracker_->TakeOutcome(Sent(1), first);
  QCOMPARE(Boost().shown, 2U);
  QCOMPARE(Boost().delivery, Delivery::Sending);
  tracker_->TakeOutcome(Sent(2), second);
  QCOMPARE(Boost().delivery, Delivery::Sent);
  QCOMPARE(tracker_->TakeChoice(kBoost, 7, 1), 0U);
}

void RowTrackerTest::ClaimsNothingThatWasNotStored() {
  tracker_->TakeOutcome(Sent(1), 0);
  const std::uint64_t choice = tracker_->TakeChoice(kBoost, 0, 2);
  StepOutcome outcome = Sent(2);
  outcome.rows[0].delivery = Delivery::Failed;
  outcome.rows[0].reason = "Not stored.";
  outcome.stored = Stored(1);
  tracker_->TakeOutcome(outcome, choice);
  QCOMPARE(Boost().shown, 1U);
  QCOMPARE(Boost().delivery, Delivery::Failed);
  QCOMPARE(Boost().reason, QStringLiteral("Not stored."));
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
}

void RowTrackerTest::CountsANewMixerThatAStepHasReached() {
  Read({AnsweringMixer(1)});
  tracker_->TakeOutcome(Sent(1), 0);
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  QCOMPARE(Boost().inMixers, InMixers::Every);
  Read({AnsweringMixer(1), AnsweringMixer(2), AnsweringMixer(3)});
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
}

void RowTrackerTest::ForgetsOtherRowsWhenAStepFindsANewMixer() {
  StepOutcome input = Sent(1);
  input.rows[0].setting = &model::kInput;
  input.rows[0].index = 0;
  input.places = QStringList{"1-1"};
  tracker_->TakeOutcome(input, 0);
  QCOMPARE(Input().inMixers, InMixers::Every);
  tracker_->TakeOutcome(Sent(1), 0);
  QCOMPARE(Boost().inMixers, InMixers::Every);
  QCOMPARE(Input().inMixers, InMixers::NotKnown);
}

void RowTrackerTest::KeepsAChoiceThatIsMadeBeforeTheMixersAreRead() {
  tracker_->TakeOutcome(Sent(1), tracker_->TakeChoice(kBoost, 0, 1));
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  QCOMPARE(Boost().inMixers, InMixers::Every);
}

void RowTrackerTest::CountsAMixerThatIsGoneAsUnplugged() {
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  tracker_->TakeOutcome(Sent(1), 0);
  Read({AnsweringMixer(1), Mixer(2, MixerAnswer::Gone)});
  QCOMPARE(Boost().inMixers, InMixers::Every);
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  QCOMPARE(Boost().inMixers, InMixers::NotKnown);
  Read({Mixer(1, MixerAnswer::Gone), Mixer(2, MixerAnswer::Gone)});
  QCOMPARE(Boost().inMixers, InMixers::None);
}

void RowTrackerTest::KeepsAReasonWhileTheMixersAreTheSame() {
  const QList<MixerState> silent = {AnsweringMixer(1),
                                    Mixer(2, MixerAnswer::Silent)};
  Read(silent);
  StepOutcome outcome = Sent(1);
  outcome.rows[0].delivery = Delivery::RememberedOnly;
  outcome.rows[0].inMixers = InMixers::NotKnown;
  outcome.rows[0].reason = "Mixer 2 does not answer.";
  tracker_->TakeOutcome(outcome, 0);
  Read(silent);
  QCOMPARE(Boost().reason, QStringLiteral("Mixer 2 does not answer."));
  Read({AnsweringMixer(1), AnsweringMixer(2)});
  QCOMPARE(Boost().reason, QString());
  QCOMPARE(Boost().delivery, Delivery::Idle);
}

void RowTrackerTest::KeepsAReasonFromBeforeTheMixersAreRead() {
  StepOutcome outcome = Sent(1);
  outcome.rows[0].delivery = Delivery::RememberedOnly;
  outcome.rows[0].inMixers = InMixers::NotKnown;
  outcome.rows[0].reason = "Mixer 2 does not answer.";
  tracker_->TakeOutcome(outcome, 0);
  Read({AnsweringMixer(1), Mixer(2, MixerAnswer::Silent)});
  QCOMPARE(Boost().reason, QStringLiteral("Mixer 2 does not answer."));
  QCOMPARE(Boost().delivery, Delivery::RememberedOnly);
}

void RowTrackerTest::KeepsWhyAChoiceWasNotStored() {
  Read({AnsweringMixer(1)});
  StepOutcome outcome = Sent(1);
  outcome.rows[0].delivery = Delivery::Failed;
  outcome.rows[0].reason = "Not stored.";
  outcome.stored = Stored(std::nullopt);
  tracker_->TakeOutcome(outcome, 0);
  Read({});
  QCOMPARE(Boost().reason, QStringLiteral("Not stored."));
  QCOMPARE(Boost().inMixers, InMixers::None);
}

namespace {
const bool kRowTrackerRegistered = Register<RowTrackerTest>("RowTrackerTest");
}  // namespace

}  // namespace ztk::window

#include "row_tracker_test.moc"
