// SPDX-License-Identifier: MIT
//
// Receives the changes that any program of the session announces, and notices
// when they cannot be received.
#ifndef ZTK_TOOLS_WINDOW_EVENTS_ANNOUNCEMENT_LISTENER_H_
#define ZTK_TOOLS_WINDOW_EVENTS_ANNOUNCEMENT_LISTENER_H_

#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <memory>

#include "window/engine/worker.h"
#include "ztk/system/bus_watch.h"

namespace ztk::window {

// One at a time in a process: the library's callbacks are the process's.
class AnnouncementListener : public QObject {
  Q_OBJECT

 public:
  explicit AnnouncementListener(QObject *parent);
  ~AnnouncementListener() override;

  // Called from the thread that runs the event loop; does not wait for the bus.
  // The library must not be called in another thread before ready().
  void Start();

  // Why announcements are not received; empty if they are.
  const QString &whyDeaf() const { return whyDeaf_; }

 signals:
  // All registrations that are possible are made.
  void ready();
  // A program has announced a change.
  void announced();
  // whyDeaf() is different now.
  void deafnessChanged();

 private:
  void OnConnected(std::shared_ptr<model::BusWatch> bus);
  void CheckBus();
  void Register();

  QString whyDeaf_;
  // Connects to the bus, because a bus that does not answer takes a second.
  std::unique_ptr<Worker> connector_;
  std::shared_ptr<model::BusWatch> bus_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_EVENTS_ANNOUNCEMENT_LISTENER_H_
