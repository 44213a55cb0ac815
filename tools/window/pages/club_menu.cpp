// SPDX-License-Identifier: MIT
#include "window/pages/club_menu.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "window/engine/clubs.h"

namespace ztk::window {

ClubMenu::ClubMenu(QWidget *parent) : QMenu(tr("&Clubs"), parent) {
  connect(this, &QMenu::aboutToShow, this, &ClubMenu::clubsWanted);
  showClubs({});
}

void ClubMenu::showClubs(const QList<ClubState> &clubs) {
  if (clubs == clubs_ && !isEmpty()) return;
  clubs_ = clubs;
  clear();
  for (const ClubState &club : clubs) {
    QString text = club.name;
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    connect(addAction(text), &QAction::triggered, this,
            [this, path = club.path] { emit previewWanted(path); });
  }
  if (!clubs.isEmpty()) addSeparator();
  QAction *save = addAction(tr("&Save as a club…"));
  save->setShortcut(QKeySequence::Save);
  connect(save, &QAction::triggered, this, &ClubMenu::AskForName);
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
  auto *question = new QMessageBox(
      QMessageBox::Question, tr("Save as a club"),
      tr("There is already a club “%1”. Replace it?").arg(listed),
      QMessageBox::Yes | QMessageBox::Cancel, parentWidget());
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);
  question->setDefaultButton(QMessageBox::Cancel);
  connect(question, &QMessageBox::accepted, this,
          [this, name] { emit saveWanted(name); });
  question->open();
}

}  // namespace ztk::window
