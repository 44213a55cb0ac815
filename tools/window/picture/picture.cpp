// SPDX-License-Identifier: MIT
#include "window/picture/picture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/picture/picture_painter.h"

namespace ztk::window {

namespace {

// A picture that is larger beside its texts is harder to read.
constexpr qreal kLargestScale = 1.5;

qreal Distance(QPointF one, QPointF other) {
  return QLineF(one, other).length();
}

// The USB channels that can record this tap, as a sentence after another one.
QString Alternatives(const model::Tap &tap) {
  QStringList channels;
  for (std::uint32_t channel = 0; channel < kWires; ++channel) {
    if (model::IndexOf(channel, tap)) {
      channels.append(QStringLiteral("USB %1").arg(channel + 1));
    }
  }
  if (channels.isEmpty()) return {};
  return QLatin1Char(' ') + Picture::tr("Possible with: %1.")
                                .arg(channels.join(QLatin1String(", ")));
}

PictureWords Words() {
  return {.inputs = Picture::tr("Inputs"),
          .selector = Picture::tr("Selector"),
          .fader = Picture::tr("Fader"),
          .crossFader = Picture::tr("Cross fader")};
}

}  // namespace

QString TapName(const model::Tap &tap) {
  switch (tap.source) {
    case model::Source::Phono:
      return QStringLiteral("CH%1 PHONO").arg(tap.lane + 1);
    case model::Source::Line:
      return QStringLiteral("CH%1 LINE").arg(tap.lane + 1);
    case model::Source::PostFader:
      return Picture::tr("CH%1 after its fader").arg(tap.lane + 1);
    case model::Source::CrossFaderA:
      return Picture::tr("Cross fader A");
    case model::Source::CrossFaderB:
      return Picture::tr("Cross fader B");
    case model::Source::Mic:
      return QStringLiteral("MIC");
    case model::Source::RecOut:
      break;
  }
  return QStringLiteral("REC OUT");
}

Picture::Picture(QWidget *parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setAccessibleName(tr("Picture of the routing"));
  LayOut();
}

void Picture::showState(const PictureState &state) {
  if (state == state_) return;
  state_ = state;
  LayOutTheWires();
  Describe();
}

void Picture::setRows(const std::array<qreal, kWires> &rows) {
  if (rows == rows_) return;
  rows_ = rows;
  LayOutTheWires();
}

void Picture::setActiveChannel(int channel) {
  if (channel == active_) return;
  active_ = channel;
  FocusOnActive();
  update();
}

QSize Picture::sizeHint() const { return minimumSizeHint(); }

QSize Picture::minimumSizeHint() const { return least_; }

// The words and the font decide how small the picture can be.
void Picture::LayOut() {
  smallest_ = LayOutPicture(Words(), font());
  const QSizeF least = smallest_.size;
  const QSize leastInPixels(static_cast<int>(std::ceil(least.width())),
                            static_cast<int>(std::ceil(least.height())));
  if (leastInPixels != least_) {
    least_ = leastInPixels;
    updateGeometry();
  }
  TakeRoom();
}

// As large as there is room for.
void Picture::TakeRoom() {
  const QSizeF least = smallest_.size;
  const qreal room =
      std::min(width() / least.width(), height() / least.height());
  const qreal scale = std::clamp<qreal>(room, 1, kLargestScale);
  layout_ = scale > 1 ? LayOutPicture(Words(), font(), scale) : smallest_;
  LayOutTheWires();
}

void Picture::LayOutTheWires() {
  WireEnds ends{
      .taps = {}, .rows = rows_, .right = static_cast<qreal>(width())};
  for (std::size_t i = 0; i < ends.taps.size(); ++i) {
    ends.taps[i] = state_.channels[i].tap;
  }
  wires_ = LayOutWires(layout_, ends);
  update();
}

bool Picture::CanBeChosen(const TapSpot &spot) const {
  const auto channel = static_cast<std::uint32_t>(active_);
  return model::IndexOf(channel, spot.tap).has_value();
}

void Picture::Choose(int channel, const model::Tap &tap) {
  if (model::IndexOf(static_cast<std::uint32_t>(channel), tap)) {
    emit tapChosen(channel, tap);
    return;
  }
  const TapSpot *spot = layout_.Spot(tap);
  QToolTip::showText(
      mapToGlobal(spot->centre.toPoint()),
      tr("USB %1 cannot record %2.").arg(channel + 1).arg(TapName(tap)) +
          Alternatives(tap),
      this);
}

const TapSpot *Picture::SpotAt(QPointF point) const {
  for (const TapSpot &spot : layout_.taps) {
    if (Distance(spot.centre, point) < layout_.unit * 0.7) return &spot;
  }
  for (const Wire &wire : wires_) {
    if (Distance(wire.points.front(), point) > layout_.numberRadius) continue;
    return layout_.Spot(
        *state_.channels[static_cast<std::size_t>(wire.channel)].tap);
  }
  for (const PictureLabel &label : layout_.labels) {
    if (label.tap && label.box.contains(point)) return layout_.Spot(*label.tap);
  }
  return nullptr;
}

const Wire *Picture::WireAt(QPointF point) const {
  for (const Wire &wire : wires_) {
    const QPointF toArrow = point - wire.points.back();
    if (Distance(wire.points.front(), point) <= layout_.numberRadius ||
        (std::abs(toArrow.y()) < layout_.unit * 0.7 &&
         toArrow.x() > -layout_.unit * 1.5)) {
      return &wire;
    }
  }
  return nullptr;
}

void Picture::PointAt(const TapSpot *spot) {
  const auto tap = spot == nullptr ? std::nullopt : std::optional(spot->tap);
  if (tap == pointedAt_) return;
  pointedAt_ = tap;
  const bool clickable = spot != nullptr && CanBeChosen(*spot);
  setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

QString Picture::DescriptionOf(const TapSpot &spot) const {
  QStringList recordedBy;
  for (std::size_t i = 0; i < state_.channels.size(); ++i) {
    if (state_.channels[i].tap == spot.tap) {
      recordedBy.append(QStringLiteral("USB %1").arg(i + 1));
    }
  }
  const QString name = TapName(spot.tap);
  const QString what =
      recordedBy.isEmpty()
          ? name
          : tr("%1, recorded by %2")
                .arg(name, recordedBy.join(QLatin1String(", ")));
  return CanBeChosen(spot)
             ? what
             : tr("%1. USB %2 cannot record it.").arg(what).arg(active_ + 1) +
                   Alternatives(spot.tap);
}

void Picture::Describe() {
  const TapSpot *spot = layout_.Spot(focus_);
  setAccessibleDescription(DescriptionOf(*spot));
  if (!hasFocus()) return;
  QAccessibleEvent event(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

bool Picture::event(QEvent *event) {
  if (event->type() == QEvent::ToolTip) {
    ShowToolTip(static_cast<QHelpEvent *>(event));
    return true;
  }
  return QWidget::event(event);
}

void Picture::ShowToolTip(QHelpEvent *event) {
  const QString text = ToolTipAt(event->pos());
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(event->globalPos(), text, this);
  }
}

QString Picture::ToolTipAt(QPointF point) const {
  const TapSpot *spot = SpotAt(point);
  if (spot != nullptr) return DescriptionOf(*spot);
  for (const Knob &knob : layout_.knobs) {
    if (knob.kind == KnobKind::Selector && knob.box.contains(point)) {
      return state_.selectors[knob.lane].silence;
    }
  }
  return {};
}

void Picture::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange ||
      event->type() == QEvent::LanguageChange) {
    LayOut();
  }
}

void Picture::resizeEvent(QResizeEvent * /*event*/) { TakeRoom(); }

void Picture::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  PicturePainter drawing(&painter, layout_, palette());
  drawing.DrawMixer(state_);
  // The active one last, so that it lies above the others.
  for (const bool active : {false, true}) {
    for (const Wire &wire : wires_) {
      if ((wire.channel == active_) != active) continue;
      const auto &channel =
          state_.channels[static_cast<std::size_t>(wire.channel)];
      drawing.DrawWire(wire, channel.inMixers, active);
    }
  }
  for (const TapSpot &spot : layout_.taps) {
    drawing.DrawTap(spot, CanBeChosen(spot), pointedAt_ == spot.tap,
                    WireColour(palette(), active_));
  }
  for (const Wire &wire : wires_) {
    drawing.DrawNumber(wire, wire.channel == active_);
  }
  if (hasFocus()) drawing.DrawFocus(layout_.Spot(focus_)->centre);
  if (drag_ && drag_->moved) {
    drawing.DrawDragged(drag_->channel, drag_->from, drag_->to);
  }
}

void Picture::mousePressEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  const Wire *wire = WireAt(event->position());
  if (wire == nullptr) return;
  const bool atTap =
      Distance(wire->points.front(), event->position()) <= layout_.numberRadius;
  drag_ = Drag{.channel = wire->channel,
               .from = atTap ? wire->points.back() : wire->points.front(),
               .to = event->position()};
}

void Picture::mouseMoveEvent(QMouseEvent *event) {
  PointAt(SpotAt(event->position()));
  if (!drag_) return;
  const qreal moved = Distance(drag_->to, event->position());
  if (!drag_->moved && moved < layout_.unit / 2) return;
  if (!drag_->moved) emit activeChannelChanged(drag_->channel);
  drag_->moved = true;
  drag_->to = event->position();
  update();
}

void Picture::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton) return;
  const TapSpot *spot = SpotAt(event->position());
  const std::optional<Drag> drag = std::exchange(drag_, std::nullopt);
  update();
  if (drag && !drag->moved && (spot == nullptr || !CanBeChosen(*spot))) {
    emit activeChannelChanged(drag->channel);
    return;
  }
  if (spot == nullptr) return;
  focus_ = spot->tap;
  Choose(drag && drag->moved ? drag->channel : active_, spot->tap);
  Describe();
}

void Picture::leaveEvent(QEvent * /*event*/) { PointAt(nullptr); }

// To the nearest tap in this direction, with those that stand aside counted as
// further away.
void Picture::MoveFocus(QPointF direction) {
  const QPointF from = layout_.Spot(focus_)->centre;
  const TapSpot *best = nullptr;
  qreal least = 0;
  for (const TapSpot &spot : layout_.taps) {
    const QPointF way = spot.centre - from;
    const qreal ahead = QPointF::dotProduct(way, direction);
    if (ahead <= layout_.unit / 10) continue;
    const qreal aside =
        std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    const qreal far = ahead + 2 * aside;
    if (best != nullptr && far >= least) continue;
    best = &spot;
    least = far;
  }
  if (best == nullptr) return;
  focus_ = best->tap;
  Describe();
  update();
}

// As a click does: a number that the active channel cannot have makes its own
// channel active.
void Picture::ChooseFocused() {
  if (!CanBeChosen(*layout_.Spot(focus_))) {
    for (std::size_t i = 0; i < state_.channels.size(); ++i) {
      if (state_.channels[i].tap != focus_) continue;
      emit activeChannelChanged(static_cast<int>(i));
      return;
    }
  }
  Choose(active_, focus_);
}

void Picture::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveFocus({-1, 0});
    case Qt::Key_Right:
      return MoveFocus({1, 0});
    case Qt::Key_Up:
      return MoveFocus({0, -1});
    case Qt::Key_Down:
      return MoveFocus({0, 1});
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return ChooseFocused();
    default:
      break;
  }
  if (event->key() >= Qt::Key_1 && event->key() < Qt::Key_1 + kWires) {
    emit activeChannelChanged(event->key() - Qt::Key_1);
    return;
  }
  QWidget::keyPressEvent(event);
}

void Picture::focusInEvent(QFocusEvent *event) {
  QWidget::focusInEvent(event);
  FocusOnActive();
}

// On what the active channel records.
void Picture::FocusOnActive() {
  const auto &tap = state_.channels[static_cast<std::size_t>(active_)].tap;
  if (tap) focus_ = *tap;
  Describe();
}

}  // namespace ztk::window
