// SPDX-License-Identifier: MIT
#include "window/main_window.h"

#include <QtTest>

#include "window/registry.h"

namespace ztk::window {

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void HasATitle();
};

void MainWindowTest::HasATitle() {
  const MainWindow window;
  QCOMPARE(window.windowTitle(), QStringLiteral("VRM-D6 settings"));
}

namespace {
const bool kRegistered = Register<MainWindowTest>("MainWindowTest");
}  // namespace

}  // namespace ztk::window

#include "main_window_test.moc"
