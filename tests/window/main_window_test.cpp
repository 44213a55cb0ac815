// SPDX-License-Identifier: MIT
//
// What the window shows of a state, and what it asks for.
#include "window/main_window.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include "window/cut_texts.h"
#include "window/pages/notices.h"
#include "window/pages/routing_page.h"
#include "window/pages/rows_page.h"
#include "window/picture/picture.h"
#include "window/registry.h"
#include "window/rows/choice_row.h"
#include "window/states.h"
#include "window/style.h"

namespace ztk::window {

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void ShowsWhatEachChannelRecords();
  void TipsTellWhatToDo();
  void SumsUpManyMixers();
  void NamesOneCauseOnce();
  void TakesTheSpaceThatItNeeds_data();
  void TakesTheSpaceThatItNeeds();
  void SaysOnceThatSomethingIsNotKnown();
  void ExplainsTheWires();
  void ATapChoosesForTheRowWithTheFocus();
  void LabelsBelongToTheirBoxes();
  void WithoutAMixerEverythingStaysUsable();
  void ShowsFindingsWithACommandToCopy();
  void SaysThatOtherProgramsAreNotHeard();
  void OffersUndoWithWhatItTakesBack();
  void SendsAllAgain();
  void SendsNothingAgainWhereThatHasNoEffect();
  void SwitchesAutoapply();
  void EachActionHasItsOwnKey();
  void AClickBesideTheBoxMakesTheRowActive_data();
  void AClickBesideTheBoxMakesTheRowActive();
  void ShowsTheRowThatHasTheFocus();
  void TheSisterModelsHaveTheirOwnPages();
  void NoTextIsCut_data();
  void NoTextIsCut();
  void TheButtonOfMenusThatDoNotFitHasAnArrow();
  void ClosingHidesAtOnce();
  void TellsWhetherItIsVisible();

 private:
  ChoiceRow *InputRow(int channel) const {
    return window_->routingPage()->rows()[channel];
  }
  QAction *Action(const QString &text) const;
  QString TextOf(const char *name) const {
    const auto *label = window_->findChild<QLabel *>(QLatin1String(name));
    return label == nullptr ? QString() : label->text();
  }

  std::unique_ptr<MainWindow> window_;
  State state_;
};

void MainWindowTest::init() {
  window_ = std::make_unique<MainWindow>();
  state_ = UsualState();
  window_->showState(state_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

void MainWindowTest::cleanup() { window_.reset(); }

// The one whose text, without its mnemonic, starts so.
QAction *MainWindowTest::Action(const QString &text) const {
  for (QAction *action : window_->findChildren<QAction *>()) {
    if (action->text().remove(QLatin1Char('&')).startsWith(text)) return action;
  }
  return nullptr;
}

void MainWindowTest::ShowsWhatEachChannelRecords() {
  QCOMPARE(InputRow(0)->box()->currentText(), QStringLiteral("Post CH1 Fader"));
  QCOMPARE(InputRow(1)->box()->currentText(),
           QStringLiteral("CH2 Control Tone LINE"));
  QCOMPARE(InputRow(4)->box()->currentText(), QStringLiteral("REC OUT"));
  QCOMPARE(InputRow(5)->box()->currentText(), QStringLiteral("-5 dB"));
  QCOMPARE(TextOf("mixers"),
           QStringLiteral("Mixer 1 answers · firmware 4.36 · certified level 1 "
                          "· Serato is not active"));
  QCOMPARE(window_->routingPage()->picture()->wires().size(), 5);
}

void MainWindowTest::TipsTellWhatToDo() {
  state_.mixers[0].selectors[1] = 1;
  window_->showState(state_);
  Picture *picture = window_->routingPage()->picture();
  const auto tip = [picture](QPointF place) {
    QHelpEvent event(QEvent::ToolTip, place.toPoint(),
                     picture->mapToGlobal(place.toPoint()));
    QApplication::sendEvent(picture, &event);
    return QToolTip::text();
  };
  for (const Knob &knob : picture->parts().knobs) {
    if (knob.kind != KnobKind::Selector || knob.lane != 1) continue;
    QCOMPARE(tip(knob.box.center()),
             QStringLiteral(
                 "USB 2 is silent: turn the selector of CH2 from 1 to 4."));
  }
  QCOMPARE(tip(picture->parts()
                   .Spot({.source = model::Source::Phono, .lane = 1})
                   ->centre),
           QStringLiteral(
               "CH2 PHONO. USB 1 cannot record it. Possible with: USB 2."));
}

void MainWindowTest::SumsUpManyMixers() {
  for (int number = 2; number <= 8; ++number) {
    state_.mixers.append(AnsweringMixer(number));
  }
  window_->showState(state_);
  QCOMPARE(TextOf("mixers"), QStringLiteral("8 mixers answer."));
  state_.mixers[4].answer = MixerAnswer::Silent;
  window_->showState(state_);
  QCOMPARE(TextOf("mixers"),
           QStringLiteral("7 mixers answer.\nMixer 5 does not answer."));
}

void MainWindowTest::NamesOneCauseOnce() {
  state_.hearsOthers = false;
  state_.whyNotHeard = "There is no bus.";
  QCOMPARE(BannerOf(state_).size(), 1);
  state_.findings = {
      {.id = "no-bus", .what = "W", .cause = "C", .command = {}}};
  QCOMPARE(BannerOf(state_), state_.findings);
}

void MainWindowTest::TakesTheSpaceThatItNeeds_data() {
  QTest::addColumn<qreal>("scale");
  QTest::addColumn<bool>("fits");
  QTest::newRow("small letters") << 0.5 << true;
  QTest::newRow("usual letters") << 1.0 << false;
}

// The screen of the tests is small.
void MainWindowTest::TakesTheSpaceThatItNeeds() {
  QFETCH(const qreal, scale);
  QFETCH(const bool, fits);
  const QFont usual = QApplication::font();
  QFont font = usual;
  font.setPointSizeF(usual.pointSizeF() * scale);
  QApplication::setFont(font);
  MainWindow window;
  window.show();
  state_.findings = {{.id = "silent",
                      .what = "Mixer 1 does not answer.",
                      .cause = "Its USB cable or its power cable may be loose.",
                      .command = "echo 0 | sudo tee /sys/authorized"}};
  window.showState(state_);
  SettleLayouts();
  const auto *area = window.findChild<QScrollArea *>();
  const bool across = area->horizontalScrollBar()->isVisible();
  const bool down = area->verticalScrollBar()->isVisible();
  // The size that the user has chosen stays.
  window.resize(300, 300);
  window.showState(state_);
  SettleLayouts();
  QApplication::setFont(usual);
  QVERIFY(!across);
  if (fits) QVERIFY(!down);
  QCOMPARE(window.size(), QSize(300, 300));
}

void MainWindowTest::SaysOnceThatSomethingIsNotKnown() {
  const auto *notKnown = window_->findChild<QLabel *>("notKnown");
  QVERIFY(!notKnown->isVisible());
  for (RowState &row : state_.rows) {
    row.delivery = Delivery::Idle;
    row.inMixers = InMixers::NotKnown;
  }
  window_->showState(state_);
  QVERIFY(notKnown->isVisible());
  QCOMPARE(notKnown->text(),
           QStringLiteral("It is not known whether every mixer has what is "
                          "remembered. Send all again to be sure."));
  // The button that ends it is beside the sentence.
  QSignalSpy resend(window_.get(), &MainWindow::resendWanted);
  for (QPushButton *button : notKnown->parentWidget()
                                 ->parentWidget()
                                 ->findChildren<QPushButton *>()) {
    if (button->text() == QLatin1String("&Send all again")) button->click();
  }
  QCOMPARE(resend.size(), 1);
  // A mixer that does not answer would not receive it.
  state_.mixers[0].answer = MixerAnswer::Silent;
  window_->showState(state_);
  QVERIFY(!notKnown->isVisible());
}

void MainWindowTest::ExplainsTheWires() {
  QStringList texts;
  for (QLabel *label : window_->routingPage()->findChildren<QLabel *>()) {
    texts.append(label->text());
  }
  QVERIFY(texts.join(' ').contains(
      QStringLiteral("Solid wire: every mixer has it. Dotted: not confirmed. "
                     "Dashed: only remembered.")));
}

void MainWindowTest::ATapChoosesForTheRowWithTheFocus() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  InputRow(3)->box()->setFocus();
  Picture *picture = window_->routingPage()->picture();
  QCOMPARE(picture->activeChannel(), 3);
  const auto place =
      picture->parts().Spot({.source = model::Source::RecOut})->centre;
  QTest::mouseClick(picture, Qt::LeftButton, {}, place.toPoint());
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][1].toUInt(), 3U);
  QCOMPARE(chosen[0][2].toUInt(), 6U);
}

void MainWindowTest::LabelsBelongToTheirBoxes() {
  QStringList texts;
  for (QLabel *label : window_->routingPage()->findChildren<QLabel *>()) {
    if (label->buddy() != nullptr) texts.append(label->text());
  }
  QCOMPARE(texts, (QStringList{"USB &1 records:", "USB &2 records:",
                               "USB &3 records:", "USB &4 records:",
                               "USB &5 records:", "USB output &level:"}));
}

void MainWindowTest::WithoutAMixerEverythingStaysUsable() {
  state_.mixers.clear();
  window_->showState(state_);
  QVERIFY(TextOf("mixers").startsWith(QLatin1String("No mixer is attached.")));
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(0)->box();
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Up);
  QTest::keyClick(box->view(), Qt::Key_Return);
  QCOMPARE(chosen.size(), 1);
}

void MainWindowTest::ShowsFindingsWithACommandToCopy() {
  state_.findings = {{.id = "rule-missing",
                      .what = "Mixer 1 cannot be opened.",
                      .cause = "You have no right to.",
                      .command = "sudo chmod a+rw /dev/bus/usb/001/002"}};
  window_->showState(state_);
  QCOMPARE(TextOf("command"),
           QStringLiteral("sudo chmod a+rw /dev/bus/usb/001/002"));
  for (QPushButton *button : window_->findChildren<QPushButton *>()) {
    if (button->text() != QLatin1String("Copy")) continue;
    button->click();
    QCOMPARE(button->text(), QStringLiteral("Copied"));
  }
  QCOMPARE(QApplication::clipboard()->text(),
           QStringLiteral("sudo chmod a+rw /dev/bus/usb/001/002"));
  state_.findings.clear();
  window_->showState(state_);
  QCOMPARE(TextOf("command"), QString());
}

void MainWindowTest::SaysThatOtherProgramsAreNotHeard() {
  state_.hearsOthers = false;
  state_.whyNotHeard = "QT_NO_GLIB is set.";
  window_->showState(state_);
  QStringList texts;
  for (QLabel *label : window_->findChildren<QLabel *>()) {
    texts.append(label->text());
  }
  QVERIFY(texts.contains("Changes of other programs are not shown here."));
  QVERIFY(texts.contains("QT_NO_GLIB is set."));
}

void MainWindowTest::OffersUndoWithWhatItTakesBack() {
  QSignalSpy undo(window_.get(), &MainWindow::undoWanted);
  QVERIFY(!Action("Undo")->isEnabled());
  state_.canUndo = true;
  state_.undoes = "USB input 2 → REC OUT";
  window_->showState(state_);
  QCOMPARE(Action("Undo")->text(),
           QStringLiteral("&Undo: USB input 2 → REC OUT"));
  QCOMPARE(Action("Undo")->shortcut(), QKeySequence("Ctrl+Z"));
  QTest::keyClick(window_.get(), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(undo.size(), 1);
}

void MainWindowTest::SendsAllAgain() {
  QSignalSpy resend(window_.get(), &MainWindow::resendWanted);
  window_->showMessage("Something failed.");
  QCOMPARE(TextOf("message"), QStringLiteral("Something failed."));
  Action("Send all again")->trigger();
  QCOMPARE(resend.size(), 1);
  QCOMPARE(TextOf("message"), QString());
}

void MainWindowTest::SendsNothingAgainWhereThatHasNoEffect() {
  State withoutMixer = state_;
  withoutMixer.mixers.clear();
  State unplugged = state_;
  for (MixerState &mixer : unplugged.mixers) mixer.answer = MixerAnswer::Gone;
  State nothingRemembered = state_;
  for (RowState &row : nothingRemembered.rows) row.stored.reset();
  for (const State &state : {withoutMixer, unplugged, nothingRemembered}) {
    window_->showState(state_);
    QVERIFY(Action("Send all again")->isEnabled());
    window_->showState(state);
    QVERIFY(!Action("Send all again")->isEnabled());
  }
}

void MainWindowTest::SwitchesAutoapply() {
  QSignalSpy wanted(window_.get(), &MainWindow::autoapplyWanted);
  QAction *action = Action("Send all at each plug-in");
  state_.whyNoAutoapply = "No rule is installed.";
  window_->showState(state_);
  QVERIFY(!action->isEnabled());
  QCOMPARE(action->toolTip(), QStringLiteral("No rule is installed."));
  QVERIFY(qobject_cast<QMenu *>(action->parent())->toolTipsVisible());
  state_.autoapply = Autoapply::Off;
  window_->showState(state_);
  QVERIFY(action->isEnabled());
  action->trigger();
  QCOMPARE(wanted.size(), 1);
  QCOMPARE(wanted[0][0].toBool(), true);
  state_.autoapply = Autoapply::On;
  window_->showState(state_);
  QVERIFY(action->isChecked());
}

// A theme may add keys to the standard ones.
void MainWindowTest::EachActionHasItsOwnKey() {
  QCOMPARE(Action("Send all again")->shortcuts(),
           QList<QKeySequence>{QKeySequence("Ctrl+R")});
  QCOMPARE(Action("Check again")->shortcuts(),
           QList<QKeySequence>{QKeySequence("F5")});
}

void MainWindowTest::AClickBesideTheBoxMakesTheRowActive_data() {
  QTest::addColumn<int>("label");
  QTest::newRow("on the name") << 0;
  QTest::newRow("on the text") << 1;
}

void MainWindowTest::AClickBesideTheBoxMakesTheRowActive() {
  QFETCH(const int, label);
  const auto labels = InputRow(3)->findChildren<QLabel *>();
  QTest::mouseClick(labels[label], Qt::LeftButton);
  QCOMPARE(window_->routingPage()->picture()->activeChannel(), 3);
  QVERIFY(InputRow(3)->box()->hasFocus());
}

void MainWindowTest::ShowsTheRowThatHasTheFocus() {
  window_->resize(400, 200);
  SettleLayouts();
  QVERIFY(InputRow(4)->visibleRegion().isEmpty());
  QTest::keyClick(window_.get(), Qt::Key_5, Qt::AltModifier);
  QVERIFY(InputRow(4)->box()->hasFocus());
  QCOMPARE(InputRow(4)->box()->visibleRegion().boundingRect(),
           InputRow(4)->box()->rect());
}

void MainWindowTest::TheSisterModelsHaveTheirOwnPages() {
  QStringList labels;
  QStringList boxes;
  for (RowsPage *page : window_->otherPages()) {
    window_->findChild<QTabWidget *>()->setCurrentWidget(page);
    for (const ChoiceRow *row : page->rows()) {
      labels.append(row->findChild<QLabel *>()->text());
      boxes.append(row->box()->currentText());
    }
  }
  QCOMPARE(labels, (QStringList{"USB &1 plays on:", "USB &2 plays on:",
                                "USB &3 plays on:", "MIDI &channel:"}));
  QCOMPARE(boxes, (QStringList{"CH1", "CH1", "CH1", "CH 1"}));
}

void MainWindowTest::NoTextIsCut_data() {
  QTest::addColumn<qreal>("scale");
  QTest::addColumn<int>("width");
  QTest::newRow("usual letters") << 1.0 << 900;
  QTest::newRow("usual letters, narrow") << 1.0 << 300;
  QTest::newRow("large letters") << 2.0 << 1600;
  QTest::newRow("large letters, narrow") << 2.0 << 600;
}

void MainWindowTest::NoTextIsCut() {
  QFETCH(const qreal, scale);
  QFETCH(const int, width);
  const QFont usual = QApplication::font();
  QFont font = usual;
  font.setPointSizeF(usual.pointSizeF() * scale);
  QApplication::setFont(font);
  MainWindow window;
  RowState &row = RowOf(&state_, model::kInput, 1);
  row.delivery = Delivery::RememberedOnly;
  row.reason =
      "Mixer 1 is attached, but it does not answer: the request has ended "
      "after 1000 ms, and nothing is known of what became of it.";
  state_.findings = {
      {.id = "silent",
       .what = "Mixer 1 does not answer what it is asked, again and again.",
       .cause = "The mixer may hang. Switching it off and on again helps then, "
                "and so does another cable or another port.",
       .command = "echo 0 | sudo tee /sys/bus/usb/devices/1-2/authorized; "
                  "sleep 1; echo 1 | sudo tee "
                  "/sys/bus/usb/devices/1-2/authorized"}};
  window.showState(state_);
  window.showMessage("The club “Friday” could not be saved: the disk is full.");
  window.resize(width, width * 3 / 4);
  window.show();
  SettleLayouts();
  const QStringList cut = CutTexts(window);
  QApplication::setFont(usual);
  QCOMPARE(cut, QStringList());
}

void MainWindowTest::TheButtonOfMenusThatDoNotFitHasAnArrow() {
  const auto *button = window_->menuBar()->findChild<QToolButton *>();
  QVERIFY(button != nullptr);
  QCOMPARE(button->arrowType(), Qt::RightArrow);
  // So it needs no icon, which the style does not read.
  const Style style;
  QVERIFY(style
              .standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton,
                            nullptr, button)
              .isNull());
  QVERIFY(!style.standardIcon(QStyle::SP_MessageBoxQuestion, nullptr, button)
               .isNull());
}

void MainWindowTest::ClosingHidesAtOnce() {
  window_->close();
  QVERIFY(!window_->isVisible());
}

void MainWindowTest::TellsWhetherItIsVisible() {
  QSignalSpy visible(window_.get(), &MainWindow::visibilityChanged);
  window_->hide();
  QCOMPARE(visible.last()[0].toBool(), false);
  window_->show();
  QCOMPARE(visible.last()[0].toBool(), true);
}

namespace {
const bool kRegistered = Register<MainWindowTest>("MainWindowTest");
}  // namespace

}  // namespace ztk::window

#include "main_window_test.moc"
