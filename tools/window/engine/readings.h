// SPDX-License-Identifier: MIT
//
// What the worker reads: settings, mixers, and what does not work.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_READINGS_H_
#define ZTK_TOOLS_WINDOW_ENGINE_READINGS_H_

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
// The same without what undo would take back. It does not wait until another
// program has made its changes.
StoredState ReadRows();

// The rows before the settings and the mixers have been read.
QList<RowState> EmptyRows();

// Asks every mixer for all values that the window shows.
QList<MixerState> AskMixers();
// Asks only for the selectors.
QList<MixerState> AskForSelectors();

QList<FindingState> FindProblems();

// Whether the settings are sent when a mixer is plugged in.
struct AutoapplyStatus {
  Autoapply state = Autoapply::Unavailable;
  QString why;
};
AutoapplyStatus ReadAutoapply();
// Returns why the system does not do it; empty if it does.
QString SwitchAutoapply(bool on);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_READINGS_H_
