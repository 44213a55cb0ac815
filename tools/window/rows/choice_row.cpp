// SPDX-License-Identifier: MIT
#include "window/rows/choice_row.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "window/rows/choice_box.h"
#include "window/rows/row_text.h"
#include "window/rows/warning_sign.h"
#include "window/rows/wrapped_text.h"

namespace ztk::window {

ChoiceRow::ChoiceRow(const model::Setting &setting, std::uint32_t channel,
                     QWidget *parent)
    : QWidget(parent),
      setting_(setting),
      channel_(channel),
      label_(new QLabel(RowLabel(setting, channel), this)),
      box_(new ChoiceBox(this)),
      sign_(new WarningSign(this)),
      text_(new WrappedText(this)) {
  for (const model::Choice &choice :
       model::ChoicesOf(setting, setting.product, channel)) {
    box_->addItem(QString::fromStdString(choice.text));
  }
  box_->setCurrentIndex(-1);  // nothing is known yet
  box_->installEventFilter(this);
  box_->setObjectName(QStringLiteral("%1 %2").arg(
      QLatin1String(setting.name), QString::number(channel + 1)));
  label_->setBuddy(box_);
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::MinimumExpanding);
  text_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  // Rows keep their height as long as the text has at most two lines.
  text_->setMinimumHeight(2 * text_->fontMetrics().lineSpacing());
  sign_->hide();

  auto *line = new QHBoxLayout;
  line->setSpacing(fontMetrics().height() / 3);
  line->addWidget(sign_, 0, Qt::AlignTop);
  line->addWidget(text_, 1);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(fontMetrics().height() / 5);
  layout->addWidget(label_);
  layout->addWidget(box_);
  layout->addLayout(line);
  connect(box_, &QComboBox::activated, this, [this](int index) {
    emit entered(this);
    emit chosen(setting_, channel_, static_cast<std::uint32_t>(index));
  });
}

QString ChoiceRow::text() const { return text_->text(); }

int ChoiceRow::wireHeight() const { return box_->geometry().center().y(); }

void ChoiceRow::setActive(bool active) {
  QFont font = label_->font();
  if (font.bold() == active) return;
  font.setBold(active);
  label_->setFont(font);
}

void ChoiceRow::ShowChoice(std::uint32_t index) {
  const bool isChoice = index < static_cast<std::uint32_t>(box_->count());
  if (!isChoice) {
    box_->setPlaceholderText(
        tr("%1, which is not a choice").arg(static_cast<std::int32_t>(index)));
  }
  const int shown = isChoice ? static_cast<int>(index) : -1;
  if (box_->currentIndex() != shown) box_->setCurrentIndex(shown);
}

void ChoiceRow::showState(const State &state) {
  const RowState *row = state.Row(setting_, channel_);
  if (row == nullptr) return;
  ShowChoice(row->shown);
  const RowText text = TextOf(*row, state);
  sign_->setVisible(text.needsAttention);
  setToolTip(text.details);
  if (text_->text() == text.text) return;
  text_->setText(text.text);
  // Read out together with the choice.
  box_->setAccessibleDescription(text.text);
}

// The name of the row and the text below it belong to the row, too.
void ChoiceRow::mousePressEvent(QMouseEvent * /*event*/) {
  box_->setFocus(Qt::MouseFocusReason);
  emit entered(this);
}

bool ChoiceRow::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::FocusIn) emit entered(this);
  return QWidget::eventFilter(watched, event);
}

}  // namespace ztk::window
