// SPDX-License-Identifier: MIT
#include "window/events/usb_watch.h"

#include <QDir>

namespace ztk::window {

namespace {

// A device comes with several events: its node, its owner, its mode.
constexpr int kRestMilliseconds = 150;

// Where nothing can be watched.
constexpr int kPollMilliseconds = 3000;

// One folder for each bus, with a node for each device. macOS has no such
// folder, nor have some containers.
constexpr char kFolder[] = "/dev/bus/usb";

}  // namespace

UsbWatch::UsbWatch(QObject *parent) : QObject(parent) {
  rest_.setSingleShot(true);
  rest_.setInterval(kRestMilliseconds);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &rest_,
          qOverload<>(&QTimer::start));
  connect(&rest_, &QTimer::timeout, this, [this] {
    WatchFolders();
    emit changed();
  });
  connect(&poll_, &QTimer::timeout, this, [this] {
    WatchFolders();
    emit changed();
  });
  poll_.setInterval(kPollMilliseconds);
}

void UsbWatch::Start() { WatchFolders(); }

// A folder that is removed is not watched any more, also when it comes again.
void UsbWatch::WatchFolders() {
  const QDir top(kFolder);
  QStringList folders{top.path()};
  for (const QString &bus : top.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    folders.append(top.filePath(bus));
  }
  const QStringList watched = watcher_.directories();
  for (const QString &folder : folders) {
    if (!watched.contains(folder) && QDir(folder).exists()) {
      watcher_.addPath(folder);
    }
  }
  if (watcher_.directories().isEmpty()) {
    poll_.start();
  } else {
    poll_.stop();
  }
}

}  // namespace ztk::window
