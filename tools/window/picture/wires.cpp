// SPDX-License-Identifier: MIT
#include "window/picture/wires.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace ztk::window {

namespace {

// In units.
constexpr qreal kNumberPitch = 1.06;  // between two numbers on one tap
constexpr qreal kLinePitch = 0.45;    // between two wires in a gutter
constexpr qreal kRowShift = 0.4;
constexpr qreal kTouching = 0.3;  // nearer wires look like one

// Against the cost of two wires that cross.
constexpr int kOneOnTheOther = 1000;

struct Draft {
  int channel;
  const TapSpot *spot;
  QPointF start;
  qreal gutterLine = 0;
  qreal row = 0;
  qreal column = 0;
};

// The order of several numbers on one tap, from left to right.
enum class Order : std::uint8_t { Rising, Falling };

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
                      .row = ends.rows[at]});
  }
  return drafts;
}

// The numbers on one tap side by side, the first one on the tap itself.
void PlaceNumbers(const PictureLayout &layout, Order order,
                  std::vector<Draft> *drafts) {
  for (Draft &draft : *drafts) {
    const bool fromFirst =
        (order == Order::Rising) == (draft.spot->direction > 0);
    const auto before =
        std::count_if(drafts->begin(), drafts->end(), [&](const Draft &other) {
          return other.spot == draft.spot &&
                 (fromFirst ? other.channel < draft.channel
                            : other.channel > draft.channel);
        });
    const qreal shift = static_cast<qreal>(before) * draft.spot->direction *
                        kNumberPitch * layout.unit;
    draft.start = draft.spot->centre + QPointF(shift, 0);
  }
}

// In one gutter the wires that come from above run above those that come from
// below. The further left a wire comes from, the further from its tap it runs,
// so that no wire crosses another one there.
bool RunsAbove(const Draft &one, const Draft &other) {
  if (one.spot->wiresGoUp != other.spot->wiresGoUp) {
    return !one.spot->wiresGoUp;
  }
  return one.spot->wiresGoUp ? one.start.x() < other.start.x()
                             : one.start.x() > other.start.x();
}

void PlaceGutterLines(const PictureLayout &layout, std::vector<Draft> *drafts) {
  for (int number = 0; number < layout.gutters.size(); ++number) {
    std::vector<Draft *> inside;
    for (Draft &draft : *drafts) {
      if (draft.spot->gutter == number) inside.push_back(&draft);
    }
    std::sort(inside.begin(), inside.end(),
              [](const Draft *one, const Draft *other) {
                return RunsAbove(*one, *other);
              });
    const Gutter &gutter = layout.gutters[number];
    const qreal pitch = kLinePitch * layout.unit;
    qreal y = (gutter.top + gutter.bottom) / 2 -
              pitch * static_cast<qreal>(inside.size() - 1) / 2;
    for (Draft *draft : inside) {
      draft->gutterLine = y;
      y += pitch;
    }
    // A wire that is alone there runs straight to its row, where it can.
    if (inside.size() == 1 && inside[0]->row > gutter.top + pitch &&
        inside[0]->row < gutter.bottom - pitch) {
      inside[0]->gutterLine = inside[0]->row;
    }
  }
}

bool IsBetween(qreal value, qreal one, qreal other) {
  return value > std::min(one, other) && value < std::max(one, other);
}

// How bad it looks when `left` has a column on the left of that of `right`.
int Cost(const Draft &left, const Draft &right, qreal touching) {
  int cost = 0;
  // One would run along the other.
  if (std::abs(left.row - right.gutterLine) < touching) cost += kOneOnTheOther;
  if (IsBetween(right.gutterLine, left.gutterLine, left.row)) ++cost;
  if (IsBetween(left.row, right.gutterLine, right.row)) ++cost;
  return cost;
}

int Cost(const std::vector<Draft> &drafts,
         const std::vector<std::size_t> &order, qreal touching) {
  int cost = 0;
  for (std::size_t left = 0; left < order.size(); ++left) {
    for (std::size_t right = left + 1; right < order.size(); ++right) {
      cost += Cost(drafts[order[left]], drafts[order[right]], touching);
    }
  }
  return cost;
}

struct Columns {
  std::vector<std::size_t> order;  // of the drafts, from left to right
  int cost = 0;
};

// Tries every order of the columns: there are at most 120.
Columns BestColumns(const std::vector<Draft> &drafts, qreal touching) {
  std::vector<std::size_t> order(drafts.size());
  std::iota(order.begin(), order.end(), 0U);
  Columns best{.order = order, .cost = Cost(drafts, order, touching)};
  while (best.cost > 0 && std::next_permutation(order.begin(), order.end())) {
    const int cost = Cost(drafts, order, touching);
    if (cost < best.cost) best = {.order = order, .cost = cost};
  }
  return best;
}

// Two wires of which each would need the column on the left of the other are
// kept apart at one of their rows: the box there is higher than a wire.
Columns KeptApart(qreal unit, std::vector<Draft> *drafts) {
  Columns best = BestColumns(*drafts, kTouching * unit);
  for (Draft &draft : *drafts) {
    for (const qreal shift : {kRowShift * unit, -kRowShift * unit}) {
      if (best.cost < kOneOnTheOther) return best;
      draft.row += shift;
      Columns found = BestColumns(*drafts, kTouching * unit);
      if (found.cost < best.cost) {
        best = std::move(found);
      } else {
        draft.row -= shift;
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
  for (const std::size_t number : columns.order) {
    (*drafts)[number].column = x;
    x += pitch;
  }
}

}  // namespace

QList<Wire> LayOutWires(const PictureLayout &layout, const WireEnds &ends) {
  std::vector<Draft> best;
  Columns columns;
  for (const Order order : {Order::Rising, Order::Falling}) {
    std::vector<Draft> drafts = DraftsOf(layout, ends);
    PlaceNumbers(layout, order, &drafts);
    PlaceGutterLines(layout, &drafts);
    Columns found = KeptApart(layout.unit, &drafts);
    if (!best.empty() && found.cost >= columns.cost) continue;
    best = std::move(drafts);
    columns = std::move(found);
  }
  PlaceColumns(layout, ends, columns, &best);
  QList<Wire> wires;
  for (const Draft &draft : best) {
    wires.append(
        {.channel = draft.channel,
         .points = {draft.start, QPointF(draft.start.x(), draft.gutterLine),
                    QPointF(draft.column, draft.gutterLine),
                    QPointF(draft.column, draft.row),
                    QPointF(ends.right, draft.row)}});
  }
  return wires;
}

}  // namespace ztk::window
