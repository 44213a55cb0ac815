// SPDX-License-Identifier: MIT
#include "window/picture/wires.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace ztk::window {

namespace {

// Lengths in units of the layout.
constexpr qreal kNumberPitch = 1.06;  // between two numbers on one tap
constexpr qreal kLinePitch = 0.45;    // between two wires in a gutter
constexpr qreal kEndShift = 0.4;      // of the end of a wire, up or down
// Parallel wires that are closer to each other than this look like one wire.
constexpr qreal kMinimumDistance = 0.3;

// The cost of two wires that overlap. The cost of a crossing is 1.
constexpr int kOverlapCost = 1000;

struct Draft {
  int channel;
  const TapSpot *spot;
  QPointF start;
  qreal gutterY = 0;  // where it runs through the gutter
  qreal rowY = 0;     // where it ends
  qreal columnX = 0;  // where it goes from the one to the other
};

// The order of several numbers on one tap, from left to right.
enum class NumberOrder : std::uint8_t { Rising, Falling };

std::vector<Draft> DraftsOf(const PictureLayout &layout, const WireEnds &ends) {
  std::vector<Draft> drafts;
  for (int channel = 0; channel < kWires; ++channel) {
    const auto at = static_cast<std::size_t>(channel);
    if (!ends.taps[at]) continue;
    const TapSpot *spot = layout.Spot(*ends.taps[at]);
    if (spot == nullptr) continue;
    drafts.push_back({.channel = channel,
                      .spot = spot,
                      .start = spot->centre,
                      .rowY = ends.rows[at]});
  }
  return drafts;
}

// Places the numbers of one tap side by side. The lowest or the highest one is
// on the tap itself; the others continue in the direction of the tap.
void PlaceNumbers(const PictureLayout &layout, NumberOrder order,
                  std::vector<Draft> *drafts) {
  for (Draft &draft : *drafts) {
    const bool lowestIsOnTap =
        (order == NumberOrder::Rising) == (draft.spot->direction > 0);
    const auto before =
        std::count_if(drafts->begin(), drafts->end(), [&](const Draft &other) {
          return other.spot == draft.spot &&
                 (lowestIsOnTap ? other.channel < draft.channel
                                : other.channel > draft.channel);
        });
    const qreal shift = static_cast<qreal>(before) * draft.spot->direction *
                        kNumberPitch * layout.unit;
    draft.start = draft.spot->centre + QPointF(shift, 0);
  }
}

// In one gutter the wires that come from above run above those that come from
// below. A wire whose tap is further left runs further away from the taps, so
// that no wire crosses another one there.
bool RunsAbove(const Draft &one, const Draft &other) {
  if (one.spot->wiresGoUp != other.spot->wiresGoUp) {
    return !one.spot->wiresGoUp;
  }
  return one.spot->wiresGoUp ? one.start.x() < other.start.x()
                             : one.start.x() > other.start.x();
}

void PlaceGutterLines(const PictureLayout &layout, std::vector<Draft> *drafts) {
  for (int index = 0; index < layout.gutters.size(); ++index) {
    std::vector<Draft *> inside;
    for (Draft &draft : *drafts) {
      if (draft.spot->gutter == index) inside.push_back(&draft);
    }
    std::sort(inside.begin(), inside.end(),
              [](const Draft *one, const Draft *other) {
                return RunsAbove(*one, *other);
              });
    const Gutter &gutter = layout.gutters[index];
    const qreal pitch = kLinePitch * layout.unit;
    qreal y = (gutter.top + gutter.bottom) / 2 -
              pitch * static_cast<qreal>(inside.size() - 1) / 2;
    for (Draft *draft : inside) {
      draft->gutterY = y;
      y += pitch;
    }
    // A wire that is alone in a gutter runs at the height of its row, without a
    // bend, if that height is within the gutter.
    if (inside.size() == 1 && inside[0]->rowY > gutter.top + pitch &&
        inside[0]->rowY < gutter.bottom - pitch) {
      inside[0]->gutterY = inside[0]->rowY;
    }
  }
}

bool IsBetween(qreal value, qreal one, qreal other) {
  return value > std::min(one, other) && value < std::max(one, other);
}

// The cost of these two wires if the column of `left` is to the left of the
// column of `right`.
int Cost(const Draft &left, const Draft &right, qreal minimumDistance) {
  int cost = 0;
  // One would run along the other.
  if (std::abs(left.rowY - right.gutterY) < minimumDistance) {
    cost += kOverlapCost;
  }
  if (IsBetween(right.gutterY, left.gutterY, left.rowY)) ++cost;
  if (IsBetween(left.rowY, right.gutterY, right.rowY)) ++cost;
  return cost;
}

int Cost(const std::vector<Draft> &drafts,
         const std::vector<std::size_t> &order, qreal minimumDistance) {
  int cost = 0;
  for (std::size_t left = 0; left < order.size(); ++left) {
    for (std::size_t right = left + 1; right < order.size(); ++right) {
      cost += Cost(drafts[order[left]], drafts[order[right]], minimumDistance);
    }
  }
  return cost;
}

struct Columns {
  std::vector<std::size_t> order;  // of the drafts, from left to right
  int cost = 0;
};

// Tries the orders of the columns, at most 120, until one has no cost.
Columns BestColumns(const std::vector<Draft> &drafts, qreal minimumDistance) {
  std::vector<std::size_t> order(drafts.size());
  std::iota(order.begin(), order.end(), 0U);
  Columns best{.order = order, .cost = Cost(drafts, order, minimumDistance)};
  while (best.cost > 0 && std::next_permutation(order.begin(), order.end())) {
    const int cost = Cost(drafts, order, minimumDistance);
    if (cost < best.cost) best = {.order = order, .cost = cost};
  }
  return best;
}

// Overlaps can remain in each order of the columns, for example if each of two
// wires needs the column to the left of the other. Then the ends of wires are
// moved a little up or down. They still meet the boxes of their rows, because a
// box is higher than a wire is thick.
Columns SeparateOverlaps(qreal unit, std::vector<Draft> *drafts) {
  Columns best = BestColumns(*drafts, kMinimumDistance * unit);
  for (Draft &draft : *drafts) {
    for (const qreal shift : {kEndShift * unit, -kEndShift * unit}) {
      if (best.cost < kOverlapCost) return best;
      draft.rowY += shift;
      Columns found = BestColumns(*drafts, kMinimumDistance * unit);
      if (found.cost < best.cost) {
        best = std::move(found);
      } else {
        draft.rowY -= shift;
      }
    }
  }
  return best;
}

void PlaceColumns(const PictureLayout &layout, const WireEnds &ends,
                  const Columns &columns, std::vector<Draft> *drafts) {
  const qreal pitch = CorridorWidth(layout.unit) / (kWires + 2);
  const qreal surplus =
      std::max<qreal>(0, ends.right - layout.size.width()) / 2;
  qreal x = layout.corridor + surplus + pitch / 2;
  for (const std::size_t draft : columns.order) {
    (*drafts)[draft].columnX = x;
    x += pitch;
  }
}

}  // namespace

QList<Wire> LayOutWires(const PictureLayout &layout, const WireEnds &ends) {
  std::vector<Draft> best;
  Columns columns;
  for (const NumberOrder order : {NumberOrder::Rising, NumberOrder::Falling}) {
    std::vector<Draft> drafts = DraftsOf(layout, ends);
    PlaceNumbers(layout, order, &drafts);
    PlaceGutterLines(layout, &drafts);
    Columns found = SeparateOverlaps(layout.unit, &drafts);
    if (!best.empty() && found.cost >= columns.cost) continue;
    best = std::move(drafts);
    columns = std::move(found);
  }
  PlaceColumns(layout, ends, columns, &best);
  QList<Wire> wires;
  for (const Draft &draft : best) {
    wires.append(
        {.channel = draft.channel,
         .points = {draft.start, QPointF(draft.start.x(), draft.gutterY),
                    QPointF(draft.columnX, draft.gutterY),
                    QPointF(draft.columnX, draft.rowY),
                    QPointF(ends.right, draft.rowY)}});
  }
  return wires;
}

}  // namespace ztk::window
