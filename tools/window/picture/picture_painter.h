// SPDX-License-Identifier: MIT
//
// Draws the picture. It knows where things stand from the layout, and takes
// every colour but those of the wires from the palette.
#ifndef ZTK_TOOLS_WINDOW_PICTURE_PICTURE_PAINTER_H_
#define ZTK_TOOLS_WINDOW_PICTURE_PICTURE_PAINTER_H_

#include <QColor>
#include <QPainter>
#include <QPalette>

#include "window/picture/picture_layout.h"
#include "window/picture/picture_state.h"
#include "window/picture/wires.h"

namespace ztk::window {

// The colour of a USB channel on this background.
QColor WireColour(const QPalette &palette, int channel);

class PicturePainter {
 public:
  PicturePainter(QPainter *painter, const PictureLayout &layout,
                 const QPalette &palette);

  void DrawMixer(const PictureState &state);
  // The tap can be chosen with a click; `pointedAt`: the mouse is over it.
  void DrawTap(const TapSpot &spot, bool canBeChosen, bool pointedAt,
               const QColor &colour);
  void DrawWire(const Wire &wire, InMixers inMixers, bool active);
  void DrawNumber(const Wire &wire, bool active);
  // A wire whose end is being dragged.
  void DrawDragged(int channel, QPointF from, QPointF to);
  void DrawFocus(QPointF centre);

 private:
  qreal Thin() const { return layout_.unit * 0.09; }
  qreal Thick() const { return layout_.unit * 0.17; }
  QPen WirePen(const QColor &colour, InMixers inMixers, bool active) const;
  void DrawKnob(const Knob &knob, const PictureState &state);
  void DrawSelector(const Knob &knob, const PictureState::Selector &selector);
  void DrawSlider(const QRectF &track, const QRectF &thumb);

  QPainter *painter_;
  const PictureLayout &layout_;
  const QPalette &palette_;
  QColor text_;
  QColor signal_;  // the way of the sound through the mixer
};

// A triangle with an exclamation mark: what it stands at needs attention.
void DrawWarningSign(QPainter *painter, const QRectF &box);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PICTURE_PICTURE_PAINTER_H_
