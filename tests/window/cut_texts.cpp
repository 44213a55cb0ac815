// SPDX-License-Identifier: MIT
#include "window/cut_texts.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>

namespace ztk::window {

namespace {

bool IsCut(const QLabel &label) {
  if (label.text().isEmpty()) return false;
  if (!label.wordWrap()) {
    return label.width() < label.sizeHint().width() ||
           label.height() < label.sizeHint().height();
  }
  const QFontMetrics metrics = label.fontMetrics();
  const QRect needed = metrics.boundingRect(
      QRect(0, 0, label.contentsRect().width(), 100000),
      static_cast<int>(Qt::TextWordWrap | label.alignment()), label.text());
  return needed.width() > label.contentsRect().width() ||
         needed.height() > label.contentsRect().height();
}

bool IsCut(const QWidget &widget) {
  return widget.width() < widget.minimumSizeHint().width() ||
         widget.height() < widget.minimumSizeHint().height();
}

// Whether any choice is cut, also one that is not chosen now.
bool IsCut(const QComboBox &box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  const int room = box.style()
                       ->subControlRect(QStyle::CC_ComboBox, &option,
                                        QStyle::SC_ComboBoxEditField, &box)
                       .width();
  for (int i = 0; i < box.count(); ++i) {
    if (box.fontMetrics().horizontalAdvance(box.itemText(i)) > room)
      return true;
  }
  return IsCut(static_cast<const QWidget &>(box));
}

template <typename Widget>
QList<const Widget *> VisibleIn(const QWidget &window) {
  QList<const Widget *> visible;
  for (const Widget *widget : window.findChildren<Widget *>()) {
    if (widget->isVisible()) visible.append(widget);
  }
  return visible;
}

}  // namespace

QStringList CutTexts(const QWidget &window) {
  QStringList cut;
  for (const QLabel *label : VisibleIn<QLabel>(window)) {
    if (IsCut(*label)) cut.append(label->text());
  }
  for (const QPushButton *button : VisibleIn<QPushButton>(window)) {
    if (IsCut(*button)) cut.append(button->text());
  }
  for (const QComboBox *box : VisibleIn<QComboBox>(window)) {
    if (IsCut(*box)) cut.append(box->currentText());
  }
  for (const QTabBar *tabs : VisibleIn<QTabBar>(window)) {
    if (IsCut(*tabs)) cut.append(tabs->tabText(0));
  }
  return cut;
}

void SettleLayouts() {
  for (int i = 0; i < 10; ++i) QApplication::processEvents();
}

}  // namespace ztk::window
