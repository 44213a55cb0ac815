// SPDX-License-Identifier: MIT
//
// The window with its engine: mouse clicks, keys and changes by other programs.
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QInputDialog>
#include <QLabel>
#include <QTest>

#include "window/connect.h"
#include "window/engine_world.h"
#include "window/main_window.h"
#include "window/pages/club_dialog.h"
#include "window/pages/routing_page.h"
#include "window/picture/picture.h"
#include "window/registry.h"
#include "window/rows/choice_row.h"
#include "ztk/fake_user_manager.h"

namespace ztk::window {

using model::kInput;
using model::Source;
using model::Tap;

class WholeWindowTest : public EngineWorld {
  Q_OBJECT

 private slots:
  void cleanup();
  void RecordsWhatIsClicked();
  void RecordsWhatIsChosenWithTheKeyboard();
  void ShowsWhatAnotherProgramSets();
  void TellsWhyAChannelIsSilent();
  void AdvisesNothingForAPositionThatIsNone();
  void SwitchesAutoapply();
  void UndoesTwoChanges();
  void DashesTheWiresWhenTheMixerIsUnplugged();
  void SendingAllEndsTheDoubt();
  void SavesAndAppliesAClub();
  void ClosesWhileAMixerIsSilent();
  void ShowsWhatIsRememberedInTheFirstFrame();

 private:
  // Shows a window whose engine has read the mixers and all settings.
  void Open();
  ChoiceRow &InputRow(int channel) const {
    return *window_->routingPage()->rows()[channel];
  }
  QAction &Action(const QString &text) const;
  void Click(const Tap &tap) const;

  std::unique_ptr<MainWindow> window_;
};

void WholeWindowTest::cleanup() {
  EngineWorld::cleanup();
  window_.reset();
}

void WholeWindowTest::Open() {
  window_ = std::make_unique<MainWindow>();
  StartEngine();
  Connect(window_.get(), &engine());
  window_->showState(state());
  window_->show();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

QAction &WholeWindowTest::Action(const QString &text) const {
  for (QAction *action : window_->findChildren<QAction *>()) {
    if (action->text().remove(QLatin1Char('&')).startsWith(text)) {
      return *action;
    }
  }
  qFatal("There is no such action: %s", qPrintable(text));
}

void WholeWindowTest::Click(const Tap &tap) const {
  Picture *picture = window_->routingPage()->picture();
  QTest::mouseClick(picture, Qt::LeftButton, {},
                    picture->parts().Spot(tap)->centre.toPoint());
}

void WholeWindowTest::RecordsWhatIsClicked() {
  Open();
  InputRow(1).box()->setFocus();
  Click({.source = Source::PostFader, .lane = 1});
  QCOMPARE(InputRow(1).text(), QStringLiteral("Sending…"));
  EVENTUALLY(InputRow(1).text() ==
             QStringLiteral("Sent to 2 mixers, and remembered."));
  QCOMPARE(InputRow(1).box()->currentText(), QStringLiteral("Post CH2 Fader"));
  QVERIFY(Ztk({"input", "get", "2"}).contains("Post CH2 Fader"));
}

void WholeWindowTest::RecordsWhatIsChosenWithTheKeyboard() {
  Open();
  QTest::keyClick(window_.get(), Qt::Key_5, Qt::AltModifier);
  QComboBox *box = InputRow(4).box();
  QVERIFY(box->hasFocus());
  QTest::keyClick(box, Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Return);
  EVENTUALLY(InputRow(4).text() ==
             QStringLiteral("Sent to 2 mixers, and remembered."));
  QVERIFY(Ztk({"input", "get", "5"}).contains("Post CH2 Fader"));
}

void WholeWindowTest::ShowsWhatAnotherProgramSets() {
  Open();
  Ztk({"input", "set", "3", "rec out"});
  EVENTUALLY(InputRow(2).box()->currentText() == QStringLiteral("REC OUT"));
  const Picture *picture = window_->routingPage()->picture();
  const QPointF recOut =
      picture->parts().Spot({.source = Source::RecOut})->centre;
  QCOMPARE(picture->wires()[2].points.front().y(), recOut.y());
}

void WholeWindowTest::TellsWhyAChannelIsSilent() {
  Ztk({"input", "set", "1", "1"});
  Mixer({"turn", "1", "2", "-m", "1"});
  Open();
  EVENTUALLY(InputRow(0).text().startsWith(QStringLiteral(
      "USB 1 is silent: turn the selector of CH1 on mixer 1 from 2 to 4.")));
  Mixer({"turn", "1", "4"});
  EVENTUALLY(InputRow(0).text() ==
             QStringLiteral("Remembered; not confirmed."));
}

// A mixer that does not give a position reports 255.
void WholeWindowTest::AdvisesNothingForAPositionThatIsNone() {
  Ztk({"input", "set", "1", "1"});
  Mixer({"turn", "1", "255"});
  Mixer({"turn", "2", "3"});
  Open();
  QCOMPARE(state().mixers[0].selectors[1], std::optional<int>(3));
  QCOMPARE(state().mixers[0].selectors[0], std::optional<int>());
  QCOMPARE(InputRow(0).text(), QStringLiteral("Remembered; not confirmed."));
  QCOMPARE(PictureOf(state()).selectors[0].position, QString());
  QCOMPARE(PictureOf(state()).selectors[0].silence, QString());
  // The library warns of it.
  engine().choose(kInput, 0, 1);
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  QCOMPARE(InputRow(0).text(),
           QStringLiteral("Sent to 2 mixers, and remembered."));
  QCOMPARE(InputRow(0).toolTip(), QString());
}

// With a double of the systemd of the session. Turning it on needs the file of
// an installed ztk.
void WholeWindowTest::SwitchesAutoapply() {
  test::FakeUserManager manager;
  manager.KnowUnit(true);
  Open();
  QAction &action = Action("Send all at each plug-in");
  EVENTUALLY(action.isChecked());
  QVERIFY(action.isEnabled());
  action.trigger();
  EVENTUALLY(state().autoapply == Autoapply::Off);
  QVERIFY(!action.isChecked());
  QCOMPARE(manager.calls(),
           (std::vector<std::string>{"DisableUnitFiles ztk-apply@.service 0",
                                     "Reload"}));
  action.trigger();
  const auto *message = window_->findChild<QLabel *>("message");
  EVENTUALLY(state().autoapply == Autoapply::On || !message->text().isEmpty());
  if (state().autoapply == Autoapply::On) {
    QVERIFY(action.isChecked());
    return;
  }
  QVERIFY2(message->text().contains(QStringLiteral("is missing")),
           qPrintable(message->text()));
  QVERIFY(!action.isChecked());
  QVERIFY(action.isEnabled());
}

void WholeWindowTest::UndoesTwoChanges() {
  Ztk({"input", "set", "1", "2"});
  Open();
  InputRow(0).box()->setFocus();
  Click({.source = Source::Mic});
  // The next choice would replace a choice that has not been sent yet.
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  Click({.source = Source::RecOut});
  EVENTUALLY(Row(kInput, 0).delivery == Delivery::Sent);
  QCOMPARE(InputRow(0).box()->currentText(), QStringLiteral("REC OUT"));
  QVERIFY(Action("Undo: USB input 1").isEnabled());
  QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier);
  EVENTUALLY(InputRow(0).box()->currentText() == QStringLiteral("MIC"));
  QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier);
  EVENTUALLY(InputRow(0).box()->currentText() ==
             QStringLiteral("CH1 Control Tone LINE"));
}

void WholeWindowTest::DashesTheWiresWhenTheMixerIsUnplugged() {
  Ztk({"input", "set", "1", "4"});
  Open();
  QCOMPARE(InputRow(0).text(), QStringLiteral("Remembered; not confirmed."));
  Mixer({"unplug"});
  EVENTUALLY(InputRow(0).text() ==
             QStringLiteral("Remembered; no mixer has it."));
  QCOMPARE(PictureOf(state()).channels[0].inMixers, InMixers::None);
  InputRow(0).box()->setFocus();
  Click({.source = Source::Mic});
  EVENTUALLY(InputRow(0).text() ==
             QStringLiteral("Remembered only. No mixer is attached."));
  EVENTUALLY(window_->findChild<QWidget *>("finding") != nullptr);
}

void WholeWindowTest::SendingAllEndsTheDoubt() {
  Ztk({"input", "set", "1", "4"});
  Open();
  const auto *notKnown = window_->findChild<QLabel *>("notKnown");
  QVERIFY(notKnown->isVisible());
  QCOMPARE(PictureOf(state()).channels[0].inMixers, InMixers::NotKnown);
  Action("Send all again").trigger();
  EVENTUALLY(!notKnown->isVisible());
  QCOMPARE(PictureOf(state()).channels[0].inMixers, InMixers::Every);
  QCOMPARE(InputRow(0).text(),
           QStringLiteral("Sent to 2 mixers, and remembered."));
}

void WholeWindowTest::SavesAndAppliesAClub() {
  Ztk({"input", "set", "1", "mic"});
  Open();
  Action("Save as a club").trigger();
  auto *name = window_->findChild<QInputDialog *>();
  name->setTextValue("Friday");
  name->accept();
  EVENTUALLY(state().clubs.size() == 1);
  EVENTUALLY(window_->findChild<QLabel *>("message")->text() ==
             QStringLiteral("Saved as “Friday”."));
  Ztk({"input", "set", "1", "rec out"});
  EVENTUALLY(InputRow(0).box()->currentText() == QStringLiteral("REC OUT"));
  Action("Friday").trigger();
  EVENTUALLY(window_->findChild<ClubDialog *>() != nullptr);
  window_->findChild<ClubDialog *>()->accept();
  EVENTUALLY(InputRow(0).box()->currentText() == QStringLiteral("MIC"));
}

void WholeWindowTest::ClosesWhileAMixerIsSilent() {
  Open();
  Mixer({"fault", "silence"});
  InputRow(0).box()->setFocus();
  Click({.source = Source::Mic});
  window_->close();
  QVERIFY(!window_->isVisible());
}

void WholeWindowTest::ShowsWhatIsRememberedInTheFirstFrame() {
  Ztk({"input", "set", "3", "rec out"});
  window_ = std::make_unique<MainWindow>();
  Engine engine;
  QStringList painted;
  QObject watcher;
  connect(window_.get(), &MainWindow::painted, &watcher,
          [&] { painted.append(InputRow(2).box()->currentText()); });
  window::Open(window_.get(), &engine);
  QVERIFY(!engine.state().mixersKnown);
  EVENTUALLY(engine.state().mixersKnown);
  QVERIFY(!painted.isEmpty());
  QCOMPARE(painted.first(), QStringLiteral("REC OUT"));
}

namespace {
const bool kRegistered = Register<WholeWindowTest>("WholeWindowTest");
}  // namespace

}  // namespace ztk::window

#include "whole_window_test.moc"
