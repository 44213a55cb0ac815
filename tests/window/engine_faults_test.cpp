// SPDX-License-Identifier: MIT
//
// The engine without mixers, and with mixers, files and a bus that fail.
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <cstddef>
#include <filesystem>
#include <iterator>

#include "window/engine/engine.h"
#include "window/engine_world.h"
#include "window/registry.h"

namespace ztk::window {

using model::kBoost;
using model::kInput;

class EngineFaultsTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void RemembersWithoutAMixer();
  void NamesTheMixerThatFails_data();
  void NamesTheMixerThatFails();
  void GoesOnWhileAMixerIsSilent();
  void NoticesPluggingInAndUnplugging();
  void NoticesThatARightIsGranted();
  void KeepsNoDescriptorOfAMixerThatItMayNotOpen();
  void SaysThatAFileCannotBeRead();
  void SaysThatNothingCanBeStored();
  void SaysThatTheBusHasEnded();
};

void EngineFaultsTest::RemembersWithoutAMixer() {
  Mixer({"unplug"});
  StartEngine();
  QVERIFY(state().mixers.isEmpty());
  EVENTUALLY(Problems() == QStringList("no-mixer"));
  engine().choose(kInput, 1, 2);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::RememberedOnly);
  QCOMPARE(Row(kInput, 1).reason, QStringLiteral("No mixer is attached."));
  QCOMPARE(Row(kInput, 1).stored, std::optional<std::uint32_t>(2));
  QCOMPARE(Row(kInput, 1).accepted, 0);
  QCOMPARE(Row(kInput, 1).warning, QString());
}

void EngineFaultsTest::NamesTheMixerThatFails_data() {
  QTest::addColumn<QStringList>("fault");
  QTest::addColumn<QString>("reason");
  QTest::newRow("silent") << QStringList{"fault", "silence", "-m", "2"}
                          << "Mixer 2 does not answer.";
  QTest::newRow("refusing") << QStringList{"fault", "stall", "-m", "2"}
                            << "Mixer 2 refuses the value.";
  QTest::newRow("unplugged in the middle")
      << QStringList{"fault", "unplug@w8003", "-m", "2"}
      << "Mixer 2 was unplugged or switched off.";
  QTest::newRow("forbidden") << QStringList{"forbid", "-m", "2"}
                             << "You have no permission to open mixer 2.";
}

void EngineFaultsTest::NamesTheMixerThatFails() {
  QFETCH(QStringList, fault);
  QFETCH(QString, reason);
  StartEngine();
  engine().setVisible(false);
  EVENTUALLY(Problems().isEmpty());
  Mixer(fault);
  engine().choose(kBoost, 0, 1);
  EVENTUALLY(Row(kBoost, 0).delivery == Delivery::RememberedOnly);
  QCOMPARE(Row(kBoost, 0).reason, reason);
  QCOMPARE(Row(kBoost, 0).accepted, 1);
}

void EngineFaultsTest::GoesOnWhileAMixerIsSilent() {
  StartEngine();
  Mixer({"fault", "silence"});
  engine().choose(kInput, 0, 1);
  int turns = 0;
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, [&turns] { ++turns; });
  timer.start(10);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::RememberedOnly);
  QCOMPARE(Row(kInput, 0).reason,
           QStringLiteral("Mixer 1 does not answer. Mixer 2 does not answer."));
  // A mixer has a second to answer.
  QVERIFY(turns > 10);
  EVENTUALLY(state().mixers[0].answer == MixerAnswer::Silent);
  QCOMPARE(state().mixers[0].firmware, std::optional<std::uint32_t>());
  EVENTUALLY(Problems() == QStringList({"silent", "silent"}));
  QCOMPARE(state().findings.front().what,
           QStringLiteral("Mixer 1 does not answer."));
}

void EngineFaultsTest::NoticesPluggingInAndUnplugging() {
  StartEngine();
  // So that the reading of the selectors does not notice it.
  engine().setVisible(false);
  engine().choose(kBoost, 0, 1);
  EVENTUALLY(Row(kBoost, 0).delivery == Delivery::Sent);
  Mixer({"unplug", "-m", "1"});
  EVENTUALLY(state().mixers.size() == 1);
  QCOMPARE(Row(kBoost, 0).delivery, Delivery::Sent);
  Mixer({"unplug", "-m", "2"});
  EVENTUALLY(state().mixers.isEmpty());
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::None);
  QCOMPARE(Row(kBoost, 0).delivery, Delivery::Idle);
  EVENTUALLY(!Problems().isEmpty());
  Mixer({"plug"});
  EVENTUALLY(state().mixers.size() == 2);
  QCOMPARE(Row(kBoost, 0).inMixers, InMixers::NotKnown);
  EVENTUALLY(Problems().isEmpty());
}

void EngineFaultsTest::NoticesThatARightIsGranted() {
  Mixer({"forbid"});
  StartEngine();
  QCOMPARE(state().mixers.size(), 2);
  QCOMPARE(state().mixers[0].answer, MixerAnswer::Forbidden);
  EVENTUALLY(!Problems().isEmpty());
  engine().setVisible(false);
  Mixer({"allow"});
  EVENTUALLY(state().mixers[0].answer == MixerAnswer::Answers);
  EVENTUALLY(Problems().isEmpty());
}

namespace {

std::ptrdiff_t OpenDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       std::filesystem::directory_iterator());
}

}  // namespace

void EngineFaultsTest::KeepsNoDescriptorOfAMixerThatItMayNotOpen() {
  Mixer({"forbid", "-m", "2"});
  StartEngine();
  EVENTUALLY(!Problems().isEmpty());
  engine().setVisible(false);
  QSignalSpy readings(&engine(), &Engine::stateChanged);
  const std::ptrdiff_t before = OpenDescriptors();
  for (int i = 0; i < 20; ++i) {
    readings.clear();
    engine().checkNow();
    EVENTUALLY(!readings.isEmpty());
  }
  const std::ptrdiff_t after = OpenDescriptors();
  QVERIFY2(after < before + 5, qPrintable(QString::number(after - before)));
}

void EngineFaultsTest::SaysThatAFileCannotBeRead() {
  Ztk({"input", "set", "1", "2"});
  test::WriteAll(home().SettingsFile("VRM-D6"), "damaged");
  StartEngine();
  QVERIFY(Row(kInput, 0).unreadable.contains(QStringLiteral("damaged")));
  QCOMPARE(Row(kInput, 0).stored, std::optional<std::uint32_t>());
  EVENTUALLY(!Problems().isEmpty());
}

void EngineFaultsTest::SaysThatNothingCanBeStored() {
  // A file stands where the folder of the settings would be.
  test::WriteAll(home().path() / ".config", "");
  StartEngine();
  engine().choose(kInput, 0, 2);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Failed);
  QCOMPARE(Row(kInput, 0).reason,
           QStringLiteral("Not stored: its folder does not exist and cannot "
                          "be made."));
  QCOMPARE(Row(kInput, 0).shown, 0U);
}

// The last one: the connection of a process stays lost.
void EngineFaultsTest::SaysThatTheBusHasEnded() {
  StartEngine();
  EVENTUALLY(Problems().isEmpty());
  QVERIFY(state().hearsOthers);
  bus().Stop();
  EVENTUALLY(!state().hearsOthers);
  QVERIFY(state().whyNotHeard.contains(QStringLiteral("message bus")));
  // Own changes are made all the same.
  engine().choose(kInput, 0, 2);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
}

// With QT_NO_GLIB in the environment.
class EngineWithoutGLibTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void SaysThatNothingIsHeard();
};

void EngineWithoutGLibTest::SaysThatNothingIsHeard() {
  StartEngine();
  QVERIFY(!state().hearsOthers);
  QVERIFY(state().whyNotHeard.contains(QStringLiteral("QT_NO_GLIB")));
}

// The bus accepts connections and does not answer. A process of its own,
// because registrations are made once in a process.
class EngineMuteBusTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void StartsWithoutRegistering();
  void MakesAChangeThatWasAskedForBeforeTheBusIsTried();
};

void EngineMuteBusTest::init() {
  EngineWorld::init();
  bus().Suspend();
}

void EngineMuteBusTest::cleanup() {
  bus().Resume();
  EngineWorld::cleanup();
}

void EngineMuteBusTest::StartsWithoutRegistering() {
  StartEngine();
  QVERIFY(!state().hearsOthers);
  QVERIFY(state().whyNotHeard.contains(QStringLiteral("message bus")));
  QCOMPARE(state().mixers.size(), 2);
  engine().choose(kInput, 0, 2);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
}

void EngineMuteBusTest::MakesAChangeThatWasAskedForBeforeTheBusIsTried() {
  {
    Engine engine;
    engine.start();
    engine.choose(kBoost, 0, 0);
  }
  QVERIFY(Ztk({"boost", "get"}).contains(QStringLiteral("-5 dB (1)")));
}

namespace {
const bool kMuteBusRegistered =
    Register<EngineMuteBusTest>("EngineMuteBusTest");
const bool kFaultsRegistered = Register<EngineFaultsTest>("EngineFaultsTest");
const bool kWithoutGLibRegistered =
    Register<EngineWithoutGLibTest>("EngineWithoutGLibTest");
}  // namespace

}  // namespace ztk::window

#include "engine_faults_test.moc"
