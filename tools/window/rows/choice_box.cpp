// SPDX-License-Identifier: MIT
#include "window/rows/choice_box.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>

namespace ztk::window {

namespace {

bool MovesToAnotherEntry(const QKeyEvent &event) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

// A letter goes to the entry that begins with it.
bool IsTyped(const QKeyEvent &event) {
  const QString text = event.text();
  return event.key() != Qt::Key_Space && !text.isEmpty() && text[0].isPrint() &&
         !event.modifiers().testFlag(Qt::ControlModifier) &&
         !event.modifiers().testFlag(Qt::AltModifier);
}

}  // namespace

void ChoiceBox::keyPressEvent(QKeyEvent *event) {
  if (MovesToAnotherEntry(*event)) {
    showPopup();
  } else if (IsTyped(*event)) {
    showPopup();
    view()->keyboardSearch(event->text());
  } else {
    QComboBox::keyPressEvent(event);
  }
}

void ChoiceBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

}  // namespace ztk::window
