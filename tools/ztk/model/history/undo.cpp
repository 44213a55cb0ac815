// SPDX-License-Identifier: MIT
#include "ztk/model/history/undo.h"

#include <algorithm>

#include "ztk/model/history/sendings.h"
#include "ztk/model/remembered.h"

namespace ztk::model {

namespace {

using Action = UndoItem::Action;

// What undo does about a change while the value is `now`.
Action ActionFor(const PastChange &change, std::optional<std::uint32_t> now) {
  if (now == change.after) return Action::PutBack;
  // If nothing was remembered before, earlier versions of undo remembered the
  // default.
  if (now == change.before || now == FormerIndex(change)) {
    return Action::Nothing;
  }
  return Action::LeaveAlone;
}

bool IsSamePlace(const UndoItem &item, const PastChange &change) {
  return item.past.setting == change.setting &&
         item.past.channel == change.channel;
}

// Takes a change back, after those that were made later.
void TakeBack(const PastChange &change, std::vector<UndoItem> *items) {
  const auto later = std::find_if(
      items->rbegin(), items->rend(),
      [&](const UndoItem &item) { return IsSamePlace(item, change); });
  if (later == items->rend()) {
    const auto now = Remembered(*change.setting, change.channel);
    items->push_back({.past = change, .action = ActionFor(change, now)});
    return;
  }
  // A value of another program stays, independent of the value before it.
  if (later->action == Action::LeaveAlone) {
    later->past.before = change.before;
    return;
  }
  switch (ActionFor(change, later->past.before)) {
    case Action::PutBack:
      // When the later change is void, this one is in effect.
      if (later->action == Action::Nothing) later->past.after = change.after;
      later->past.before = change.before;
      later->action = Action::PutBack;
      break;
    case Action::Nothing:
      break;
    case Action::LeaveAlone:
      items->push_back({.past = change, .action = Action::LeaveAlone});
      break;
  }
}

// Takes all changes of a step back.
void TakeBack(const Step &step, std::vector<UndoItem> *items) {
  for (auto change = step.changes.rbegin(); change != step.changes.rend();
       ++change) {
    TakeBack(*change, items);
  }
}

bool IsLeftAlone(const std::vector<UndoItem> &items, const PastChange &change) {
  return std::any_of(items.begin(), items.end(), [&](const UndoItem &item) {
    return item.action == Action::LeaveAlone && IsSamePlace(item, change);
  });
}

}  // namespace

std::uint32_t FormerIndex(const PastChange &change) {
  return change.before.value_or(change.setting->defaultIndex(change.channel));
}

std::string WhyUnreadable(const Step &step) {
  for (const PastChange &change : step.changes) {
    std::string why = WhyUnreadable(*change.setting);
    if (!why.empty()) return why;
  }
  return "";
}

std::vector<UndoItem> PlanUndo(const std::vector<Step> &steps,
                               std::size_t count) {
  std::vector<UndoItem> items;
  for (std::size_t i = 0; i < count && i < steps.size(); ++i) {
    TakeBack(steps[steps.size() - 1 - i], &items);
  }
  return items;
}

std::vector<std::vector<std::optional<bool>>> FindLeftAlone(
    const std::vector<Step> &steps) {
  SettingsSnapshot settings;
  std::vector<UndoItem> items;
  std::vector<std::vector<std::optional<bool>>> leftAlone;
  for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
    TakeBack(*step, &items);
    leftAlone.emplace_back();
    for (const PastChange &change : step->changes) {
      const bool isReadable = settings.WhyUnreadable(*change.setting).empty();
      leftAlone.back().push_back(isReadable
                                     ? std::optional(IsLeftAlone(items, change))
                                     : std::nullopt);
    }
  }
  return leftAlone;
}

bool IsVoid(const Step &step) {
  return std::all_of(
      step.changes.begin(), step.changes.end(), [](const PastChange &change) {
        const auto now = Remembered(*change.setting, change.channel);
        return ActionFor(change, now) == Action::Nothing;
      });
}

std::size_t DropVoidSteps(History *history) {
  std::size_t dropped = 0;
  while (!history->steps().empty() &&
         WhyUnreadable(history->steps().back()).empty() &&
         IsVoid(history->steps().back())) {
    history->DropLast();
    ++dropped;
  }
  return dropped;
}

std::vector<Change> ChangesOf(const std::vector<UndoItem> &items) {
  std::vector<Change> changes;
  for (const auto &[past, action] : items) {
    if (action != Action::PutBack) continue;
    changes.push_back({.setting = past.setting,
                       .product = past.setting->product,
                       .channel = past.channel,
                       .index = FormerIndex(past),
                       .forgets = !past.before.has_value()});
  }
  return changes;
}

UndoneSteps UndoSteps(const std::vector<Change> &changes, std::size_t count,
                      History *history) {
  UndoneSteps undone{.made = MakeChanges(changes)};
  undone.dropped = std::all_of(
      undone.made.changes.begin(), undone.made.changes.end(),
      [](const MadeChange &one) {
        return one.remembered || one.forgotten || one.result == ZTK_REJECTED;
      });
  if (undone.dropped) history->DropLast(count);
  undone.saved = history->Save();
  RecordSending(SendingsOf(undone.made), undone.made.reach.started, history);
  return undone;
}

}  // namespace ztk::model
