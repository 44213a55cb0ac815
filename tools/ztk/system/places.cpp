// SPDX-License-Identifier: MIT
#include "ztk/system/places.h"

namespace ztk::model {

const char *Word(Obstacle obstacle) {
  switch (obstacle) {
    case Obstacle::None:
      return "busy";
    case Obstacle::Vanished:
      return "gone";
    case Obstacle::NoNode:
      return "no-node";
    case Obstacle::NoRight:
      return "not-permitted";
    case Obstacle::Forbidden:
      return "forbidden";
    case Obstacle::Other:
      break;
  }
  return "not-opened";
}

}  // namespace ztk::model
