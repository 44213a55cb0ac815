// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_CLUB_MENU_H_
#define ZTK_TOOLS_WINDOW_PAGES_CLUB_MENU_H_

#include <QMenu>

#include "window/engine/state.h"

class QMessageBox;

namespace ztk::window {

// The menu of the saved settings, with the questions that it asks. It only
// tells what the user wants, and reads and writes no file.
class ClubMenu : public QMenu {
  Q_OBJECT

 public:
  explicit ClubMenu(QWidget *parent);

  void showClubs(const QList<ClubState> &clubs);

 signals:
  void previewWanted(const QString &path);
  void saveWanted(const QString &name);
  void deleteWanted(const QString &path);
  // The list of clubs is about to be used.
  void clubsWanted();

 private:
  void AskForName();
  void Save(const QString &name);
  void AddDeletion();
  void AskBeforeDeleting(const ClubState &club);
  QMessageBox *Ask(const QString &title, const QString &question,
                   const QString &answer);

  QList<ClubState> clubs_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_CLUB_MENU_H_
