// SPDX-License-Identifier: MIT
#include "window/picture/picture_painter.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace ztk::window {

namespace {

// Each is readable on its background and, as a filled circle, under the number
// in the colour of the background.
constexpr QRgb kOnLight[kWires] = {0xFF1765C1, 0xFF0B7A4B, 0xFFB04400,
                                   0xFF7A3AA8, 0xFFA8182F};
constexpr QRgb kOnDark[kWires] = {0xFF6CB2FF, 0xFF4FD39A, 0xFFFF9B57,
                                  0xFFCF9BF5, 0xFFFF8193};
const QColor kWarning(0xF2, 0xB7, 0x05);
const QColor kOnWarning(0x1A, 0x1A, 0x1A);

bool IsDark(const QPalette &palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QColor Mixed(const QColor &one, const QColor &other, qreal share) {
  const auto part = [share](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * share));
  };
  return {part(one.red(), other.red()), part(one.green(), other.green()),
          part(one.blue(), other.blue())};
}

QList<QLineF> LinesOf(const Wire &wire) {
  QList<QLineF> lines;
  for (std::size_t i = 1; i < wire.points.size(); ++i) {
    lines.append(QLineF(wire.points[i - 1], wire.points[i]));
  }
  return lines;
}

// A polyline with round corners.
QPainterPath Rounded(const Wire &wire, qreal radius) {
  QPainterPath path(wire.points.front());
  for (std::size_t i = 1; i + 1 < wire.points.size(); ++i) {
    const QLineF in(wire.points[i], wire.points[i - 1]);
    const QLineF out(wire.points[i], wire.points[i + 1]);
    if (in.length() <= 0 || out.length() <= 0) continue;
    const qreal cut = std::min({radius, in.length() / 2, out.length() / 2});
    path.lineTo(in.pointAt(cut / in.length()));
    path.quadTo(wire.points[i], out.pointAt(cut / out.length()));
  }
  path.lineTo(wire.points.back());
  return path;
}

}  // namespace

QColor WireColour(const QPalette &palette, int channel) {
  return QColor::fromRgb(IsDark(palette) ? kOnDark[channel]
                                         : kOnLight[channel]);
}

void DrawWarningSign(QPainter *painter, const QRectF &box) {
  painter->save();
  QPainterPath triangle;
  triangle.addPolygon(
      QPolygonF({QPointF(box.center().x(), box.top()), box.bottomRight(),
                 box.bottomLeft(), QPointF(box.center().x(), box.top())}));
  painter->setPen(QPen(kOnWarning, box.width() / 14, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin));
  painter->setBrush(kWarning);
  painter->drawPath(triangle);
  const qreal x = box.center().x();
  painter->setPen(
      QPen(kOnWarning, box.width() / 8, Qt::SolidLine, Qt::RoundCap));
  painter->drawLine(QPointF(x, box.top() + box.height() * 0.40),
                    QPointF(x, box.top() + box.height() * 0.62));
  painter->drawPoint(QPointF(x, box.top() + box.height() * 0.83));
  painter->restore();
}

PicturePainter::PicturePainter(QPainter *painter, const PictureLayout &layout,
                               const QPalette &palette)
    : painter_(painter), layout_(layout), palette_(palette) {
  text_ = palette.color(QPalette::WindowText);
  signal_ = Mixed(palette.color(QPalette::Window), text_, 0.35);
  painter->setRenderHint(QPainter::Antialiasing);
}

void PicturePainter::DrawMixer(const PictureState &state) {
  // Qt draws lines without round ends five times as fast.
  painter_->setPen(QPen(signal_, Thin() * 1.4, Qt::SolidLine, Qt::SquareCap));
  painter_->drawLines(layout_.signalLines);
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(signal_);
  for (const QPointF &joint : layout_.joints) {
    painter_->drawEllipse(joint, Thin() * 2, Thin() * 2);
  }
  for (const Knob &knob : layout_.knobs) DrawKnob(knob, state);
  painter_->setPen(text_);
  const QFont plain = painter_->font();
  for (const PictureLabel &label : layout_.labels) {
    QFont font = plain;
    font.setBold(label.bold);
    painter_->setFont(font);
    painter_->drawText(label.box, Qt::AlignCenter | Qt::TextDontClip,
                       label.text);
  }
  painter_->setFont(plain);
}

void PicturePainter::DrawKnob(const Knob &knob, const PictureState &state) {
  const QRectF &box = knob.box;
  const qreal u = layout_.unit;
  painter_->setPen(QPen(text_, Thin()));
  painter_->setBrush(palette_.color(QPalette::Base));
  switch (knob.kind) {
    case KnobKind::Selector:
      DrawSelector(knob, state.selectors[knob.lane]);
      break;
    case KnobKind::Fader: {
      // Hides the line of the signal behind it.
      const QPointF middle = box.center();
      DrawSlider(
          QRectF(middle.x() - u * 0.17, box.top(), u * 0.34, box.height()),
          QRectF(box.left(), middle.y() - u * 0.3, box.width(), u * 0.6));
      break;
    }
    case KnobKind::CrossFader: {
      painter_->setBrush(palette_.color(QPalette::Window));
      painter_->drawRoundedRect(box, u * 0.3, u * 0.3);
      const QPointF middle(box.center().x(), box.top() + 1.35 * u);
      const qreal half = box.width() / 2 - u * 1.9;
      painter_->setBrush(palette_.color(QPalette::Base));
      DrawSlider(
          QRectF(middle.x() - half, middle.y() - u * 0.17, 2 * half, u * 0.34),
          QRectF(middle.x() - u * 0.3, middle.y() - u * 0.6, u * 0.6, u * 1.2));
      break;
    }
  }
}

void PicturePainter::DrawSelector(const Knob &knob,
                                  const PictureState::Selector &selector) {
  const QRectF &box = knob.box;
  const bool silences = !selector.silence.isEmpty();
  if (silences) {
    painter_->setPen(QPen(text_, Thin() * 2.2));
    painter_->setBrush(kWarning);
  }
  painter_->drawEllipse(box);
  painter_->setPen(silences ? kOnWarning : text_);
  painter_->drawText(
      box, Qt::AlignCenter | Qt::TextDontClip,
      selector.position.isEmpty() ? QStringLiteral("–") : selector.position);
  if (!silences) return;
  const qreal size = layout_.unit * 0.95;
  DrawWarningSign(painter_, QRectF(box.right() - size * 0.35,
                                   box.top() - size * 0.35, size, size));
}

void PicturePainter::DrawSlider(const QRectF &track, const QRectF &thumb) {
  const qreal radius = layout_.unit * 0.17;
  painter_->drawRoundedRect(track, radius, radius);
  painter_->drawRoundedRect(thumb, radius, radius);
}

void PicturePainter::DrawTap(const TapSpot &spot, bool canBeChosen,
                             bool pointedAt, const QColor &colour) {
  const qreal u = layout_.unit;
  const qreal radius = canBeChosen ? u * 0.36 : u * 0.24;
  painter_->setBrush(palette_.color(QPalette::Base));
  painter_->setPen(canBeChosen ? QPen(pointedAt ? colour : text_,
                                      pointedAt ? Thin() * 2.4 : Thin() * 1.3)
                               : QPen(signal_, Thin()));
  painter_->drawEllipse(spot.centre, radius, radius);
}

QPen PicturePainter::WirePen(const QColor &colour, InMixers inMixers,
                             bool active) const {
  QPen pen(colour, active ? Thick() * 1.5 : Thick(), Qt::SolidLine, Qt::FlatCap,
           Qt::RoundJoin);
  switch (inMixers) {
    case InMixers::Every:
      break;
    case InMixers::None:
      pen.setDashPattern({3.0, 2.0});
      break;
    case InMixers::NotKnown:
      pen.setWidthF(pen.widthF() * 0.7);
      pen.setDashPattern({1.0, 1.5});
      break;
  }
  return pen;
}

void PicturePainter::DrawWire(const Wire &wire, InMixers inMixers,
                              bool active) {
  const qreal u = layout_.unit;
  const QColor colour = WireColour(palette_, wire.channel);
  const QPen pen = WirePen(colour, inMixers, active);
  const QPointF tip = wire.points.back();
  Wire shortened = wire;
  shortened.points.back() = tip - QPointF(u * 0.5, 0);
  const QList<QLineF> lines = LinesOf(shortened);
  // A gap where it crosses other lines makes it easier to follow.
  painter_->setPen(QPen(palette_.color(QPalette::Window),
                        pen.widthF() + Thin() * 2, Qt::SolidLine, Qt::FlatCap));
  painter_->drawLines(lines);
  painter_->setBrush(Qt::NoBrush);
  painter_->setPen(pen);
  // Qt draws lines with dashes many times as fast as a path with dashes.
  if (pen.style() == Qt::SolidLine) {
    painter_->drawPath(Rounded(shortened, u * 0.45));
  } else {
    painter_->drawLines(lines);
  }
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(colour);
  painter_->drawPolygon(QPolygonF({tip, tip + QPointF(-u * 0.6, -u * 0.34),
                                   tip + QPointF(-u * 0.6, u * 0.34)}));
}

void PicturePainter::DrawNumber(const Wire &wire, bool active) {
  const qreal radius = layout_.numberRadius - Thin() / 2;
  painter_->setBrush(WireColour(palette_, wire.channel));
  painter_->setPen(active ? QPen(text_, Thin() * 1.4)
                          : QPen(palette_.color(QPalette::Window), Thin()));
  painter_->drawEllipse(wire.points.front(), radius, radius);
  QFont font = painter_->font();
  font.setBold(true);
  painter_->save();
  painter_->setFont(font);
  painter_->setPen(IsDark(palette_) ? Qt::black : Qt::white);
  painter_->drawText(QRectF(wire.points.front() - QPointF(radius, radius),
                            QSizeF(2 * radius, 2 * radius)),
                     Qt::AlignCenter | Qt::TextDontClip,
                     QString::number(wire.channel + 1));
  painter_->restore();
}

void PicturePainter::DrawDragged(int channel, QPointF from, QPointF to) {
  painter_->setPen(
      QPen(WireColour(palette_, channel), Thick(), Qt::DotLine, Qt::RoundCap));
  painter_->drawLine(from, to);
  DrawNumber({.channel = channel, .points = {to, to, to, to, to}}, true);
}

void PicturePainter::DrawFocus(QPointF centre) {
  const qreal radius = layout_.unit * 0.75;
  painter_->setBrush(Qt::NoBrush);
  painter_->setPen(
      QPen(palette_.color(QPalette::Highlight), Thin() * 2, Qt::SolidLine));
  painter_->drawEllipse(centre, radius, radius);
}

}  // namespace ztk::window
