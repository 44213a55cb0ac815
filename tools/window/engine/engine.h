// SPDX-License-Identifier: MIT
//
// All that the window does besides drawing: it keeps the state up to date and
// makes changes, through the library and the model, in one worker thread.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_ENGINE_H_
#define ZTK_TOOLS_WINDOW_ENGINE_ENGINE_H_

#include <QObject>
#include <memory>

#include "window/engine/state.h"

namespace ztk::window {

// Lives in the thread of the user interface. No function of it waits for a
// mixer or the message bus, and only readRows() waits for files.
class Engine : public QObject {
  Q_OBJECT

 public:
  explicit Engine(QObject *parent = nullptr);
  ~Engine() override;

  // Reads what is remembered before it returns, so that the first frame can
  // show it. Called before start().
  void readRows();
  // Registers for changes of other programs, then starts the worker; returns
  // before that. Called once, from the thread that runs the event loop.
  void start();

  const State &state() const { return state_; }

  // Sends, stores and announces a choice. A newer wish for the same channel
  // replaces one that still waits.
  void choose(const model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);
  // Takes back the last step of the history that `ztk undo` uses too.
  void undo();
  // Sends all that is remembered, for every model, to the mixers again.
  void resendAll();
  // Sends the settings again to each mixer that is plugged in, as
  // `ztk autoapply` does.
  void setAutoapply(bool on);
  // Looks for mixers and asks them at once.
  void checkNow();
  // Selectors are read while the window is visible.
  void setVisible(bool visible);

  // Clubs are files of `ztk export` in one folder. The answer to previewClub()
  // is the signal clubPreviewed().
  void previewClub(const QString &path);
  void applyClub(const QString &path);
  void saveClub(const QString &name);
  void deleteClub(const QString &path);
  // Lists the clubs again; other programs may write them too.
  void readClubs();

 signals:
  // Some part of state() is different now.
  void stateChanged();
  void clubPreviewed(const ClubPreview &preview);
  // A sentence about something that was asked for and failed, or that ended
  // otherwise than the user may expect.
  void reported(const QString &message);

 private:
  class Private;
  friend class Private;

  State state_;
  std::unique_ptr<Private> private_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_ENGINE_H_
