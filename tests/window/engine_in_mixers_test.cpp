// SPDX-License-Identifier: MIT
//
// What the engine knows of the values in the mixers: only what it has sent.
#include <QTest>

#include "window/engine/engine.h"
#include "window/engine_world.h"
#include "window/registry.h"

namespace ztk::window {

using model::kBoost;
using model::kInput;

class EngineInMixersTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void DoesNotKnowWhatWasSentBeforeItStarted();
  void ConfirmsWhatEveryMixerAccepts();
  void DoesNotKnowWhatAnotherProgramHasSent();
  void TellsThatNoMixerHasIt();
  void DoesNotKnowWhatANewMixerHas();
  void DoesNotConfirmWhatOneMixerDoesNotAccept();
  void ConfirmsWhatUndoSends();
};

void EngineInMixersTest::DoesNotKnowWhatWasSentBeforeItStarted() {
  Ztk({"input", "set", "2", "3"});
  StartEngine();
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::NotKnown);
  QVERIFY(state().NeedsSending());
  engine().resendAll();
  EVENTUALLY(Row(kInput, 1).inMixers == InMixers::Every);
  // Nothing is remembered for the other rows, so nothing was sent.
  QCOMPARE(Row(kInput, 0).inMixers, InMixers::NotKnown);
  QVERIFY(!state().NeedsSending());
}

void EngineInMixersTest::ConfirmsWhatEveryMixerAccepts() {
  StartEngine();
  QVERIFY(!state().NeedsSending());
  engine().choose(kInput, 1, 2);
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::NotKnown);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::Every);
  // Asking the mixers again changes nothing.
  engine().checkNow();
  Ztk({"status"});
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::Every);
}

void EngineInMixersTest::DoesNotKnowWhatAnotherProgramHasSent() {
  StartEngine();
  engine().choose(kInput, 1, 2);
  engine().choose(kBoost, 0, 1);
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::Every);
  EVENTUALLY(Row(kInput, 1).inMixers == InMixers::Every);
  Ztk({"input", "set", "2", "mic"});
  EVENTUALLY(Row(kInput, 1).shown == 5);
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::NotKnown);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::Every);
  QVERIFY(state().NeedsSending());
}

void EngineInMixersTest::TellsThatNoMixerHasIt() {
  Ztk({"boost", "set", "1"});
  StartEngine();
  engine().choose(kInput, 1, 2);
  EVENTUALLY(Row(kInput, 1).inMixers == InMixers::Every);
  Mixer({"unplug"});
  EVENTUALLY(state().mixers.isEmpty());
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::None);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Idle);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::None);
  // There is no mixer that could receive it.
  QVERIFY(!state().NeedsSending());
  engine().choose(kInput, 1, 3);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::RememberedOnly);
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::None);
  Mixer({"plug"});
  EVENTUALLY(state().mixers.size() == 2);
  QCOMPARE(Row(kInput, 1).inMixers, InMixers::NotKnown);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Idle);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::NotKnown);
  EVENTUALLY(state().NeedsSending());
}

void EngineInMixersTest::DoesNotKnowWhatANewMixerHas() {
  Mixer({"unplug", "-m", "2"});
  StartEngine();
  engine().choose(kBoost, 0, 1);
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::Every);
  Mixer({"plug", "-m", "2"});
  EVENTUALLY(state().mixers.size() == 2);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::NotKnown);
  engine().resendAll();
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::Every);
  QCOMPARE(Row(kBoost, 0).accepted, 2);
  // The mixer that remains has it.
  Mixer({"unplug", "-m", "2"});
  EVENTUALLY(state().mixers.size() == 1);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::Every);
}

void EngineInMixersTest::DoesNotConfirmWhatOneMixerDoesNotAccept() {
  StartEngine();
  Mixer({"fault", "silence", "-m", "2"});
  engine().choose(kBoost, 0, 1);
  EVENTUALLY(Row(kBoost, 0).delivery == Delivery::RememberedOnly);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::NotKnown);
  QCOMPARE(Row(kBoost, 0).accepted, 1);
  // The row itself tells why.
  QVERIFY(!state().NeedsSending());
  EVENTUALLY(state().mixers[1].answer == MixerAnswer::Silent);
  Mixer({"fault", "none"});
  engine().checkNow();
  EVENTUALLY(state().mixers[1].answer == MixerAnswer::Answers);
  QCOMPARE(Row(kBoost, 0).delivery, Delivery::Idle);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::NotKnown);
  QVERIFY(state().NeedsSending());
}

void EngineInMixersTest::ConfirmsWhatUndoSends() {
  StartEngine();
  engine().choose(kInput, 1, 2);
  engine().undo();
  EVENTUALLY(Row(kInput, 1).shown == 0 &&
             Row(kInput, 1).inMixers == InMixers::Every);
  QCOMPARE(Row(kInput, 1).stored, std::optional<std::uint32_t>());
}

namespace {
const bool kInMixersRegistered =
    Register<EngineInMixersTest>("EngineInMixersTest");
}  // namespace

}  // namespace ztk::window

#include "engine_in_mixers_test.moc"
