// SPDX-License-Identifier: MIT
#include "window/picture/picture_layout.h"

#include <QFontMetricsF>
#include <algorithm>

namespace ztk::window {

namespace {

using model::Source;
using model::Tap;

// Lengths in units.
constexpr qreal kMargin = 0.5;
constexpr qreal kHeadings = 1.4;     // height of the line with the headings
constexpr qreal kHalfLane = 1.3;     // from the middle of a lane to its edge
constexpr qreal kInputOffset = 0.7;  // of PHONO and LINE from the middle
constexpr qreal kAboveLanes = 1.3;   // the gutter above the first lane
constexpr qreal kBetweenLanes = 1.8;
constexpr qreal kFiveWires = 2.6;  // a gutter for the wires of all channels
constexpr qreal kTextGap = 0.8;    // between a text and the tap it belongs to
constexpr qreal kNumberRadius = 0.54;
constexpr qreal kSelectorRadius = 0.95;
constexpr qreal kHalfCrossFader = 5.7;
constexpr qreal kTapOfCrossFader = 4.9;  // from its middle
constexpr qreal kCrossFaderHeight = 2.3;
constexpr qreal kBelowCrossFader = 1.9;
constexpr qreal kColumnPitch = 0.7;
constexpr qreal kArrow = 1.6;
constexpr int kChannels = 5;

class Builder {
 public:
  Builder(const PictureWords &words, const QFont &font, qreal scale)
      : words_(words),
        plain_(font),
        bold_(Bold(font)),
        u_(plain_.height() * scale) {
    layout_.unit = u_;
    layout_.numberRadius = kNumberRadius * u_;
  }

  PictureLayout Build() {
    PlaceColumns();
    PlaceHeadings();
    qreal y = (kMargin + kHeadings) * u_;
    for (std::uint32_t lane = 0; lane < model::kLanes; ++lane) {
      y = AddGutter(y, lane == 0 ? kAboveLanes : kBetweenLanes);
      AddLane(lane, y + kHalfLane * u_);
      y += 2 * kHalfLane * u_;
    }
    y = AddGutter(y, kFiveWires);
    y = AddCrossFader(y + kNumberRadius * u_);
    AddLastLine(y);
    y = AddGutter(y + kNumberRadius * u_, kFiveWires);
    layout_.size = {layout_.corridor + CorridorWidth(u_), y};
    return layout_;
  }

 private:
  static QFont Bold(QFont font) {
    font.setBold(true);
    return font;
  }

  qreal BoldWidth(const QString &text) const {
    return bold_.horizontalAdvance(text);
  }

  // The middle of the column after this one. Headings are centred above their
  // columns, so the distance depends on the widths of both headings.
  qreal After(qreal column, qreal least, const QString &before,
              const QString &heading) const {
    const qreal words = (BoldWidth(before) + BoldWidth(heading)) / 2;
    return column + std::max(least * u_, words + kTextGap * u_);
  }

  void PlaceColumns() {
    inputs_ = kMargin * u_ + BoldWidth(QStringLiteral("CH1")) +
              (kTextGap + kTextGap) * u_ +
              plain_.horizontalAdvance(QStringLiteral("PHONO"));
    inputs_ = std::max(inputs_, kMargin * u_ + BoldWidth(words_.inputs) / 2);
    selectors_ = After(inputs_, 3.4, words_.inputs, words_.selector);
    faders_ = After(selectors_, 3.4, words_.selector, words_.fader);
    postFaders_ = faders_ + 2.2 * u_;
    mix_ = std::max(
        postFaders_ + 2.6 * u_,
        BoldWidth(words_.crossFader) + (kHalfCrossFader + 2 * kTextGap) * u_);
    const qreal numbers = (1.6 + (2 * kChannels - 1) * kNumberRadius) * u_;
    layout_.corridor =
        mix_ + std::max(numbers, kHalfCrossFader * u_) + kTextGap * u_;
  }

  void PlaceHeadings() {
    const qreal middle = (kMargin + kHeadings / 2) * u_;
    AddText(words_.inputs, inputs_, middle, Qt::AlignHCenter, true);
    AddText(words_.selector, selectors_, middle, Qt::AlignHCenter, true);
    AddText(words_.fader, faders_, middle, Qt::AlignHCenter, true);
  }

  // `x` is the left edge, the middle or the right edge of the text.
  void AddText(const QString &text, qreal x, qreal middle,
               Qt::AlignmentFlag alignment, bool bold = false) {
    const QFontMetricsF &metrics = bold ? bold_ : plain_;
    const qreal width = metrics.horizontalAdvance(text);
    if (alignment == Qt::AlignHCenter) x -= width / 2;
    if (alignment == Qt::AlignRight) x -= width;
    layout_.labels.append(
        {.text = text,
         .box = {x, middle - metrics.height() / 2, width, metrics.height()},
         .bold = bold});
  }

  // The name of a signal.
  void AddName(const QString &name, qreal x, qreal middle,
               Qt::AlignmentFlag alignment, const Tap &tap) {
    AddText(name, x, middle, alignment);
    layout_.labels.last().tap = tap;
  }

  qreal AddGutter(qreal top, qreal height) {
    layout_.gutters.append({.top = top, .bottom = top + height * u_});
    return top + height * u_;
  }

  // The wires of a tap run through the gutter above it (`up`) or below it.
  void AddTap(Source source, std::uint32_t lane, QPointF centre, bool up,
              int direction = 1) {
    const auto next = static_cast<int>(layout_.gutters.size());
    layout_.taps.append({.tap = {.source = source, .lane = lane},
                         .centre = centre,
                         .gutter = up ? next - 1 : next,
                         .wiresGoUp = up,
                         .direction = direction});
  }

  void AddKnob(KnobKind kind, std::uint32_t lane, QPointF centre, qreal width,
               qreal height) {
    layout_.knobs.append(
        {.kind = kind,
         .lane = lane,
         .box = {centre.x() - width * u_ / 2, centre.y() - height * u_ / 2,
                 width * u_, height * u_}});
  }

  void AddLane(std::uint32_t lane, qreal y) {
    AddText(QStringLiteral("CH%1").arg(lane + 1), kMargin * u_, y,
            Qt::AlignLeft, true);
    const QPointF selector(selectors_ - kSelectorRadius * u_, y);
    AddInput(Source::Phono, lane, QStringLiteral("PHONO"),
             y - kInputOffset * u_, selector);
    AddInput(Source::Line, lane, QStringLiteral("LINE"), y + kInputOffset * u_,
             selector);
    AddKnob(KnobKind::Selector, lane, {selectors_, y}, 2 * kSelectorRadius,
            2 * kSelectorRadius);
    AddKnob(KnobKind::Fader, lane, {faders_, y}, 1.2, 2.3);
    AddTap(Source::PostFader, lane, {postFaders_, y}, true);
    layout_.signalLines.append(
        QLineF(selectors_ + kSelectorRadius * u_, y, mix_, y));
    layout_.joints.append({mix_, y});
  }

  void AddInput(Source source, std::uint32_t lane, const QString &name, qreal y,
                QPointF selector) {
    AddName(name, inputs_ - kTextGap * u_, y, Qt::AlignRight,
            {.source = source, .lane = lane});
    AddTap(source, lane, {inputs_, y}, source == Source::Phono);
    layout_.signalLines.append(QLineF({inputs_, y}, selector));
  }

  // The signals of the lanes come from above. The two taps are on the upper
  // edge.
  qreal AddCrossFader(qreal top) {
    const qreal firstLane = layout_.joints.first().y();
    layout_.signalLines.append(QLineF(mix_, firstLane, mix_, top));
    AddKnob(KnobKind::CrossFader, 0, {mix_, top + kCrossFaderHeight * u_ / 2},
            2 * kHalfCrossFader, kCrossFaderHeight);
    const qreal a = mix_ - kTapOfCrossFader * u_;
    const qreal b = mix_ + kTapOfCrossFader * u_;
    // The numbers on both stay on the box, and beside the line from above.
    AddTap(Source::CrossFaderA, 0, {a, top}, true, 1);
    AddTap(Source::CrossFaderB, 0, {b, top}, true, -1);
    const qreal middle = top + 1.35 * u_;
    AddName(QStringLiteral("A"), a, middle, Qt::AlignHCenter,
            {.source = Source::CrossFaderA});
    AddName(QStringLiteral("B"), b, middle, Qt::AlignHCenter,
            {.source = Source::CrossFaderB});
    AddText(words_.crossFader, mix_ - (kHalfCrossFader + kTextGap) * u_, middle,
            Qt::AlignRight, true);
    const qreal bottom = top + kCrossFaderHeight * u_;
    const qreal last = bottom + kBelowCrossFader * u_;
    layout_.signalLines.append(QLineF(mix_, bottom, mix_, last));
    return last;
  }

  // MIC is mixed with what comes from the cross fader, and both are recorded as
  // REC OUT.
  void AddLastLine(qreal y) {
    const QPointF mic(inputs_, y);
    const QPointF recOut(mix_ + 1.6 * u_, y);
    AddName(QStringLiteral("MIC"), inputs_ - kTextGap * u_, y, Qt::AlignRight,
            {.source = Source::Mic});
    AddName(QStringLiteral("REC OUT"), mix_ + 0.6 * u_, y - 1.15 * u_,
            Qt::AlignLeft, {.source = Source::RecOut});
    layout_.signalLines.append(QLineF(mic, recOut));
    layout_.joints.append({mix_, y});
    AddTap(Source::Mic, 0, mic, false);
    AddTap(Source::RecOut, 0, recOut, false);
  }

  const PictureWords &words_;
  const QFontMetricsF plain_;
  const QFontMetricsF bold_;
  const qreal u_;
  // The middle of each column.
  qreal inputs_ = 0;
  qreal selectors_ = 0;
  qreal faders_ = 0;
  qreal postFaders_ = 0;
  qreal mix_ = 0;
  PictureLayout layout_;
};

}  // namespace

const TapSpot *PictureLayout::Spot(const model::Tap &tap) const {
  for (const TapSpot &spot : taps) {
    if (spot.tap == tap) return &spot;
  }
  return nullptr;
}

PictureLayout LayOutPicture(const PictureWords &words, const QFont &font,
                            qreal scale) {
  return Builder(words, font, scale).Build();
}

qreal CorridorWidth(qreal unit) {
  return (kColumnPitch * kChannels + kArrow) * unit;
}

}  // namespace ztk::window
