// SPDX-License-Identifier: MIT
//
// Settings saved under a name.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "window/engine/engine.h"
#include "window/engine_world.h"
#include "window/registry.h"

namespace ztk::window {

using model::kBoost;
using model::kInput;
using model::kMidi;

class EngineClubsTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void SavesAFileThatZtkImports();
  void ShowsWhatAClubWouldChange();
  void SaysWhetherTheMixersMayLackAClub();
  void OffersToSendOnlyWhatAnAttachedMixerHas();
  void NamesWhatIsNotInAClub();
  void AppliesAClubAsOneStep();
  void SaysWhyAFileIsNoClub_data();
  void SaysWhyAFileIsNoClub();
  void KeepsTheFileInItsFolder();
  void DeletesAClub();
  void SaysWhyAClubCannotBeDeleted();
  void AsksForAName();

 private:
  ClubPreview Preview(const QString &path);
  QString PathOf(const QString &name) const;
};

ClubPreview EngineClubsTest::Preview(const QString &path) {
  std::optional<ClubPreview> preview;
  connect(&engine(), &Engine::clubPreviewed, this,
          [&preview](const ClubPreview &one) { preview = one; });
  engine().previewClub(path);
  [&] { EVENTUALLY(preview.has_value()); }();
  disconnect(&engine(), &Engine::clubPreviewed, this, nullptr);
  return preview.value_or(ClubPreview{});
}

QString EngineClubsTest::PathOf(const QString &name) const {
  return QString::fromStdString(home().path().string()) +
         QStringLiteral("/.local/share/tarvix/clubs/") + name;
}

void EngineClubsTest::SavesAFileThatZtkImports() {
  Ztk({"input", "set", "2", "3"});
  StartEngine();
  QVERIFY(state().clubs.isEmpty());
  engine().saveClub(QStringLiteral("Blue Note"));
  EVENTUALLY(state().clubs.size() == 1);
  QCOMPARE(state().clubs[0].name, QStringLiteral("Blue Note"));
  QCOMPARE(state().clubs[0].path, PathOf(QStringLiteral("Blue Note.json")));
  QFile file(state().clubs[0].path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(QString::fromUtf8(file.readAll()), Ztk({"export"}));
}

void EngineClubsTest::ShowsWhatAClubWouldChange() {
  Ztk({"input", "set", "2", "3"});
  Ztk({"boost", "set", "1"});
  StartEngine();
  engine().saveClub(QStringLiteral("a"));
  EVENTUALLY(state().clubs.size() == 1);
  QVERIFY(Preview(state().clubs[0].path).changes.isEmpty());
  Ztk({"input", "set", "2", "mic"});
  const ClubPreview preview = Preview(state().clubs[0].path);
  QCOMPARE(preview.club.name, QStringLiteral("a"));
  QCOMPARE(preview.error, QString());
  QCOMPARE(preview.changes.size(), 1);
  QCOMPARE(preview.changes[0].place, QStringLiteral("USB input 2"));
  QCOMPARE(preview.changes[0].before, QStringLiteral("MIC"));
  QCOMPARE(preview.changes[0].after, QStringLiteral("Post CH2 Fader"));
  EVENTUALLY(Row(kInput, 1).shown == 5);
}

void EngineClubsTest::SaysWhetherTheMixersMayLackAClub() {
  Ztk({"boost", "set", "1"});
  StartEngine();
  engine().saveClub(QStringLiteral("a"));
  EVENTUALLY(state().clubs.size() == 1);
  const QString path = state().clubs[0].path;
  QVERIFY(Preview(path).needsSending);
  engine().resendAll();
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::Every);
  QVERIFY(!Preview(path).needsSending);
  // A choice that is refused is known not to be in every mixer.
  Mixer({"fault", "stall"});
  engine().resendAll();
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::None);
  QVERIFY(!state().NeedsSending());
  QVERIFY(Preview(path).needsSending);
  Mixer({"fault", "none"});
  // Without a mixer there is nothing to send to.
  Mixer({"unplug"});
  EVENTUALLY(state().mixers.isEmpty());
  QVERIFY(!Preview(path).needsSending);
  Mixer({"plug"});
  EVENTUALLY(state().mixers.size() == 2);
  QVERIFY(Preview(path).needsSending);
  // Applying it sends it too.
  Ztk({"boost", "set", "2"});
  EVENTUALLY(Row(kBoost, 0).shown == 1);
  QVERIFY(!Preview(path).needsSending);
}

void EngineClubsTest::OffersToSendOnlyWhatAnAttachedMixerHas() {
  Ztk({"boost", "set", "1"});
  Ztk({"midi", "set", "2"});
  StartEngine();
  engine().saveClub(QStringLiteral("a"));
  EVENTUALLY(state().clubs.size() == 1);
  const QString path = state().clubs[0].path;
  QVERIFY(Preview(path).needsSending);
  // Both mixers are VRM-D6, and the VRM-K2 has the MIDI channel.
  Mixer({"fault", "stall@w8004"});
  engine().resendAll();
  EVENTUALLY(Row(kBoost, 0).inMixers == InMixers::Every);
  QVERIFY(Row(kMidi, 0).inMixers != InMixers::Every);
  QVERIFY(!Preview(path).needsSending);
}

void EngineClubsTest::NamesWhatIsNotInAClub() {
  Ztk({"input", "set", "2", "3"});
  StartEngine();
  engine().saveClub(QStringLiteral("a"));
  EVENTUALLY(state().clubs.size() == 1);
  const QString path = state().clubs[0].path;
  QCOMPARE(Preview(path).kept, QStringList());
  Ztk({"input", "set", "1", "mic"});
  Ztk({"boost", "set", "1"});
  QCOMPARE(Preview(path).kept,
           (QStringList{"USB input 1", "USB output level"}));
  engine().applyClub(path);
  EVENTUALLY(Row(kInput, 1).delivery == Delivery::Sent);
  EVENTUALLY(Row(kInput, 0).shown == 5);
  QCOMPARE(Row(kInput, 0).stored, std::optional(5U));
}

void EngineClubsTest::AppliesAClubAsOneStep() {
  Ztk({"input", "set", "2", "3"});
  Ztk({"boost", "set", "1"});
  StartEngine();
  engine().saveClub(QStringLiteral("a"));
  EVENTUALLY(state().clubs.size() == 1);
  Ztk({"input", "set", "2", "mic"});
  Ztk({"boost", "set", "2"});
  EVENTUALLY(Row(kBoost, 0).shown == 1);
  engine().applyClub(state().clubs[0].path);
  EVENTUALLY(Row(kBoost, 0).delivery == Delivery::Sent);
  QCOMPARE(Row(kBoost, 0).shown, 0U);
  QCOMPARE(Row(kInput, 1).shown, 2U);
  QCOMPARE(Row(kInput, 1).delivery, Delivery::Sent);
  QCOMPARE(state().undoes, QStringLiteral("USB input 2, USB output level"));
  engine().undo();
  EVENTUALLY(Row(kBoost, 0).shown == 1);
  QCOMPARE(Row(kInput, 1).shown, 5U);
}

void EngineClubsTest::SaysWhyAFileIsNoClub_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("empty") << "";
  QTest::newRow("other") << "{\"version\":1,\"settings\":{\"VRM-D6\":7}}";
}

void EngineClubsTest::SaysWhyAFileIsNoClub() {
  QFETCH(QString, text);
  StartEngine();
  const QString path = PathOf(QStringLiteral("x.json"));
  QVERIFY(QDir().mkpath(QFileInfo(path).path()));
  test::WriteAll(path.toStdString(), text.toStdString());
  QVERIFY(Preview(path).error.startsWith(
      QStringLiteral("The file contains an error: ")));
  engine().applyClub(path);
  EVENTUALLY(!reports().isEmpty());
  QVERIFY(reports().front().startsWith(
      QStringLiteral("The file contains an error: ")));
  QVERIFY(!state().canUndo);
}

void EngineClubsTest::KeepsTheFileInItsFolder() {
  StartEngine();
  engine().saveClub(QStringLiteral("../a/b"));
  EVENTUALLY(state().clubs.size() == 1);
  QCOMPARE(state().clubs[0].path, PathOf(QStringLiteral("-..-a-b.json")));
}

void EngineClubsTest::DeletesAClub() {
  StartEngine();
  engine().saveClub(QStringLiteral("Friday"));
  EVENTUALLY(state().clubs.size() == 1);
  const QString path = state().clubs[0].path;
  EVENTUALLY(reports().size() == 1);
  engine().deleteClub(path);
  EVENTUALLY(state().clubs.isEmpty());
  QVERIFY(!QFile::exists(path));
  EVENTUALLY(reports().size() == 2);
  QCOMPARE(reports()[1], QStringLiteral("Deleted “Friday”."));
}

void EngineClubsTest::SaysWhyAClubCannotBeDeleted() {
  StartEngine();
  // A folder that is not empty.
  const QString path = PathOf(QStringLiteral("x.json"));
  QVERIFY(QDir().mkpath(path + QStringLiteral("/y")));
  engine().deleteClub(path);
  EVENTUALLY(!reports().isEmpty());
  QVERIFY2(reports().front().startsWith(
               QStringLiteral("The club “x” cannot be deleted: ")),
           qPrintable(reports().front()));
  QVERIFY(QFile::exists(path));
}

void EngineClubsTest::AsksForAName() {
  StartEngine();
  engine().saveClub(QStringLiteral("  "));
  EVENTUALLY(!reports().isEmpty());
  QCOMPARE(reports(), QStringList(QStringLiteral("The club needs a name.")));
}

namespace {
const bool kClubsRegistered = Register<EngineClubsTest>("EngineClubsTest");
}  // namespace

}  // namespace ztk::window

#include "engine_clubs_test.moc"
