// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_
#define ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_

#include <QMainWindow>

#include "window/engine/state.h"

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QTabWidget;

namespace ztk::window {

class ClubMenu;
class Notices;
class RoutingPage;
class RowsPage;

// Shows a state, and tells with signals what the user wants. It calls neither
// the library nor the model once it is made.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();

  void showState(const State &state);
  // What a club would change, with the question whether to apply it.
  void showPreview(const ClubPreview &preview);
  // A sentence below the pages; it stays until the user does something else.
  void showMessage(const QString &message);

  RoutingPage *routingPage() const { return routing_; }
  const QList<RowsPage *> &otherPages() const { return otherPages_; }

 signals:
  void chosen(const ztk::model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);
  void undoWanted();
  void resendWanted();
  void autoapplyWanted(bool on);
  void checkWanted();
  void previewWanted(const QString &path);
  void applyWanted(const QString &path);
  void saveWanted(const QString &name);
  void deleteWanted(const QString &path);
  // The list of clubs is about to be used.
  void clubsWanted();
  // Whether anybody can see the window.
  void visibilityChanged(bool visible);
  // A frame is being painted.
  void painted();

 protected:
  void changeEvent(QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  void MakeMenus();
  QAction *AddAction(QMenu *menu, const QString &text,
                     const QKeySequence &shortcut);
  void AddPages(QTabWidget *tabs);
  QWidget *MakeLowerBar();
  void TakeSpace();
  void ShowUndo(const State &state);
  void ShowAutoapply(const State &state);
  void ShowResend(const State &state);
  void ShowNotKnown(bool notKnown);
  void TellVisibility();

  QWidget *content_ = nullptr;
  QSize taken_;
  ClubMenu *clubs_ = nullptr;
  QAction *undo_ = nullptr;
  QAction *resend_ = nullptr;
  QAction *autoapply_ = nullptr;
  Notices *notices_ = nullptr;
  RoutingPage *routing_ = nullptr;
  QList<RowsPage *> otherPages_;
  QLabel *message_ = nullptr;
  QLabel *notKnown_ = nullptr;
  QPushButton *undoButton_ = nullptr;
  QPushButton *resendButton_ = nullptr;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_
