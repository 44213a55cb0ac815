// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_
#define ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_

#include <QComboBox>

namespace ztk::window {

// A choice is sent to the mixers as soon as it is made. So a key that would
// change a closed box opens its list instead: only the entry that the user
// confirms with Enter is chosen, none of those on the way to it. The wheel
// scrolls the page.
class ChoiceBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void keyPressEvent(QKeyEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_CHOICE_BOX_H_
