// SPDX-License-Identifier: MIT
//
// Hears the changes that any program of the session announces.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_HEARING_H_
#define ZTK_TOOLS_WINDOW_ENGINE_HEARING_H_

#include <QObject>

namespace ztk::window {

// One at a time in a process: the library's callbacks are the process's.
class Hearing : public QObject {
  Q_OBJECT

 public:
  explicit Hearing(QObject *parent);
  ~Hearing() override;

  // From the thread that runs the event loop.
  void Register();

 signals:
  void heard();
};

// Whether this program's event loop is the one through which the library
// delivers changes. Qt uses it on Debian, unless the environment forbids it.
bool LoopDelivers();

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_HEARING_H_
