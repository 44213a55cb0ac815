// SPDX-License-Identifier: MIT
//
// What the engine reads and changes, and which changes by others it receives.
#include "window/engine/engine.h"

#include <QSignalSpy>
#include <QTest>

#include "window/engine_world.h"
#include "window/registry.h"

namespace ztk::window {

using model::kBoost;
using model::kInput;
using model::kMidi;
using model::kOutput;

class EngineTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void KnowsTheMixersAndTheSettings();
  void SendsAChoice();
  void SetsEverySetting_data();
  void SetsEverySetting();
  void WarnsInTheWordsOfTheLibrary();
  void ReplacesAWishThatWaits();
  void MakesAChangeThatWasAskedForBeforeItEnds();
  void HearsAnotherProgram();
  void DoesNotJumpBackWhileAChangeIsOnItsWay();
  void FollowsTheSelectors();
  void NamesNoValueThatUndoLeavesAlone();
  void UndoesTheStepsOfAnyProgram();
  void LeavesAloneWhatAnotherProgramHasSetSince();
  void SaysThatThereIsNothingToUndo();
  void SendsAllAgain();
  void SaysWhyAutoapplyIsNotAvailable();
};

void EngineTest::KnowsTheMixersAndTheSettings() {
  Ztk({"input", "set", "5", "1"});
  StartEngine();
  QCOMPARE(state().mixers.size(), 2);
  const MixerState &mixer = state().mixers[1];
  QCOMPARE(mixer.number, 2);
  QCOMPARE(mixer.answer, MixerAnswer::Answers);
  QCOMPARE(mixer.firmware, std::optional<std::uint32_t>(1078));
  QCOMPARE(mixer.certifiedLevel, std::optional<std::uint32_t>(1));
  QCOMPARE(mixer.seratoActive, std::optional<bool>(false));
  for (const std::optional<int> &selector : mixer.selectors) {
    QCOMPARE(selector, std::optional<int>(4));
  }
  QCOMPARE(state().rows.size(), 10);
  QCOMPARE(Row(kInput, 4).stored, std::optional<std::uint32_t>(0));
  QCOMPARE(Row(kInput, 4).delivery, Delivery::Idle);
  QCOMPARE(Row(kInput, 0).stored, std::optional<std::uint32_t>());
  QCOMPARE(Row(kInput, 0).shown, 0U);
  QCOMPARE(Row(kBoost, 0).shown, 3U);
  EVENTUALLY(Problems().isEmpty());
  QVERIFY(state().hearsOthers);
}

void EngineTest::SendsAChoice() {
  StartEngine();
  QVERIFY(!state().canUndo);
  engine().choose(kInput, 1, 2);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Sending);
  QCOMPARE(Row(kInput, 1).shown, 2U);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  QCOMPARE(Row(kInput, 1).accepted, 2);
  QCOMPARE(Row(kInput, 1).reason, QString());
  QCOMPARE(Row(kInput, 1).stored, std::optional<std::uint32_t>(2));
  QVERIFY(state().canUndo);
  QCOMPARE(state().undoes,
           QStringLiteral("USB input 2 → CH2 Control Tone PHONO"));
  // The announcement of the engine's own change arrives and changes nothing.
  Ztk({"boost", "get"});
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Sent);
}

void EngineTest::SetsEverySetting_data() {
  QTest::addColumn<const model::Setting *>("setting");
  QTest::addColumn<unsigned>("channel");
  QTest::newRow("input") << &kInput << 4U;
  QTest::newRow("output") << &kOutput << 2U;
  QTest::newRow("boost") << &kBoost << 0U;
  QTest::newRow("midi") << &kMidi << 0U;
}

void EngineTest::SetsEverySetting() {
  QFETCH(const model::Setting *, setting);
  QFETCH(unsigned, channel);
  StartEngine();
  engine().choose(*setting, channel, 1);
  EVENTUALLY(Row(*setting, channel).delivery == Delivery::Sent);
  QCOMPARE(Row(*setting, channel).stored, std::optional<std::uint32_t>(1));
}

void EngineTest::WarnsInTheWordsOfTheLibrary() {
  Mixer({"turn", "2", "1"});
  StartEngine();
  if (Ztk({"doctor"}).contains(QStringLiteral("warning texts are not"))) {
    QSKIP("the warning texts are not installed");
  }
  engine().choose(kInput, 1, 1);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  QVERIFY2(Row(kInput, 1).warning.contains(QStringLiteral("selector")),
           qPrintable(Row(kInput, 1).warning));
  Mixer({"turn", "2", "4"});
  EVENTUALLY(Row(kInput, 1).warning.isEmpty());
}

void EngineTest::ReplacesAWishThatWaits() {
  StartEngine();
  Mixer({"fault", "delay:300"});
  for (std::uint32_t index = 0; index < 6; ++index) {
    engine().choose(kInput, 0, index);
  }
  QCOMPARE(Row(kInput, 0).shown, 5U);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  QCOMPARE(Row(kInput, 0).stored, std::optional<std::uint32_t>(5));
  Mixer({"fault", "none"});
  // The first one may have been on its way already; those between were not
  // made.
  Ztk({"undo"});
  Ztk({"undo"});
  QVERIFY(Ztk({"undo"}).startsWith(QStringLiteral("Nothing to undo")));
}

void EngineTest::MakesAChangeThatWasAskedForBeforeItEnds() {
  StartEngine();
  Mixer({"fault", "delay:300"});
  engine().choose(kInput, 0, 4);
  engine().choose(kBoost, 0, 0);
  EndEngine();
  QVERIFY(Ztk({"boost", "get"}).contains(QStringLiteral("-5 dB (1)")));
}

void EngineTest::HearsAnotherProgram() {
  StartEngine();
  engine().choose(kInput, 1, 2);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  Ztk({"input", "set", "2", "mic"});
  EVENTUALLY(Row(kInput, 1).shown == 5);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Idle);
  Ztk({"output", "set", "1", "2"});
  EVENTUALLY(Row(kOutput, 0).shown == 1);
  Ztk({"boost", "set", "1"});
  EVENTUALLY(Row(kBoost, 0).shown == 0);
  Ztk({"midi", "set", "3"});
  EVENTUALLY(Row(kMidi, 0).shown == 2);
}

void EngineTest::DoesNotJumpBackWhileAChangeIsOnItsWay() {
  StartEngine();
  Ztk({"input", "set", "1", "1"});
  EVENTUALLY(Row(kInput, 0).stored == 0U);
  Mixer({"fault", "delay:400"});
  QList<std::uint32_t> shown;
  connect(&engine(), &Engine::stateChanged, this,
          [&] { shown.append(Row(kInput, 0).shown); });
  engine().choose(kInput, 0, 3);
  QTest::qWait(50);
  engine().choose(kInput, 0, 4);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  disconnect(&engine(), &Engine::stateChanged, this, nullptr);
  QCOMPARE(shown.takeFirst(), 3U);
  for (const std::uint32_t index : shown) QVERIFY(index == 3U || index == 4U);
  const qsizetype turn = shown.indexOf(4U);
  QVERIFY(turn >= 0);
  QVERIFY(!shown.mid(turn).contains(3U));
}

void EngineTest::FollowsTheSelectors() {
  StartEngine();
  Mixer({"turn", "3", "0", "-m", "1"});
  EVENTUALLY(state().mixers[0].selectors[2] == 0);
  QCOMPARE(state().mixers[1].selectors[2], std::optional<int>(4));
  engine().setVisible(false);
  Mixer({"turn", "3", "2"});
  QTest::qWait(1500);
  QCOMPARE(state().mixers[0].selectors[2], std::optional<int>(0));
  engine().setVisible(true);
  EVENTUALLY(state().mixers[0].selectors[2] == 2);
}

void EngineTest::NamesNoValueThatUndoLeavesAlone() {
  StartEngine();
  engine().choose(kInput, 1, 2);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  ZtkWithoutHistory({"input", "set", "2", "mic"});
  EVENTUALLY(Row(kInput, 1).shown == 5);
  QCOMPARE(state().undoes, QStringLiteral("USB input 2"));
}

void EngineTest::UndoesTheStepsOfAnyProgram() {
  Ztk({"input", "set", "1", "2"});
  StartEngine();
  Ztk({"boost", "set", "1"});
  engine().choose(kInput, 0, 2);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  engine().undo();
  EVENTUALLY(Row(kInput, 0).shown == 1);
  QCOMPARE(Row(kInput, 0).delivery, Delivery::Sent);
  EVENTUALLY(state().undoes == QStringLiteral("USB output level → -19 dB"));
  engine().undo();
  engine().undo();
  EVENTUALLY(!state().canUndo);
  QCOMPARE(Row(kBoost, 0).shown, 3U);
  QCOMPARE(Row(kInput, 0).shown, 0U);
  QCOMPARE(reports(),
           (QStringList{"Undone: USB input 1: CH1 Control Tone LINE.",
                        "Undone: USB output level: -19 dB.",
                        "Undone: USB input 1: CH1 Control Tone PHONO."}));
}

void EngineTest::LeavesAloneWhatAnotherProgramHasSetSince() {
  StartEngine();
  engine().choose(kInput, 3, 2);
  EVENTUALLY(Row(kInput, 3).delivery == Delivery::Sent);
  ZtkWithoutHistory({"input", "set", "4", "mic"});
  EVENTUALLY(Row(kInput, 3).shown == 5);
  engine().undo();
  EVENTUALLY(!reports().isEmpty());
  QCOMPARE(reports(), QStringList(QStringLiteral(
                          "Left as it is, because another program has changed "
                          "it since: USB input 4.")));
  QCOMPARE(Row(kInput, 3).shown, 5U);
}

void EngineTest::SaysThatThereIsNothingToUndo() {
  StartEngine();
  engine().undo();
  EVENTUALLY(!reports().isEmpty());
  QCOMPARE(reports(), QStringList(QStringLiteral("There is nothing to undo.")));
}

void EngineTest::SendsAllAgain() {
  StartEngine();
  engine().resendAll();
  EVENTUALLY(!reports().isEmpty());
  QCOMPARE(reports(), QStringList(QStringLiteral(
                          "Nothing is remembered, so nothing was sent.")));
  Ztk({"input", "set", "2", "3"});
  EVENTUALLY(Row(kInput, 1).stored == 2U);
  Mixer({"unplug"});
  EVENTUALLY(state().mixers.isEmpty());
  Mixer({"plug"});
  EVENTUALLY(state().mixers.size() == 2);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Idle);
  engine().resendAll();
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  QCOMPARE(Row(kInput, 1).accepted, 2);
}

void EngineTest::SaysWhyAutoapplyIsNotAvailable() {
  StartEngine();
  EVENTUALLY(!state().whyNoAutoapply.isEmpty());
  QCOMPARE(state().autoapply, Autoapply::Unavailable);
  engine().setAutoapply(true);
  EVENTUALLY(!reports().isEmpty());
  QCOMPARE(state().autoapply, Autoapply::Unavailable);
}

namespace {
const bool kRegistered = Register<EngineTest>("EngineTest");
}  // namespace

}  // namespace ztk::window

#include "engine_test.moc"
