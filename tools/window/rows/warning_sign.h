// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_ROWS_WARNING_SIGN_H_
#define ZTK_TOOLS_WINDOW_ROWS_WARNING_SIGN_H_

#include <QWidget>

namespace ztk::window {

// A triangle with an exclamation mark, as high as a line of text.
class WarningSign : public QWidget {
 public:
  explicit WarningSign(QWidget *parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_WARNING_SIGN_H_
