// SPDX-License-Identifier: MIT
#include "window/main_window.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "window/pages/club_dialog.h"
#include "window/pages/club_menu.h"
#include "window/pages/notices.h"
#include "window/pages/routing_page.h"
#include "window/pages/rows_page.h"
#include "window/rows/wrapped_text.h"

namespace ztk::window {

namespace {

// Of one model, in the order of the settings.
QList<const model::Setting *> SettingsOf(const std::string &modelName) {
  QList<const model::Setting *> settings;
  for (const model::Setting *setting : model::AllSettings()) {
    if (model::ModelName(*setting) == modelName) settings.append(setting);
  }
  return settings;
}

QLabel *MakeSentence(QWidget *parent, const char *name) {
  auto *label = new WrappedText(parent);
  label->setObjectName(QLatin1String(name));
  return label;
}

void ReadOut(QLabel *label) {
  QAccessibleEvent event(label, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

MainWindow::MainWindow() {
  setWindowTitle(tr("Mixer settings"));
  notices_ = new Notices(this);
  auto *tabs = new QTabWidget(this);
  tabs->setDocumentMode(true);
  AddPages(tabs);
  MakeMenus();

  auto *whole = new QWidget(this);
  auto *layout = new QVBoxLayout(whole);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(tabs, 1);
  // Below the pages, so that a notice that comes does not move them.
  layout->addWidget(notices_);
  layout->addWidget(MakeLowerBar());
  // Nothing is cut on a small screen or with large letters.
  auto *scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(whole);
  setCentralWidget(scroll);
  // A key can give the focus to a row that is out of sight.
  connect(qApp, &QApplication::focusChanged, scroll,
          [scroll](const QWidget * /*old*/, QWidget *now) {
            auto *box = qobject_cast<QComboBox *>(now);
            if (box == nullptr || !scroll->isAncestorOf(box) ||
                QApplication::mouseButtons() != Qt::NoButton) {
              return;
            }
            scroll->ensureWidgetVisible(box->parentWidget());
            scroll->ensureWidgetVisible(box);
          });
  content_ = whole;
  TakeSpace();
}

// All of it without scrolling, as far as the screen is large enough. A window
// that the user has resized keeps its size.
void MainWindow::TakeSpace() {
  if (taken_.isValid() && taken_ != size()) return;
  // A scroll bar for the height must not make one for the width necessary.
  const int width =
      std::max(content_->sizeHint().width() +
                   style()->pixelMetric(QStyle::PM_ScrollBarExtent),
               taken_.width());
  const int height =
      std::max(content_->sizeHint().height(), content_->heightForWidth(width)) +
      menuBar()->sizeHint().height();
  taken_ = QSize(width, std::max(height, taken_.height()))
               .boundedTo(screen()->availableSize() * 0.95);
  resize(taken_);
}

void MainWindow::AddPages(QTabWidget *tabs) {
  const std::string own = model::ModelName(model::kInput);
  for (const std::string &name : model::ModelNames()) {
    const QString title = QString::fromStdString(name);
    if (name == own) {
      routing_ = new RoutingPage(tabs);
      connect(routing_, &RoutingPage::chosen, this, &MainWindow::chosen);
      tabs->addTab(routing_, title);
      continue;
    }
    auto *page = new RowsPage(SettingsOf(name), tabs);
    connect(page, &RowsPage::chosen, this, &MainWindow::chosen);
    tabs->addTab(page, title);
    otherPages_.append(page);
  }
  connect(this, &MainWindow::chosen, this, [this] { showMessage({}); });
}

QAction *MainWindow::AddAction(QMenu *menu, const QString &text,
                               const QKeySequence &shortcut) {
  QAction *action = menu->addAction(text);
  action->setShortcut(shortcut);
  connect(action, &QAction::triggered, this, [this] { showMessage({}); });
  return action;
}

void MainWindow::MakeMenus() {
  // It has no icon: see Style.
  auto *rest = menuBar()->findChild<QToolButton *>(
      QStringLiteral("qt_menubar_ext_button"));
  if (rest != nullptr) rest->setArrowType(Qt::RightArrow);
  QMenu *file = menuBar()->addMenu(tr("&File"));
  QAction *quit = AddAction(file, tr("&Quit"), QKeySequence::Quit);
  quit->setMenuRole(QAction::QuitRole);
  connect(quit, &QAction::triggered, this, &MainWindow::close);

  QMenu *edit = menuBar()->addMenu(tr("&Edit"));
  undo_ = AddAction(edit, tr("&Undo"), QKeySequence::Undo);
  connect(undo_, &QAction::triggered, this, &MainWindow::undoWanted);

  QMenu *mixer = menuBar()->addMenu(tr("&Mixer"));
  mixer->setToolTipsVisible(true);
  resend_ = AddAction(mixer, tr("&Send all again"), tr("Ctrl+R"));
  connect(resend_, &QAction::triggered, this, &MainWindow::resendWanted);
  autoapply_ =
      AddAction(mixer, tr("Send all at each &plug-in"), QKeySequence());
  autoapply_->setCheckable(true);
  connect(autoapply_, &QAction::triggered, this, &MainWindow::autoapplyWanted);
  mixer->addSeparator();
  QAction *check = AddAction(mixer, tr("&Check again"), Qt::Key_F5);
  connect(check, &QAction::triggered, this, &MainWindow::checkWanted);

  clubs_ = new ClubMenu(this);
  menuBar()->addMenu(clubs_);
  connect(clubs_, &QMenu::triggered, this, [this] { showMessage({}); });
  connect(clubs_, &ClubMenu::previewWanted, this, &MainWindow::previewWanted);
  connect(clubs_, &ClubMenu::saveWanted, this, &MainWindow::saveWanted);
  connect(clubs_, &ClubMenu::deleteWanted, this, &MainWindow::deleteWanted);
  connect(clubs_, &ClubMenu::clubsWanted, this, &MainWindow::clubsWanted);
}

QWidget *MainWindow::MakeLowerBar() {
  auto *bar = new QWidget(this);
  auto *sentences = new QWidget(bar);
  message_ = MakeSentence(sentences, "message");
  notKnown_ = MakeSentence(sentences, "notKnown");
  notKnown_->setText(
      tr("It is not known whether every mixer has what is remembered. Send all "
         "again to be sure."));
  message_->hide();
  notKnown_->hide();
  undoButton_ = new QPushButton(bar);
  connect(undoButton_, &QPushButton::clicked, undo_, &QAction::trigger);
  resendButton_ = new QPushButton(resend_->text(), bar);
  resendButton_->setToolTip(
      tr("Sends what is remembered to the mixers; changes nothing."));
  connect(resendButton_, &QPushButton::clicked, resend_, &QAction::trigger);
  auto *layout = new QHBoxLayout(bar);
  const int unit = bar->fontMetrics().height();
  layout->setContentsMargins(unit, 0, unit, unit / 2);
  auto *column = new QVBoxLayout(sentences);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(message_);
  column->addWidget(notKnown_);
  layout->addWidget(sentences, 1);
  layout->addWidget(undoButton_);
  layout->addWidget(resendButton_);
  return bar;
}

void MainWindow::showState(const State &state) {
  notices_->showState(state);
  routing_->showState(state);
  for (RowsPage *page : otherPages_) page->showState(state);
  ShowUndo(state);
  ShowResend(state);
  ShowNotKnown(state.NeedsSending());
  ShowAutoapply(state);
  clubs_->showClubs(state.clubs);
  // After the layouts have taken in what is new.
  QTimer::singleShot(0, this, &MainWindow::TakeSpace);
}

void MainWindow::ShowUndo(const State &state) {
  undo_->setEnabled(state.canUndo);
  undo_->setText(state.canUndo ? tr("&Undo: %1").arg(state.undoes)
                               : tr("&Undo"));
  undoButton_->setEnabled(state.canUndo);
  undoButton_->setText(undo_->text());
}

// Needs something that is remembered, and a mixer to send it to.
void MainWindow::ShowResend(const State &state) {
  const bool possible =
      state.AnyAttached() &&
      std::any_of(state.rows.begin(), state.rows.end(),
                  [](const RowState &row) { return row.stored.has_value(); });
  resend_->setEnabled(possible);
  resendButton_->setEnabled(possible);
}

void MainWindow::ShowAutoapply(const State &state) {
  autoapply_->setEnabled(state.autoapply != Autoapply::Unavailable);
  autoapply_->setChecked(state.autoapply == Autoapply::On);
  autoapply_->setToolTip(state.whyNoAutoapply);
}

void MainWindow::showPreview(const ClubPreview &preview) {
  auto *dialog = new ClubDialog(preview, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &ClubDialog::accepted, this,
          [this, path = preview.club.path] { emit applyWanted(path); });
  if (preview.needsSending) dialog->OfferSending(notKnown_->text(), resend_);
  dialog->open();
}

void MainWindow::showMessage(const QString &message) {
  if (message_->text() == message) return;
  message_->setText(message);
  message_->setVisible(!message.isEmpty());
  if (!message.isEmpty()) ReadOut(message_);
}

// Beside the button that ends it.
void MainWindow::ShowNotKnown(bool notKnown) {
  if (notKnown_->isHidden() != notKnown) return;
  notKnown_->setVisible(notKnown);
  if (notKnown) ReadOut(notKnown_);
}

void MainWindow::TellVisibility() {
  emit visibilityChanged(isVisible() && !isMinimized());
}

void MainWindow::changeEvent(QEvent *event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) TellVisibility();
}

// Hidden at once; what still runs ends without the window.
void MainWindow::closeEvent(QCloseEvent *event) {
  hide();
  event->accept();
}

void MainWindow::hideEvent(QHideEvent *event) {
  QMainWindow::hideEvent(event);
  TellVisibility();
}

void MainWindow::paintEvent(QPaintEvent *event) {
  QMainWindow::paintEvent(event);
  emit painted();
}

void MainWindow::showEvent(QShowEvent *event) {
  QMainWindow::showEvent(event);
  TellVisibility();
}

}  // namespace ztk::window
