// SPDX-License-Identifier: MIT
//
// The window in the languages of the warning texts.
#include <QApplication>
#include <QLocale>
#include <QPushButton>
#include <QTest>
#include <QTranslator>
#include <memory>

#include "window/cut_texts.h"
#include "window/engine/sentences.h"
#include "window/main_window.h"
#include "window/pages/club_dialog.h"
#include "window/registry.h"
#include "window/states.h"
#include "window/translation.h"

namespace ztk::window {

class LanguagesTest : public QObject {
  Q_OBJECT

 private slots:
  void SpeakTheUsersLanguage_data();
  void SpeakTheUsersLanguage();
  void TranslateASentenceWithAPath();
  void TranslateWhyNothingIsSentAtPlugIn();
  void CutNoText_data();
  void CutNoText();
};

namespace {

// What is long: reasons, sentences about selectors, findings.
State FullState() {
  State state = UsualState();
  state.mixersKnown = true;
  state.mixers.append(AnsweringMixer(2));
  state.mixers[0].selectors[1] = 1;
  RowState &failed = RowOf(&state, model::kInput, 0);
  failed.delivery = Delivery::RememberedOnly;
  const model::Mixer silent{.number = 1,
                            .state = model::MixerState::Silent,
                            .reason = {},
                            .message = {}};
  failed.reason = WhyNotSent(0, {.mixers = {silent, silent}});
  RowState &notKnown = RowOf(&state, model::kInput, 2);
  notKnown.delivery = Delivery::Idle;
  notKnown.inMixers = InMixers::NotKnown;
  RowOf(&state, model::kInput, 3).delivery = Delivery::Sent;
  RowOf(&state, model::kInput, 3).accepted = 2;
  state.findings.append(Translated({.id = "silent",
                                    .what = "mixer 1 does not answer",
                                    .cause = "the rule that grants you access "
                                             "was installed after the mixer "
                                             "was plugged in; this command has "
                                             "the same effect as plugging it "
                                             "in again",
                                    .command = "ztk doctor",
                                    .mixer = 1}));
  state.canUndo = true;
  state.undoes = PlaceText(model::kInput, 1) + QStringLiteral(" → ") +
                 ChoiceText(model::kInput, 1, 0);
  return state;
}

void AddLanguages() {
  QTest::addColumn<QString>("noMixer");
  QTest::addColumn<unsigned>("library");
  QTest::newRow("de") << "Es ist kein Mischpult angeschlossen." << 3U;
  QTest::newRow("es") << "No hay ninguna mesa conectada." << 6U;
  QTest::newRow("fr") << "Aucune table de mixage n’est connectée." << 2U;
  QTest::newRow("it") << "Nessun mixer è collegato." << 4U;
  QTest::newRow("ja") << "ミキサーが接続されていません。" << 1U;
  QTest::newRow("ko") << "믹서가 연결되어 있지 않습니다." << 11U;
  QTest::newRow("nl") << "Er is geen mengpaneel aangesloten." << 5U;
  QTest::newRow("pt") << "Nenhuma mesa está ligada." << 8U;
  QTest::newRow("ru") << "Микшер не подключён." << 7U;
  QTest::newRow("zh_CN") << "未连接混音台。" << 9U;
  QTest::newRow("zh_TW") << "未連接混音器。" << 10U;
}

// Those of the dialog for a club that changes nothing, with all it can say.
QStringList CutTextsOfAClub(MainWindow *window) {
  window->showPreview(
      {.club = {.name = "Friday", .path = "/f"},
       .changes = {},
       .error = {},
       .kept = {PlaceText(model::kInput, 0), PlaceText(model::kInput, 1),
                PlaceText(model::kBoost, 0)},
       .needsSending = true});
  SettleLayouts();
  return CutTexts(*window->findChild<ClubDialog *>());
}

// Shows the application in the language of the row while it lives.
class InLanguage {
 public:
  InLanguage() : texts_(std::make_unique<QObject>()) {
    Translate(texts_.get(),
              QLocale(QString::fromLatin1(QTest::currentDataTag())));
  }

 private:
  std::unique_ptr<QObject> texts_;
};

}  // namespace

void LanguagesTest::SpeakTheUsersLanguage_data() { AddLanguages(); }

void LanguagesTest::SpeakTheUsersLanguage() {
  QFETCH(QString, noMixer);
  const InLanguage language;
  QFETCH(unsigned, library);
  QCOMPARE(WhyNotSent(0, {}), noMixer);
  QCOMPARE(LibraryLanguage(), library);
  // Every text of the window is another one than in English.
  const MainWindow window;
  QVERIFY(window.windowTitle() != QStringLiteral("Mixer settings"));
  const QString cancel =
      QCoreApplication::translate("QPlatformTheme", "Cancel");
  QVERIFY(cancel != QStringLiteral("Cancel"));
}

void LanguagesTest::TranslateWhyNothingIsSentAtPlugIn() {
  QObject texts;
  Translate(&texts, QLocale(QStringLiteral("de")));
  QCOMPARE(
      ModelSentence("autoapply needs the systemd of your session, which cannot "
                    "be used (there is no session message bus); run 'ztk "
                    "apply' each time you have plugged a mixer in"),
      QStringLiteral(
          "Das Senden beim Anschließen braucht das systemd Ihrer Sitzung, das "
          "nicht benutzt werden kann (es gibt keinen Nachrichtenbus der "
          "Sitzung); führen Sie nach jedem Anschließen eines Mischpults „ztk "
          "apply“ aus"));
}

void LanguagesTest::TranslateASentenceWithAPath() {
  QObject texts;
  Translate(&texts, QLocale(QStringLiteral("de")));
  const FindingState finding =
      Translated({.id = "history-damaged",
                  .what = "ztk undo cannot take back every change: /h/a is "
                          "damaged",
                  .cause = "you have no permission to read it",
                  .command = "x"});
  QCOMPARE(finding.what,
           QStringLiteral("ztk undo kann nicht jede Änderung zurücknehmen: "
                          "/h/a ist beschädigt"));
  QCOMPARE(finding.cause,
           QStringLiteral("Sie haben keine Berechtigung, sie zu lesen"));
  // What is not listed stays as it is.
  QCOMPARE(
      Translated({.id = "x", .what = "odd", .cause = {}, .command = {}}).what,
      QStringLiteral("Odd"));
}

void LanguagesTest::CutNoText_data() { AddLanguages(); }

void LanguagesTest::CutNoText() {
  const InLanguage language;
  const QFont usual = QApplication::font();
  for (const qreal scale : {1.0, 2.0}) {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    MainWindow window;
    window.showState(FullState());
    window.show();
    SettleLayouts();
    QStringList cut = CutTexts(window);
    cut += CutTextsOfAClub(&window);
    QApplication::setFont(usual);
    QCOMPARE(cut, QStringList());
  }
}

namespace {
const bool kLanguagesRegistered = Register<LanguagesTest>("LanguagesTest");
}  // namespace

}  // namespace ztk::window

#include "languages_test.moc"
