// SPDX-License-Identifier: MIT
//
// ztk-window, as its own main() starts it.
#include <QApplication>
#include <QLocale>

#include "first_frame.h"
#include "window/connect.h"
#include "window/engine/engine.h"
#include "window/main_window.h"
#include "window/style.h"
#include "window/translation.h"

int main(int argc, char **argv) {
  using namespace ztk::window;
  QApplication application(argc, argv);
  QApplication::setStyle(new Style(QApplication::style()));
  Translate(&application, QLocale());
  Engine engine;
  MainWindow window;
  Open(&window, &engine);
  return ztk::bench::MeasureFirstFrame(&window);
}
