// SPDX-License-Identifier: MIT
#include <QApplication>

#include "window/main_window.h"

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  ztk::window::MainWindow window;
  window.show();
  return QApplication::exec();
}
