// SPDX-License-Identifier: MIT
//
// Notices that a device is plugged in or unplugged, or that the right to open
// one changes.
#ifndef ZTK_TOOLS_WINDOW_EVENTS_USB_WATCH_H_
#define ZTK_TOOLS_WINDOW_EVENTS_USB_WATCH_H_

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace ztk::window {

class UsbWatch : public QObject {
  Q_OBJECT

 public:
  explicit UsbWatch(QObject *parent);

  void Start();

 signals:
  // Once for several changes that follow each other closely.
  void changed();

 private:
  void WatchFolders();

  QFileSystemWatcher watcher_;
  QTimer rest_;
  QTimer poll_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_EVENTS_USB_WATCH_H_
