// SPDX-License-Identifier: MIT
//
// What a row tells about its setting, and how a choice is made in it.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "window/main_window.h"
#include "window/pages/routing_page.h"
#include "window/picture/picture.h"
#include "window/registry.h"
#include "window/rows/choice_row.h"
#include "window/rows/wrapped_text.h"
#include "window/states.h"

namespace ztk::window {

class RowsTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { window_.reset(); }
  void TellsWhichSelectorToTurn();
  void NamesTheMixerWhereThereAreTwo();
  void BlamesNoSelectorThatWasNotRead();
  void BlamesNoSelectorWhereThereIsNone();
  void TellsWhatBecameOfAChange_data();
  void TellsWhatBecameOfAChange();
  void TellsWhatIsKnownOfTheMixers_data();
  void TellsWhatIsKnownOfTheMixers();
  void DoesNotCallTheDefaultRemembered_data();
  void DoesNotCallTheDefaultRemembered();
  void ExplainsASilentChannelInTheWordsOfTheLibrary();
  void ShowsANumberThatIsNoChoice();
  void AChoiceInARowIsWanted();
  void KeysChooseOnlyTheEntryThatIsConfirmed();
  void EscapeLeavesTheChoiceAsItIs();
  void ALetterGoesToTheEntryThatBeginsWithIt();
  void TheWheelChangesNothing();
  void AWrappedTextIsAsHighAsItsLines();

 private:
  ChoiceRow *InputRow(int channel) const {
    return window_->routingPage()->rows()[channel];
  }

  std::unique_ptr<MainWindow> window_;
  State state_;
};

void RowsTest::init() {
  window_ = std::make_unique<MainWindow>();
  state_ = UsualState();
  window_->showState(state_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

void RowsTest::TellsWhichSelectorToTurn() {
  state_.mixers[0].selectors[1] = 1;
  window_->showState(state_);
  QCOMPARE(InputRow(1)->text(),
           QStringLiteral("USB 2 is silent: turn the selector of CH2 from 1 to "
                          "4. Sent to the mixer, and remembered."));
  QCOMPARE(InputRow(3)->text(),
           QStringLiteral("Sent to the mixer, and remembered."));
  const PictureState picture = PictureOf(state_);
  QCOMPARE(picture.selectors[1].position, QStringLiteral("1"));
  QCOMPARE(
      picture.selectors[1].silence,
      QStringLiteral("USB 2 is silent: turn the selector of CH2 from 1 to 4."));
  QCOMPARE(picture.selectors[3].silence, QString());
}

void RowsTest::NamesTheMixerWhereThereAreTwo() {
  state_.mixers.append(AnsweringMixer(2));
  state_.mixers[1].selectors[3] = 2;
  window_->showState(state_);
  QCOMPARE(InputRow(3)->text(),
           QStringLiteral("USB 4 is silent: turn the selector of CH4 on mixer "
                          "2 from 2 to 4. Sent to the mixer, and "
                          "remembered."));
  QCOMPARE(PictureOf(state_).selectors[3].position, QStringLiteral("4/2"));
}

// The library also warns where a selector could not be read.
void RowsTest::BlamesNoSelectorThatWasNotRead() {
  state_.mixers[0].selectors = {};
  RowOf(&state_, model::kInput, 1).warning = "The selector has to be turned.";
  window_->showState(state_);
  QCOMPARE(InputRow(1)->text(),
           QStringLiteral("Sent to the mixer, and remembered."));
  QCOMPARE(InputRow(1)->toolTip(), QString());
}

// The library warns of USB channel 5 although no selector belongs to it.
void RowsTest::BlamesNoSelectorWhereThereIsNone() {
  RowOf(&state_, model::kInput, 4).warning = "The selector has to be turned.";
  window_->showState(state_);
  QCOMPARE(InputRow(4)->text(),
           QStringLiteral("Sent to the mixer, and remembered."));
  QCOMPARE(InputRow(4)->toolTip(), QString());
}

void RowsTest::TellsWhatBecameOfAChange_data() {
  QTest::addColumn<int>("delivery");
  QTest::addColumn<int>("accepted");
  QTest::addColumn<QString>("reason");
  QTest::addColumn<QString>("expected");
  const auto row = [](const char *name, Delivery delivery, int accepted,
                      const char *reason, const char *expected) {
    QTest::newRow(name) << static_cast<int>(delivery) << accepted
                        << QString::fromUtf8(reason)
                        << QString::fromUtf8(expected);
  };
  row("idle", Delivery::Idle, 0, "", "Remembered; not confirmed.");
  row("sending", Delivery::Sending, 0, "", "Sending…");
  row("sent", Delivery::Sent, 1, "", "Sent to the mixer, and remembered.");
  row("sent to two", Delivery::Sent, 2, "",
      "Sent to 2 mixers, and remembered.");
  row("no answer", Delivery::RememberedOnly, 0, "Mixer 1 does not answer.",
      "Remembered only. Mixer 1 does not answer.");
  row("one of two", Delivery::RememberedOnly, 1, "Mixer 2 does not answer.",
      "Sent to the mixer, and remembered. Mixer 2 does not answer.");
  row("not stored", Delivery::Failed, 0, "Not stored: the disk is full.",
      "Not stored: the disk is full.");
}

void RowsTest::TellsWhatBecameOfAChange() {
  QFETCH(const int, delivery);
  QFETCH(const int, accepted);
  QFETCH(const QString, reason);
  QFETCH(const QString, expected);
  RowState &row = RowOf(&state_, model::kInput, 0);
  row.delivery = static_cast<Delivery>(delivery);
  row.accepted = accepted;
  row.reason = reason;
  window_->showState(state_);
  QCOMPARE(InputRow(0)->text(), expected);
  QCOMPARE(InputRow(0)->box()->accessibleDescription(), expected);
}

void RowsTest::TellsWhatIsKnownOfTheMixers_data() {
  QTest::addColumn<int>("inMixers");
  QTest::addColumn<bool>("isStored");
  QTest::addColumn<QString>("expected");
  QTest::addColumn<int>("wire");
  const auto row = [](const char *name, InMixers inMixers, bool isStored,
                      const char *expected, InMixers wire) {
    QTest::newRow(name) << static_cast<int>(inMixers) << isStored << expected
                        << static_cast<int>(wire);
  };
  row("not known", InMixers::NotKnown, true, "Remembered; not confirmed.",
      InMixers::NotKnown);
  row("in none", InMixers::None, true, "Remembered; no mixer has it.",
      InMixers::None);
  row("not known, default", InMixers::NotKnown, false,
      "Nothing is remembered; this is the default.", InMixers::NotKnown);
  // Its wire is not dashed, which would mean "only remembered".
  row("in none, default", InMixers::None, false,
      "Nothing is remembered; this is the default.", InMixers::NotKnown);
  row("in every one, default", InMixers::Every, false,
      "Nothing is remembered; this is the default.", InMixers::Every);
}

void RowsTest::TellsWhatIsKnownOfTheMixers() {
  QFETCH(const int, inMixers);
  QFETCH(const bool, isStored);
  QFETCH(const QString, expected);
  QFETCH(const int, wire);
  RowState &row = RowOf(&state_, model::kInput, 0);
  row.delivery = Delivery::Idle;
  row.inMixers = static_cast<InMixers>(inMixers);
  if (!isStored) row.stored.reset();
  window_->showState(state_);
  QCOMPARE(InputRow(0)->text(), expected);
  QCOMPARE(static_cast<int>(PictureOf(state_).channels[0].inMixers), wire);
}

// Undo can bring back the default, after which nothing is remembered.
void RowsTest::DoesNotCallTheDefaultRemembered_data() {
  QTest::addColumn<int>("accepted");
  QTest::addColumn<QString>("reason");
  QTest::addColumn<QString>("expected");
  QTest::newRow("one mixer")
      << 1 << ""
      << "Sent to the mixer. Nothing is remembered; this is the default.";
  QTest::newRow("two mixers")
      << 2 << ""
      << "Sent to 2 mixers. Nothing is remembered; this is the default.";
  QTest::newRow("no mixer") << 0 << "No mixer is attached."
                            << "Nothing is remembered; this is the default. "
                               "No mixer is attached.";
}

void RowsTest::DoesNotCallTheDefaultRemembered() {
  QFETCH(const int, accepted);
  QFETCH(const QString, reason);
  QFETCH(const QString, expected);
  RowState &row = RowOf(&state_, model::kInput, 0);
  row.stored.reset();
  row.delivery = accepted == 0 ? Delivery::RememberedOnly : Delivery::Sent;
  row.accepted = accepted;
  row.reason = reason;
  window_->showState(state_);
  QCOMPARE(InputRow(0)->text(), expected);
}

// The library's text about a choice that cannot be heard.
void RowsTest::ExplainsASilentChannelInTheWordsOfTheLibrary() {
  RowOf(&state_, model::kInput, 1).warning = "Set the input selector.";
  state_.mixers[0].selectors[1] = 1;
  window_->showState(state_);
  QCOMPARE(InputRow(1)->toolTip(), QStringLiteral("Set the input selector."));
  QCOMPARE(InputRow(0)->toolTip(), QString());
}

void RowsTest::ShowsANumberThatIsNoChoice() {
  RowState &row = RowOf(&state_, model::kInput, 2);
  row.stored = 77;
  row.shown = 77;
  window_->showState(state_);
  QCOMPARE(InputRow(2)->box()->currentIndex(), -1);
  QCOMPARE(InputRow(2)->box()->placeholderText(),
           QStringLiteral("77, which is not a choice"));
  QCOMPARE(window_->routingPage()->picture()->wires().size(), 4);
}

void RowsTest::AChoiceInARowIsWanted() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(1)->box();
  box->showPopup();
  box->setCurrentIndex(2);
  emit box->activated(2);
  box->hidePopup();
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][1].toUInt(), 1U);
  QCOMPARE(chosen[0][2].toUInt(), 2U);
}

void RowsTest::KeysChooseOnlyTheEntryThatIsConfirmed() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(0)->box();
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  QVERIFY(box->view()->isVisible());
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Down);
  QCOMPARE(chosen.size(), 0);
  QTest::keyClick(box->view(), Qt::Key_Return);
  QCOMPARE(chosen.size(), 1);
  QCOMPARE(chosen[0][2].toUInt(), 4U);
}

void RowsTest::EscapeLeavesTheChoiceAsItIs() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(0)->box();
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Escape);
  QVERIFY(QTest::qWaitFor([box] { return !box->view()->isVisible(); }));
  QCOMPARE(box->currentIndex(), 2);
  QCOMPARE(chosen.size(), 0);
}

void RowsTest::ALetterGoesToTheEntryThatBeginsWithIt() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(0)->box();
  box->setFocus();
  QTest::keyClick(box, 'm');
  QVERIFY(box->view()->isVisible());
  QCOMPARE(box->view()->currentIndex().data().toString(),
           QStringLiteral("MIC"));
  QCOMPARE(chosen.size(), 0);
}

void RowsTest::TheWheelChangesNothing() {
  QSignalSpy chosen(window_.get(), &MainWindow::chosen);
  QComboBox *box = InputRow(0)->box();
  box->setFocus();
  QWheelEvent event(QPointF(3, 3), box->mapToGlobal(QPointF(3, 3)), {},
                    QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(box, &event);
  QCOMPARE(box->currentIndex(), 2);
  QCOMPARE(chosen.size(), 0);
}

void RowsTest::AWrappedTextIsAsHighAsItsLines() {
  WrappedText text;
  QLabel label;
  label.setWordWrap(true);
  const auto isAsHigh = [&](int width) {
    return text.heightForWidth(width) == label.heightForWidth(width);
  };
  for (const char *words : {"No mixer is attached.",
                            "No mixer is attached. Mixer 1 was unplugged or "
                            "switched off. Mixer 2 does not answer."}) {
    text.setText(QLatin1String(words));
    label.setText(QLatin1String(words));
    QVERIFY(isAsHigh(100));
    QVERIFY(isAsHigh(300));
  }
  QFont large = label.font();
  large.setPointSizeF(large.pointSizeF() * 2);
  text.setFont(large);
  label.setFont(large);
  QVERIFY(isAsHigh(100));
}

namespace {
const bool kRowsRegistered = Register<RowsTest>("RowsTest");
}  // namespace

}  // namespace ztk::window

#include "rows_test.moc"
