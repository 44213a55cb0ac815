// SPDX-License-Identifier: MIT
#include "ztk/model/undo.h"

#include "ztk/model/remembered.h"

namespace ztk::model {

namespace {

UndoItem::Action ActionFor(const PastChange &change) {
  const auto now = Remembered(*change.setting, change.channel);
  if (now == change.after) return UndoItem::Action::PutBack;
  if (now == change.before || now == FormerIndex(change)) {
    return UndoItem::Action::Nothing;
  }
  return UndoItem::Action::LeaveAlone;
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

std::vector<UndoItem> PlanUndo(const Step &step) {
  std::vector<UndoItem> items;
  for (auto change = step.changes.rbegin(); change != step.changes.rend();
       ++change) {
    items.push_back({.past = *change, .action = ActionFor(*change)});
  }
  return items;
}

bool IsVoid(const Step &step) {
  for (const PastChange &change : step.changes) {
    if (ActionFor(change) != UndoItem::Action::Nothing) return false;
  }
  return true;
}

std::vector<Change> ChangesOf(const std::vector<UndoItem> &items) {
  std::vector<Change> changes;
  for (const auto &[past, action] : items) {
    if (action != UndoItem::Action::PutBack) continue;
    changes.push_back({.setting = past.setting,
                       .product = past.setting->product,
                       .channel = past.channel,
                       .index = FormerIndex(past)});
  }
  return changes;
}

}  // namespace ztk::model
