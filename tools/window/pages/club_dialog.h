// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_
#define ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_

#include <QDialog>

#include "window/engine/state.h"

namespace ztk::window {

// What a club would change. It is applied when the dialog is accepted.
class ClubDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ClubDialog(const ClubPreview &preview, QWidget *parent = nullptr);
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_CLUB_DIALOG_H_
