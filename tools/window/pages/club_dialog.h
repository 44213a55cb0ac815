// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_
#define ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_

#include <QDialog>
#include <QString>

#include "window/engine/state.h"

class QAction;
class QDialogButtonBox;
class QLabel;

namespace ztk::window {

// What a club would change. It is applied when the dialog is accepted.
class ClubDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ClubDialog(const ClubPreview &preview, QWidget *parent = nullptr);

  // Adds a button that triggers the action and closes the dialog, and a
  // sentence that says why.
  void OfferSending(const QString &why, QAction *send);

 private:
  QLabel *introduction_;
  QDialogButtonBox *buttons_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_
