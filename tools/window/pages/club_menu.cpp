// SPDX-License-Identifier: MIT
#include "window/pages/club_menu.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "window/engine/clubs.h"

namespace ztk::window {

namespace {

// "&" underlines the next letter in a menu; "&&" is shown as "&".
QString Entry(const ClubState &club) {
  QString text = club.name;
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

ClubMenu::ClubMenu(QWidget *parent) : QMenu(tr("&Clubs"), parent) {
  connect(this, &QMenu::aboutToShow, this, &ClubMenu::clubsWanted);
  showClubs({});
}

void ClubMenu::showClubs(const QList<ClubState> &clubs) {
  if (clubs == clubs_ && !isEmpty()) return;
  clubs_ = clubs;
  clear();
  for (const ClubState &club : clubs) {
    connect(addAction(Entry(club)), &QAction::triggered, this,
            [this, path = club.path] { emit previewWanted(path); });
  }
  if (!clubs.isEmpty()) addSeparator();
  QAction *save = addAction(tr("&Save as a club…"));
  save->setShortcut(QKeySequence::Save);
  connect(save, &QAction::triggered, this, &ClubMenu::AskForName);
  if (!clubs.isEmpty()) AddDeletion();
}

void ClubMenu::AddDeletion() {
  QMenu *menu = addMenu(tr("&Delete a club"));
  for (const ClubState &club : clubs_) {
    connect(menu->addAction(Entry(club)), &QAction::triggered, this,
            [this, club] { AskBeforeDeleting(club); });
  }
}

void ClubMenu::AskForName() {
  auto *dialog = new QInputDialog(parentWidget());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(tr("Save as a club"));
  dialog->setLabelText(
      tr("Name of the club; all remembered settings are "
         "saved under it:"));
  connect(dialog, &QInputDialog::textValueSelected, this,
          [this](const QString &name) { Save(name.trimmed()); });
  dialog->open();
  QPushButton *ok =
      dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
  ok->setEnabled(false);
  connect(
      dialog, &QInputDialog::textValueChanged, ok,
      [ok](const QString &name) { ok->setEnabled(!name.trimmed().isEmpty()); });
  // Another program may have saved a club since.
  emit clubsWanted();
}

void ClubMenu::Save(const QString &name) {
  if (name.isEmpty()) return;
  const QString listed = ListedClubName(name);
  if (std::none_of(
          clubs_.begin(), clubs_.end(),
          [&listed](const ClubState &club) { return club.name == listed; })) {
    emit saveWanted(name);
    return;
  }
  connect(Ask(tr("Save as a club"),
              tr("There is already a club “%1”. Replace it?").arg(listed),
              tr("&Replace")),
          &QMessageBox::accepted, this,
          [this, name] { emit saveWanted(name); });
}

void ClubMenu::AskBeforeDeleting(const ClubState &club) {
  connect(Ask(tr("Delete a club"),
              tr("Delete the club “%1”? This cannot be undone.").arg(club.name),
              tr("&Delete")),
          &QMessageBox::accepted, this,
          [this, path = club.path] { emit deleteWanted(path); });
}

// Opens a question that Cancel answers unless the user chooses `answer`.
QMessageBox *ClubMenu::Ask(const QString &title, const QString &question,
                           const QString &answer) {
  auto *box = new QMessageBox(QMessageBox::Question, title, question,
                              QMessageBox::Cancel, parentWidget());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->addButton(answer, QMessageBox::AcceptRole);
  box->setDefaultButton(QMessageBox::Cancel);
  box->open();
  return box;
}

}  // namespace ztk::window
