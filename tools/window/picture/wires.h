// SPDX-License-Identifier: MIT
//
// The wires of the picture: from the tap that a USB channel records to the row
// of that channel.
#ifndef ZTK_TOOLS_WINDOW_PICTURE_WIRES_H_
#define ZTK_TOOLS_WINDOW_PICTURE_WIRES_H_

#include <QList>
#include <QPointF>
#include <array>
#include <optional>

#include "window/picture/picture_layout.h"

namespace ztk::window {

inline constexpr int kWires = 5;  // one for each USB channel

struct WireEnds {
  // What each channel records; none where it is not known.
  std::array<std::optional<model::Tap>, kWires> taps;
  // The height at which the row of each channel stands.
  std::array<qreal, kWires> rows{};
  qreal right = 0;  // where the rows begin
};

// From the tap: into its gutter, along it to a column in the corridor, up or
// down to the row, and to the right.
struct Wire {
  int channel;
  // The first stands on the tap, under the number of the channel.
  std::array<QPointF, 5> points;
};

// In the order of their channels, those of unknown taps left out. No wire
// crosses a label or a knob.
QList<Wire> LayOutWires(const PictureLayout &layout, const WireEnds &ends);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PICTURE_WIRES_H_
