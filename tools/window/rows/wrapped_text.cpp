// SPDX-License-Identifier: MIT
#include "window/rows/wrapped_text.h"

#include <QEvent>

namespace ztk::window {

WrappedText::WrappedText(QWidget *parent) : WrappedText(QString(), parent) {}

WrappedText::WrappedText(const QString &text, QWidget *parent)
    : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

int WrappedText::heightForWidth(int width) const {
  if (measured_ != text()) heights_.clear();
  measured_ = text();
  const auto known = heights_.constFind(width);
  if (known != heights_.constEnd()) return *known;
  return *heights_.insert(width, QLabel::heightForWidth(width));
}

bool WrappedText::ignoresWidth() const {
  return sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

QSize WrappedText::OneLine() const { return {0, fontMetrics().lineSpacing()}; }

QSize WrappedText::sizeHint() const {
  return ignoresWidth() ? OneLine() : QLabel::sizeHint();
}

QSize WrappedText::minimumSizeHint() const {
  return ignoresWidth() ? OneLine() : QLabel::minimumSizeHint();
}

// Another font or another style has other heights.
void WrappedText::changeEvent(QEvent *event) {
  heights_.clear();
  QLabel::changeEvent(event);
}

}  // namespace ztk::window
