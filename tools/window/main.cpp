// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QIcon>
#include <QLocale>

#include "window/connect.h"
#include "window/engine/engine.h"
#include "window/main_window.h"
#include "window/options.h"
#include "window/style.h"
#include "window/translation.h"

int main(int argc, char **argv) {
  using namespace ztk::window;
  if (const auto status = RunWithoutWindow(argc, argv)) return *status;
  QApplication application(argc, argv);
  QApplication::setStyle(new Style(QApplication::style()));
  if (const auto status = RefuseUnknown(argc, argv)) return *status;
  const QString id = QStringLiteral("com.tarvix.ZtkWindow");
  QGuiApplication::setDesktopFileName(id);
  QGuiApplication::setWindowIcon(QIcon::fromTheme(id));
  Translate(&application, QLocale());

  Engine engine;
  MainWindow window;
  Open(&window, &engine);
  return QApplication::exec();
}
