// SPDX-License-Identifier: MIT
//
// What the worker reads: settings, mixers, and what does not work.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_LOOKS_H_
#define ZTK_TOOLS_WINDOW_ENGINE_LOOKS_H_

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

#include "window/engine/state.h"

namespace ztk::window {

// A value in a settings file.
struct StoredRow {
  std::optional<std::uint32_t> stored;
  QString unreadable;
};

// All settings as they are stored, in the order of State::rows, and what undo
// would take back.
struct StoredState {
  QList<StoredRow> rows;
  bool canUndo = false;
  QString undoes;
};
StoredState ReadStored();

// The rows before anything is known of them.
QList<RowState> EmptyRows();

// Asks every mixer all that is shown of it.
QList<MixerState> LookAtMixers();
// Asks only for the selectors.
QList<MixerState> LookAtSelectors();

QList<FindingState> FindProblems();

// Whether the settings are sent when a mixer is plugged in.
struct AutoapplyLook {
  Autoapply state = Autoapply::Unavailable;
  QString why;
};
AutoapplyLook LookAtAutoapply();
// The same after it was switched. Throws std::runtime_error when the system
// does not do it.
AutoapplyLook SwitchAutoapply(bool on);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_LOOKS_H_
