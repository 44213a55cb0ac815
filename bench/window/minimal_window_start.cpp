// SPDX-License-Identifier: MIT
//
// The least that a program with a window of Qt does.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

#include "first_frame.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setCentralWidget(new QLabel(QStringLiteral("Hello")));
  window.resize(700, 560);
  window.show();
  return ztk::bench::MeasureFirstFrame(&window);
}
