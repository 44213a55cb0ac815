// SPDX-License-Identifier: MIT
//
// Where everything of the picture of the routing stands, apart from the wires.
// All lengths are multiples of the height of a line of text, so that the
// picture grows with the font.
#ifndef ZTK_TOOLS_WINDOW_PICTURE_PICTURE_LAYOUT_H_
#define ZTK_TOOLS_WINDOW_PICTURE_PICTURE_LAYOUT_H_

#include <QFont>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QString>
#include <optional>

#include "ztk/model/routing.h"

namespace ztk::window {

// The words of the picture that depend on the language. What is printed on the
// mixer itself, as PHONO, is not translated.
struct PictureWords {
  QString inputs;
  QString selector;
  QString fader;
  QString crossFader;
};

struct PictureLabel {
  QString text;
  QRectF box;
  bool bold = false;
  // The signal that the text names. A click on the text chooses it.
  std::optional<model::Tap> tap = std::nullopt;
};

enum class KnobKind : std::uint8_t { Selector, Fader, CrossFader };

struct Knob {
  KnobKind kind;
  std::uint32_t lane = 0;
  QRectF box;
};

// A free strip between two lanes, or above or below all of them. The wires run
// through it on horizontal lines.
struct Gutter {
  qreal top;
  qreal bottom;
};

// A point that can be recorded.
struct TapSpot {
  model::Tap tap;
  QPointF centre;
  int gutter;  // the one that its wires run through
  bool wiresGoUp;
  // Where the second and each further number on this tap stands: 1 for the
  // right of the one before, -1 for the left.
  int direction;
};

struct PictureLayout {
  qreal unit = 0;
  QSizeF size;  // the smallest that shows everything
  QList<PictureLabel> labels;
  QList<Knob> knobs;
  QList<QLineF> signalLines;
  QList<QPointF> joints;  // where two signals are mixed
  QList<TapSpot> taps;
  QList<Gutter> gutters;
  qreal corridor = 0;  // where the columns of the wires begin
  qreal numberRadius = 0;

  const TapSpot *Spot(const model::Tap &tap) const;
};

// `scale` makes everything but the texts larger; 1 is the smallest that has
// room for them.
PictureLayout LayOutPicture(const PictureWords &words, const QFont &font,
                            qreal scale = 1);

// Room for the columns of the wires, and for the arrows at their ends.
qreal CorridorWidth(qreal unit);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PICTURE_PICTURE_LAYOUT_H_
