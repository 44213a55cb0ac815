// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PICTURE_PICTURE_STATE_H_
#define ZTK_TOOLS_WINDOW_PICTURE_PICTURE_STATE_H_

#include <QString>
#include <array>
#include <optional>

#include "window/engine/state.h"
#include "window/picture/wires.h"
#include "ztk/model/routing.h"

namespace ztk::window {

// What the picture shows.
struct PictureState {
  struct Channel {
    // The signal that is recorded; empty if the stored number is not a choice.
    std::optional<model::Tap> tap;
    InMixers inMixers = InMixers::NotKnown;
    bool operator==(const Channel &) const = default;
  };
  struct Selector {
    QString position;  // empty if no mixer has reported it
    // Why a channel is silent in this position; empty if none is.
    QString silence;
    bool operator==(const Selector &) const = default;
  };
  std::array<Channel, kWires> channels;
  std::array<Selector, model::kLanes> selectors;
  bool operator==(const PictureState &) const = default;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PICTURE_PICTURE_STATE_H_
