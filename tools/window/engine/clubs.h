// SPDX-License-Identifier: MIT
//
// Settings that the user has saved under a name: files of `ztk export` in one
// folder.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_CLUBS_H_
#define ZTK_TOOLS_WINDOW_ENGINE_CLUBS_H_

#include <QList>
#include <QString>
#include <cstdint>
#include <vector>

#include "window/engine/state.h"
#include "ztk/model/change.h"

namespace ztk::window {

// Sorted by name. Empty if the folder does not exist.
QList<ClubState> FindClubs();

// The name that a club has in the list once it is saved under this one.
QString ListedClubName(const QString &name);

struct ClubFile {
  std::vector<model::Change> changes;
  QString error;  // why it cannot be applied; empty if it can
};
ClubFile ReadClub(const QString &path);

// What applying it would change now.
ClubPreview PreviewOf(const QString &path, const ClubFile &file);

// Whether a mixer is attached, and it is not confirmed that every mixer has
// what is remembered, or what the club contains for the models that are
// attached. Those are model::AttachedProducts(); all models if there is none.
bool NeedsSending(const ClubFile &file,
                  const std::vector<std::uint32_t> &attached,
                  const State &state);

// Saves what is stored now. Returns why that failed, or what is missing in the
// file; empty if the file contains everything.
QString SaveClub(const QString &name);

// Deletes the file of a club. Returns a sentence for the user: that the club is
// deleted, also if another program has done so before, or why it is not.
QString DeleteClub(const QString &path);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_CLUBS_H_
