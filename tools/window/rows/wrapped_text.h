// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_ROWS_WRAPPED_TEXT_H_
#define ZTK_TOOLS_WINDOW_ROWS_WRAPPED_TEXT_H_

#include <QHash>
#include <QLabel>

namespace ztk::window {

// A plain text of several lines. A layout asks a label for the same heights
// several times, and the label breaks the text into lines each time; this class
// remembers the heights.
class WrappedText : public QLabel {
 public:
  explicit WrappedText(QWidget *parent = nullptr);
  explicit WrappedText(const QString &text, QWidget *parent = nullptr);

  int heightForWidth(int width) const override;
  // Where the policy ignores the width, the height follows from the width that
  // the layout chooses, and nothing is measured here.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent *event) override;

 private:
  bool ignoresWidth() const;
  QSize OneLine() const;

  mutable QString measured_;         // the text that the heights belong to
  mutable QHash<int, int> heights_;  // by width
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_WRAPPED_TEXT_H_
