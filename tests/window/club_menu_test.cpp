// SPDX-License-Identifier: MIT
//
// Saved settings in the window: the menu, its questions and the preview.
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "window/cut_texts.h"
#include "window/main_window.h"
#include "window/pages/club_dialog.h"
#include "window/registry.h"
#include "window/states.h"

namespace ztk::window {

namespace {

// The button whose text, without its mnemonic, is this.
void Press(QMessageBox *question, const QString &text) {
  for (QAbstractButton *button : question->buttons()) {
    if (button->text().remove(QLatin1Char('&')) == text) button->click();
  }
  delete question;
}

}  // namespace

class ClubMenuTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void ListsClubsAndAppliesAfterAPreview();
  void DoesNotApplyABrokenClub();
  void DoesNotApplyAClubThatChangesNothing();
  void OffersToSendAClubThatIsNotConfirmed();
  void AsksBeforeItReplacesAClub();
  void AsksBeforeItDeletesAClub();
  void WantsANameForAClub();
  void ReadsTheClubsAgainWhenTheyAreUsed();

 private:
  QAction *Action(const QString &text) const;

  std::unique_ptr<MainWindow> window_;
  State state_;
};

void ClubMenuTest::init() {
  window_ = std::make_unique<MainWindow>();
  state_ = UsualState();
  window_->showState(state_);
  window_->show();
  QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

void ClubMenuTest::cleanup() { window_.reset(); }

// The one whose text, without its mnemonic, starts so.
QAction *ClubMenuTest::Action(const QString &text) const {
  for (QAction *action : window_->findChildren<QAction *>()) {
    if (action->text().remove(QLatin1Char('&')).startsWith(text)) return action;
  }
  return nullptr;
}

void ClubMenuTest::ListsClubsAndAppliesAfterAPreview() {
  QSignalSpy preview(window_.get(), &MainWindow::previewWanted);
  QSignalSpy apply(window_.get(), &MainWindow::applyWanted);
  state_.clubs = {{.name = "Friday", .path = "/clubs/Friday.json"}};
  window_->showState(state_);
  Action("Friday")->trigger();
  QCOMPARE(preview.size(), 1);
  QCOMPARE(preview[0][0].toString(), QStringLiteral("/clubs/Friday.json"));
  window_->showPreview({.club = state_.clubs[0],
                        .changes = {{.place = "USB input 2",
                                     .before = "REC OUT",
                                     .after = "Post CH2 Fader"}},
                        .error = {},
                        .kept = {"USB input 1", "MIDI channel"}});
  auto *dialog = window_->findChild<ClubDialog *>();
  QVERIFY(dialog != nullptr);
  QStringList texts;
  for (QLabel *label : dialog->findChildren<QLabel *>()) {
    texts.append(label->text());
  }
  QVERIFY(texts.contains("Post CH2 Fader"));
  QVERIFY(texts.contains(
      "Not in this club, and not changed: USB input 1, MIDI channel."));
  QCOMPARE(apply.size(), 0);
  dialog->accept();
  QCOMPARE(apply.size(), 1);
  QCOMPARE(apply[0][0].toString(), QStringLiteral("/clubs/Friday.json"));
}

void ClubMenuTest::DoesNotApplyABrokenClub() {
  window_->showPreview({.club = {.name = "Friday", .path = "/f"},
                        .changes = {},
                        .error = "The file is empty.",
                        .kept = {}});
  auto *dialog = window_->findChild<ClubDialog *>();
  auto *buttons = dialog->findChild<QDialogButtonBox *>();
  QCOMPARE(buttons->buttons().size(), 1);
  QCOMPARE(buttons->standardButton(buttons->buttons()[0]),
           QDialogButtonBox::Close);
}

void ClubMenuTest::DoesNotApplyAClubThatChangesNothing() {
  window_->showPreview({.club = {.name = "Friday", .path = "/f"},
                        .changes = {},
                        .error = {},
                        .kept = {}});
  auto *buttons =
      window_->findChild<ClubDialog *>()->findChild<QDialogButtonBox *>();
  QCOMPARE(buttons->buttons().size(), 1);
  QCOMPARE(buttons->standardButton(buttons->buttons()[0]),
           QDialogButtonBox::Close);
}

void ClubMenuTest::OffersToSendAClubThatIsNotConfirmed() {
  QSignalSpy resend(window_.get(), &MainWindow::resendWanted);
  QSignalSpy apply(window_.get(), &MainWindow::applyWanted);
  window_->showPreview({.club = {.name = "Friday", .path = "/f"},
                        .changes = {},
                        .error = {},
                        .kept = {},
                        .needsSending = true});
  QPointer<ClubDialog> dialog = window_->findChild<ClubDialog *>();
  QCOMPARE(dialog->findChild<QLabel *>()->text(),
           QStringLiteral("“Friday” changes nothing: all of its settings are "
                          "remembered already.\nIt is not known whether every "
                          "mixer has what is remembered. Send all again to be "
                          "sure."));
  SettleLayouts();
  QCOMPARE(CutTexts(*dialog), QStringList());
  QVERIFY(dialog->findChild<QLabel *>("kept") == nullptr);
  QCOMPARE(dialog->findChild<QDialogButtonBox *>()->buttons().size(), 2);
  for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
    if (button->text() == QLatin1String("&Send all again")) button->click();
  }
  QCOMPARE(resend.size(), 1);
  QCOMPARE(apply.size(), 0);
  QVERIFY(dialog.isNull() || !dialog->isVisible());
}

void ClubMenuTest::AsksBeforeItReplacesAClub() {
  QSignalSpy save(window_.get(), &MainWindow::saveWanted);
  state_.clubs = {{.name = "Zed & Co", .path = "/clubs/Zed & Co.json"},
                  {.name = "A-B", .path = "/clubs/A-B.json"}};
  window_->showState(state_);
  QVERIFY(Action("Zed  Co") != nullptr);
  QCOMPARE(Action("Zed  Co")->text(), QStringLiteral("Zed && Co"));
  const auto answer = [this](const QString &name, const QString &button) {
    Action("Save as a club")->trigger();
    auto *dialog = window_->findChild<QInputDialog *>();
    dialog->setTextValue(name);
    dialog->accept();
    delete dialog;
    auto *question = window_->findChild<QMessageBox *>();
    if (question == nullptr) return false;
    Press(question, button);
    return true;
  };
  QVERIFY(answer("Zed & Co", "Cancel"));
  QCOMPARE(save.size(), 0);
  QVERIFY(answer(" Zed & Co ", "Replace"));
  QCOMPARE(save.size(), 1);
  // A file name holds no slash.
  QVERIFY(answer("A/B", "Cancel"));
  QCOMPARE(save.size(), 1);
  QVERIFY(!answer("Friday", "Cancel"));
  QCOMPARE(save.size(), 2);
  QCOMPARE(save[1][0].toString(), QStringLiteral("Friday"));
}

void ClubMenuTest::AsksBeforeItDeletesAClub() {
  QSignalSpy deletion(window_.get(), &MainWindow::deleteWanted);
  QVERIFY(Action("Delete a club") == nullptr);
  state_.clubs = {{.name = "A & B", .path = "/clubs/A & B.json"}};
  window_->showState(state_);
  const auto *menu = Action("Delete a club")->menu();
  for (const QString button : {"Cancel", "Delete"}) {
    menu->actions()[0]->trigger();
    auto *question = window_->findChild<QMessageBox *>();
    QCOMPARE(question->text(),
             QStringLiteral("Delete the club “A & B”? This cannot be undone."));
    QCOMPARE(question->defaultButton(), question->button(QMessageBox::Cancel));
    QCOMPARE(deletion.size(), 0);
    Press(question, button);
  }
  QCOMPARE(deletion.size(), 1);
  QCOMPARE(deletion[0][0].toString(), QStringLiteral("/clubs/A & B.json"));
}

void ClubMenuTest::WantsANameForAClub() {
  Action("Save as a club")->trigger();
  auto *dialog = window_->findChild<QInputDialog *>();
  const QPushButton *ok =
      dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
  QVERIFY(!ok->isEnabled());
  dialog->setTextValue("  ");
  QVERIFY(!ok->isEnabled());
  dialog->setTextValue("Friday");
  QVERIFY(ok->isEnabled());
}

void ClubMenuTest::ReadsTheClubsAgainWhenTheyAreUsed() {
  QSignalSpy wanted(window_.get(), &MainWindow::clubsWanted);
  for (const QAction *menu : window_->menuBar()->actions()) {
    if (menu->text() == QLatin1String("&Clubs"))
      emit menu->menu()->aboutToShow();
  }
  QCOMPARE(wanted.size(), 1);
  Action("Save as a club")->trigger();
  QCOMPARE(wanted.size(), 2);
}

namespace {
const bool kClubMenuRegistered = Register<ClubMenuTest>("ClubMenuTest");
}  // namespace

}  // namespace ztk::window

#include "club_menu_test.moc"
