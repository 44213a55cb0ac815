// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_
#define ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_

#include <QComboBox>
#include <QWheelEvent>

namespace ztk::window {

// The wheel scrolls the page; it changes no choice.
class ChoiceBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_
