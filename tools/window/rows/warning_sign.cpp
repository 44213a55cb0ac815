// SPDX-License-Identifier: MIT
#include "window/rows/warning_sign.h"

#include <QPainter>

#include "window/picture/picture_painter.h"

namespace ztk::window {

WarningSign::WarningSign(QWidget *parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize WarningSign::sizeHint() const {
  return {fontMetrics().height(), fontMetrics().height()};
}

void WarningSign::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawWarningSign(&painter, QRectF(rect()).adjusted(1, 1, -1, -2));
}

}  // namespace ztk::window
