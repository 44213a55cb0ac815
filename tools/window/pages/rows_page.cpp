// SPDX-License-Identifier: MIT
#include "window/pages/rows_page.h"

#include <QVBoxLayout>

#include "window/rows/choice_row.h"

namespace ztk::window {

RowsPage::RowsPage(const QList<const model::Setting *> &settings,
                   QWidget *parent)
    : QWidget(parent), settings_(settings) {}

void RowsPage::MakeRows() {
  const int unit = fontMetrics().height();
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->setSpacing(unit);
  for (const model::Setting *setting : settings_) {
    for (std::uint32_t channel = 0; channel < model::ChannelsToWalk(*setting);
         ++channel) {
      auto *row = new ChoiceRow(*setting, channel, this);
      row->setMaximumWidth(28 * unit);
      connect(row, &ChoiceRow::chosen, this, &RowsPage::chosen);
      layout->addWidget(row);
      rows_.append(row);
    }
  }
  layout->addStretch(1);
}

void RowsPage::showState(const State &state) {
  state_ = state;
  for (ChoiceRow *row : rows_) row->showState(state);
}

void RowsPage::showEvent(QShowEvent *event) {
  if (rows_.isEmpty()) {
    MakeRows();
    showState(state_);
  }
  QWidget::showEvent(event);
}

}  // namespace ztk::window
