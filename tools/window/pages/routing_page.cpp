// SPDX-License-Identifier: MIT
#include "window/pages/routing_page.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "window/picture/picture.h"
#include "window/rows/choice_row.h"
#include "window/rows/row_text.h"

namespace ztk::window {

namespace {

// "4", or "4/1" for two mixers that differ.
PictureState::Selector SelectorOf(const State &state, std::size_t lane) {
  QStringList positions;
  for (const MixerState &mixer : state.mixers) {
    const auto &position = mixer.selectors[lane];
    if (!position) continue;
    const QString text = QString::number(*position);
    if (!positions.contains(text)) positions.append(text);
  }
  PictureState::Selector selector;
  selector.position = positions.join(QLatin1Char('/'));
  const RowState *row =
      state.Row(model::kInput, static_cast<std::uint32_t>(lane));
  if (row != nullptr) {
    selector.silence = SilenceTexts(*row, state).join(QLatin1Char('\n'));
  }
  return selector;
}

// Dashed means "only remembered", so a row with nothing remembered is not
// dashed.
InMixers WireOf(const RowState &row) {
  return row.inMixers == InMixers::None && !row.stored ? InMixers::NotKnown
                                                       : row.inMixers;
}

}  // namespace

PictureState PictureOf(const State &state) {
  PictureState picture;
  for (std::size_t i = 0; i < picture.channels.size(); ++i) {
    const auto channel = static_cast<std::uint32_t>(i);
    const RowState *row = state.Row(model::kInput, channel);
    if (row == nullptr) continue;
    picture.channels[i] = {.tap = model::TapOf(channel, row->shown),
                           .inMixers = WireOf(*row)};
  }
  for (std::size_t lane = 0; lane < picture.selectors.size(); ++lane) {
    picture.selectors[lane] = SelectorOf(state, lane);
  }
  return picture;
}

RoutingPage::RoutingPage(QWidget *parent)
    : QWidget(parent), picture_(new Picture(this)), hint_(new QLabel(this)) {
  const int unit = fontMetrics().height();
  auto *column = new QVBoxLayout;
  column->setSpacing(unit / 2);
  auto *layout = new QHBoxLayout;
  layout->setSpacing(0);
  layout->addWidget(picture_, 2);
  layout->addLayout(column, 1);
  auto *whole = new QVBoxLayout(this);
  whole->setContentsMargins(unit, unit / 2, unit, unit / 2);
  whole->addWidget(hint_);
  whole->addLayout(layout, 1);
  for (std::uint32_t channel = 0; channel < model::kInput.channels; ++channel) {
    AddRow(model::kInput, channel);
    column->addWidget(rows_.last());
    column->addStretch(1);
  }
  AddRow(model::kBoost, 0);
  column->addWidget(rows_.last());
  column->addStretch(8);
  picture_->installEventFilter(this);
  connect(picture_, &Picture::activeChannelChanged, this,
          &RoutingPage::SetActive);
  connect(picture_, &Picture::tapChosen, this, &RoutingPage::ChooseTap);
  SetActive(0);
}

void RoutingPage::AddRow(const model::Setting &setting, std::uint32_t channel) {
  auto *row = new ChoiceRow(setting, channel, this);
  row->setMinimumWidth(14 * fontMetrics().height());
  row->installEventFilter(this);
  row->box()->installEventFilter(this);
  connect(row, &ChoiceRow::chosen, this, &RoutingPage::chosen);
  if (&setting == &model::kInput) {
    connect(row, &ChoiceRow::entered, this, [this](ChoiceRow *entered) {
      SetActive(static_cast<int>(entered->channel()));
    });
  }
  rows_.append(row);
}

void RoutingPage::showState(const State &state) {
  for (ChoiceRow *row : rows_) row->showState(state);
  picture_->showState(PictureOf(state));
}

void RoutingPage::SetActive(int channel) {
  picture_->setActiveChannel(channel);
  hint_->setText(
      tr("Click a circle to record it on USB %1, or drag a number to "
         "another circle.")
          .arg(channel + 1) +
      QLatin1Char('\n') +
      tr("Solid wire: every mixer has it. Dotted: not confirmed. Dashed: "
         "only remembered."));
  for (ChoiceRow *row : rows_) {
    row->setActive(&row->setting() == &model::kInput &&
                   static_cast<int>(row->channel()) == channel);
  }
}

void RoutingPage::ChooseTap(int channel, const model::Tap &tap) {
  SetActive(channel);
  const auto usbChannel = static_cast<std::uint32_t>(channel);
  const auto index = model::IndexOf(usbChannel, tap);
  if (index) emit chosen(model::kInput, usbChannel, *index);
}

void RoutingPage::PlaceWires() {
  std::array<qreal, kWires> heights{};
  for (std::size_t i = 0; i < heights.size(); ++i) {
    const ChoiceRow *row = rows_[static_cast<qsizetype>(i)];
    heights[i] = row->y() + row->wireHeight() - picture_->y();
  }
  picture_->setRows(heights);
}

bool RoutingPage::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
    PlaceWires();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace ztk::window
